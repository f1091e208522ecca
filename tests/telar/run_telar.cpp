#include "telar/run_telar.h"

#include <chrono>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include <gtest/gtest.h>

namespace telarium {
namespace {

// Far above what any test takes, under sanitizers and on a busy machine too.
constexpr std::chrono::milliseconds TimeLimit(120'000);

// `env` sets the variables and the folder, and gives the signals back that a shell may have told
// the tests to ignore; then it becomes `telar`.
std::vector<std::string> CommandLine(const TelarCall& call) {
  std::vector<std::string> words = {"env", "--default-signal=INT,PIPE", "-C", call.folder};
  for (const char* name :
       {"TELARIUM_CARTELLA", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "HOME", "TMPDIR"})
    words.push_back(std::string("-u") + name);
  words.insert(words.end(), call.environment.begin(), call.environment.end());
  words.push_back(TELAR_PROGRAM);
  words.insert(words.end(), call.arguments.begin(), call.arguments.end());
  return words;
}

void Connect(posix_spawn_file_actions_t& actions, int stream, int with, const Percorso& file) {
  ::posix_spawn_file_actions_addopen(&actions, stream, file.c_str(), O_WRONLY | O_CREAT, 0600);
  if (with >= 0) ::posix_spawn_file_actions_adddup2(&actions, with, stream);
  if (with == TelarCall::Closed) ::posix_spawn_file_actions_addclose(&actions, stream);
}

std::string Contents(const Percorso& path) {
  std::string contents;
  EXPECT_EQ(LeggiFile(path, 64u << 20, contents), EsitoLettura::Letto) << path;
  return contents;
}

}  // namespace

TelarProcess::TelarProcess(const TelarCall& call) {
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  Connect(actions, STDOUT_FILENO, call.output, outputs_.Nome() / "out");
  Connect(actions, STDERR_FILENO, call.errors, outputs_.Nome() / "err");
  std::vector<std::string> words = CommandLine(call);
  std::vector<char*> pointers;
  for (std::string& word : words)
    pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const int error = ::posix_spawnp(&pid_, "env", &actions, nullptr, pointers.data(), ::environ);
  ::posix_spawn_file_actions_destroy(&actions);
  if (error != 0) throw std::system_error(error, std::generic_category(), "env");
  handle_ = Descrittore(static_cast<int>(::syscall(SYS_pidfd_open, pid_, 0)));
}

TelarProcess::~TelarProcess() {
  if (pid_ < 0) return;
  Send(SIGKILL);
  ::waitpid(pid_, nullptr, 0);
}

bool TelarProcess::CatchesInterrupt() const {
  const std::string status = Contents("/proc/" + std::to_string(pid_) + "/status");
  const std::size_t caught = status.find("SigCgt:");
  if (caught == status.npos) return false;
  return (std::stoull(status.substr(caught + 7), nullptr, 16) >> (SIGINT - 1) & 1) != 0;
}

void TelarProcess::Interrupt() {
  Send(SIGINT);
}

void TelarProcess::Kill() {
  Send(SIGKILL);
}

void TelarProcess::Send(int signal) {
  ASSERT_GT(pid_, 0);  // any other number would mean a whole group of processes
  EXPECT_EQ(::kill(pid_, signal), 0);
}

bool TelarProcess::Ended(int milliseconds) const {
  pollfd end = {handle_.Numero(), POLLIN, 0};
  return ::poll(&end, 1, milliseconds) != 0;
}

void TelarProcess::WaitUntil(const std::function<bool()>& condition) {
  const auto late = std::chrono::steady_clock::now() + TimeLimit;
  while (!condition()) {
    ASSERT_FALSE(Ended(1)) << "telar ended too early\n" << Contents(outputs_.Nome() / "err");
    ASSERT_LT(std::chrono::steady_clock::now(), late) << "what telar should do did not come";
  }
}

TelarResult TelarProcess::WaitForEnd() {
  if (!Ended(TimeLimit.count())) {
    ADD_FAILURE() << "telar did not end and is killed";
    Send(SIGKILL);
  }
  int status = 0;
  EXPECT_EQ(::waitpid(pid_, &status, 0), pid_);
  pid_ = -1;
  return {.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status),
          .out = Contents(outputs_.Nome() / "out"),
          .err = Contents(outputs_.Nome() / "err")};
}

}  // namespace telarium
