#include <chrono>
#include <ostream>
#include <thread>

#include <gtest/gtest.h>

#include "composer/second_search.h"

namespace telarium {
namespace {

struct HardCase {
  const char* name;
  CaseShape shape;
  std::uint64_t seed;
};

// Hard enough that all lanes take part, whatever they come to.
constexpr std::int64_t Steps = TELARIUM_SLOW_TESTS ? 4'000 : 20'000;
const HardCase HardCases[] = {
    {"OpenSquareThatFills", {6, 6, 0, 6, 1.5, false}, 2},
    {"OpenSquare", {6, 6, 0, 6, 1.5, false}, 5},
    {"Impossible", {8, 8, 12, 6, 1.5, false}, 0},
    {"ImpossibleByMoreWords", {8, 8, 12, 6, 2, false}, 0},
    {"BeyondReach", {8, 8, 0, 6, 1.5, false}, 0},
};
// In the names of the tests.
void PrintTo(const HardCase& one, std::ostream* out) {
  *out << one.name;
}

SmallCase Draw(const HardCase& one) {
  std::mt19937_64 chance(one.seed);
  return DrawCase(one.shape, chance);
}

class HardProblems : public ::testing::TestWithParam<HardCase> {};
INSTANTIATE_TEST_SUITE_P(Composer, HardProblems, ::testing::ValuesIn(HardCases),
                         [](const auto& info) { return std::string(info.param.name); });

// A fill, or what was met without one.
void ExpectSound(const SmallCase& hard, const Riempimento& answer) {
  EXPECT_EQ(FaultsOf(hard, hard.problem, answer.lettere, answer.esito != Esito::Riempito),
            std::vector<std::string>());
}

void ExpectSame(const Riempimento& one, const Riempimento& other) {
  EXPECT_EQ(one.esito, other.esito);
  EXPECT_EQ(one.lettere, other.lettere);
  EXPECT_EQ(one.passi, other.passi);
  EXPECT_EQ(one.pesi, other.pesi);
}

TEST_P(HardProblems, HaveTheSameAnswerWithAnyWorkersAndAgain) {
  const SmallCase hard = Draw(GetParam());
  const Riempimento alone = Componi(hard.problem, {.seme = 7, .passi = Steps});
  ExpectSound(hard, alone);
  for (const int workers : {1, 2, 3}) {
    SCOPED_TRACE(workers);
    ExpectSame(Componi(hard.problem, {.seme = 7, .passi = Steps, .lavoratori = workers}), alone);
  }
}

TEST_P(HardProblems, StopAtTheirLimitOfSteps) {
  const SmallCase hard = Draw(GetParam());
  for (const std::int64_t steps : {0, 1, 2, 40}) {
    SCOPED_TRACE(steps);
    const Riempimento answer = Componi(hard.problem, {.passi = steps, .lavoratori = 2});
    // Of all lanes; each may go past it by the conflicts of one decision.
    EXPECT_LE(answer.passi, steps + 2 * 4);
    ExpectSound(hard, answer);
  }
}

TEST(ComposerStop, EndsASearchBeforeItBeginsAndWhileItGoesOn) {
  const SmallCase hard = Draw(HardCases[4]);
  for (const int milliseconds : {0, 1, 5, 40}) {
    for (const int workers : {1, 2}) {
      std::stop_source stop;
      std::jthread other([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        stop.request_stop();
      });
      if (milliseconds == 0) other.join();
      const Riempimento answer =
          Componi(hard.problem, {.lavoratori = workers, .ferma = stop.get_token()});
      EXPECT_EQ(answer.esito, Esito::Tempo);
      ExpectSound(hard, answer);
    }
  }
}

TEST(ComposerStop, ComesBeforeAnyProof) {
  Problema none;
  none.vocabolario = std::make_shared<const Vocabolario>();
  none.slot = {{{0, 1}}};
  none.lettere.assign(2, TutteLeLettere);
  EXPECT_EQ(Componi(none, {.passi = 0}).esito, Esito::Impossibile);
  std::stop_source stop;
  stop.request_stop();
  EXPECT_EQ(Componi(none, {.ferma = stop.get_token()}).esito, Esito::Tempo);
}

// Many grids are filled at once in one process.
TEST(ComposerThreads, ShareAVocabulary) {
  const SmallCase small = Draw(HardCases[0]);
  std::vector<Riempimento> answers(3);
  {
    std::vector<std::jthread> threads;
    for (Riempimento& answer : answers)
      threads.emplace_back([&] { answer = Componi(small.problem, {.seme = 7, .passi = Steps}); });
  }
  ExpectSame(answers[0], answers[1]);
  ExpectSame(answers[0], answers[2]);
}

}  // namespace
}  // namespace telarium
