#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/resource.h>
#include <vector>

#include <benchmark/benchmark.h>

#include "clues/coverage.h"
#include "clues/coverage_reader.h"
#include "clues/encyclopedia.h"
#include "clues/sqlite_database.h"
#include "median_keeper.h"
#include "platform/temporary.h"
#include "process_cost.h"

// Measures how soon it is known which words have clues, on the real encyclopedia: from the side
// index, from the store when it has changed, and by a plain read of it.
namespace telarium {
namespace {

FontiCopertura sources;
std::vector<std::string> asked;  // words of the store and as many that it lacks, mixed

void Expect(bool condition) {
  if (!condition) abort();
}

std::shared_ptr<const Copertura> Open() {
  std::string cause;
  auto coverage = CoperturaDa(sources, cause);
  Expect(coverage && cause.empty());
  return coverage;
}

void BM_Fresh(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(Open()->Parole());
}

void BM_Changed(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    BaseDati(sources.enciclopedia)
        .Esegui("UPDATE Parole SET DEFINIZ_FACILE = DEFINIZ_FACILE || ' ' WHERE rowid = 1");
    state.ResumeTiming();
    benchmark::DoNotOptimize(Open()->Parole());
  }
}

void BM_PlainRead(benchmark::State& state) {
  for (auto _ : state) {
    BaseDati store(sources.enciclopedia);
    Istruzione rows(store, "SELECT PAROLA, DEFINIZ_FACILE, DEFINIZ_DIFFIC FROM Parole");
    std::size_t bytes = 0;
    while (rows.Passo())
      for (const int column : {0, 1, 2})
        bytes += rows.VistaUtf8(column).value_or("").size();
    benchmark::DoNotOptimize(bytes);
  }
}

void BM_Lookups(benchmark::State& state) {
  const auto coverage = Open();
  for (auto _ : state) {
    benchmark::DoNotOptimize(coverage->Insieme(
        asked.size(), [](std::size_t i) { return std::string_view(asked[i]); },
        QualiDefinizioni::Tutte));
  }
}

void BM_EachWord(benchmark::State& state) {
  const auto coverage = Open();
  for (auto _ : state) {
    int clues = 0;
    coverage->PerOgniParola([&](std::string_view, ConteggioDefinizioni count) {
      clues += count.Di(QualiDefinizioni::Tutte);
    });
    benchmark::DoNotOptimize(clues);
  }
}

void FillAsked() {
  Open()->PerOgniParola([](std::string_view word, ConteggioDefinizioni) {
    asked.emplace_back(word);
    asked.push_back(std::string(word) + "Q");
  });
  std::uint64_t chance = 1;
  for (std::size_t i = asked.size(); i > 1; --i) {
    chance = chance * 6364136223846793005 + 1442695040888963407;
    std::swap(asked[i - 1], asked[(chance >> 33) % i]);
  }
}

constexpr const char* Lookup = "--one-lookup";
constexpr const char* Nothing = "--nothing";

// A process that looks one word up, from an index that is there.
int LookOneWordUp(const char* store, const char* cache) {
  sources = {.enciclopedia = store, .corredo = {}, .cache = cache};
  return Open()->Di("CASA").Alcuna() ? 0 : 1;
}

int Main(const char* program) {
  const CartellaTemporanea folder;
  sources = {.enciclopedia = folder.Nome() / NomeEnciclopedia,
             .corredo = {},
             .cache = folder.Nome() / "cache"};
  std::filesystem::copy_file(Percorso(TELARIUM_DATA_DIR) / NomeEnciclopedia, sources.enciclopedia);
  // Before this process grows: see MeasureProcess.
  const std::vector<std::string> lookup = {program, Lookup, sources.enciclopedia, sources.cache};
  const double nothing = MeasureProcess({program, Nothing}, 3).peakMebibytes;
  const double making = MeasureProcess(lookup, 1).peakMebibytes - nothing;
  const double looking = MeasureProcess(lookup, 3).peakMebibytes - nothing;
  FillAsked();
  std::uintmax_t bytes = 0;
  for (const auto& file : std::filesystem::directory_iterator(sources.cache))
    bytes += file.file_size();

  Register("fresh", BM_Fresh);
  Register("changed", BM_Changed);
  Register("plain_read", BM_PlainRead);
  Register("lookups", BM_Lookups);
  Register("each_word", BM_EachWord);
  MedianKeeper reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  auto& ms = reporter.medians;
  std::printf("\n| %d words | Telarium | wanted |\n|---|---|---|\n", Open()->Parole());
  std::printf("| known from a fresh index | %.2f ms | under 5 |\n", ms["fresh"]);
  std::printf("| index made anew after a write | %.0f ms | under 1000 |\n", ms["changed"]);
  std::printf("| a plain read of all texts | %.0f ms | |\n", ms["plain_read"]);
  std::printf("| %zu words looked up, half of them missing | %.1f ms | under 60 |\n", asked.size(),
              ms["lookups"]);
  std::printf("| all words gone through | %.2f ms | |\n", ms["each_word"]);
  std::printf("| memory of a process that looks one up | %.1f MiB more | |\n", looking);
  std::printf("| the same when it makes the index | %.1f MiB more | |\n", making);
  std::printf("| the index | %.1f MiB | |\n", static_cast<double>(bytes) / (1 << 20));
  return 0;
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  const std::string_view option = argc > 1 ? argv[1] : "";
  if (option == telarium::Nothing) return 0;
  if (option == telarium::Lookup && argc == 4) return telarium::LookOneWordUp(argv[2], argv[3]);
  benchmark::Initialize(&argc, argv);
  return telarium::Main(argv[0]);
}
