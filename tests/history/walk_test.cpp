#include <atomic>
#include <csignal>
#include <cstdlib>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "history/history_walk.h"
#include "support/telarium_test.h"

// Random walks, short in the ordinary run; tools/history_walks.sh makes them long.
namespace telarium {
namespace {

namespace fs = std::filesystem;

int FromEnvironment(const char* name, int otherwise) {
  const char* value = std::getenv(name);
  return value ? std::atoi(value) : otherwise;
}

using HistoryWalks = TelariumTest;

TEST_F(HistoryWalks, UndoRedoAndANewStartGiveBackWhatThePlainWayKnows) {
  HistoryWalk walk(InFolder(""), InFolder("passi"), 1);
  const int commands = FromEnvironment("TELARIUM_WALK_COMMANDS", 500);
  for (int i = 0; i < commands && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    walk.Step();
  }
}

// What a killed walk had done before its death, to the knowledge of whoever killed it.
struct Killed {
  int done;  // commands; the next one was begun, and may have come to its end
  std::vector<LavoroPerso> offered;
};

Killed KillAWalk(const Percorso& folder, unsigned seed, int after, int patience) {
  fs::create_directories(folder);
  void* const memory = ::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                              MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  auto* const done = new (memory) std::atomic<int>(0);
  const pid_t child = ::fork();
  if (child == 0) {
    HistoryWalk walk(folder, folder / "passi", seed);
    walk.restarts = false;
    for (;; ++*done)
      walk.Step();
  }
  while (*done < after)
    std::this_thread::yield();
  const int until = *done;
  for (int i = 0; i < patience && *done < until + 5; ++i)
    std::this_thread::yield();
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  const Killed killed{*done, ArchivioDelleCronologie(folder / "passi").LavoriPersi()};
  ::munmap(memory, sizeof(std::atomic<int>));
  return killed;
}

// A state of a walk, and whether it has to be offered.
struct Known {
  std::string state;
  bool unsaved;
  bool operator==(const Known&) const = default;
};

// The states that a walk comes to by so many commands and one more; commands that change nothing
// add none.
std::vector<Known> StatesOf(HistoryWalk& walk, int done) {
  std::vector<Known> states;
  for (int i = 0; i <= done + 1; ++i) {
    const Known now{walk.State(), walk.Unsaved()};
    if (states.empty() || i > done || !(states.back() == now)) states.push_back(now);
    walk.Step();
  }
  return states;
}

bool Offers(const std::vector<LavoroPerso>& offered, const std::string& state) {
  return std::any_of(offered.begin(), offered.end(), [&](const LavoroPerso& lost) {
    return state == lost.nome.filename().string() + ' ' + DifferenzaTra({}, lost.cruciverba);
  });
}

TEST_F(HistoryWalks, AKillLosesTheCommandInHandAtMost) {
  std::mt19937 chance(2);
  const int kills = FromEnvironment("TELARIUM_WALK_KILLS", 12);
  for (int i = 0; i < kills; ++i) {
    SCOPED_TRACE(i);
    const auto seed = static_cast<unsigned>(chance());
    const Percorso folder = InFolder(std::to_string(i));
    const auto [done, offered] =
        KillAWalk(folder, seed, static_cast<int>(chance() % 60), static_cast<int>(chance() % 200));
    // The same walk again, from its first state, tells what had to be offered.
    fs::create_directories(folder / "di nuovo");
    HistoryWalk again(folder / "di nuovo", folder / "di nuovo/passi", seed);
    again.restarts = false;
    // The command in hand, the last one or the one before.
    const std::vector<Known> states = StatesOf(again, done);
    const auto last = states.end() - std::min<std::ptrdiff_t>(3, std::ssize(states));
    EXPECT_TRUE(
        std::any_of(last, states.end(),
                    [&](const Known& one) { return !one.unsaved || Offers(offered, one.state); }))
        << done << " commands";
    fs::remove_all(folder);
  }
}

}  // namespace
}  // namespace telarium
