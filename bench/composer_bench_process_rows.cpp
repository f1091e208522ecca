#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "composer_bench_grids.h"
#include "composer_bench_rows.h"
#include "model/crossword_writer.h"
#include "platform/temporary.h"
#include "process_cost.h"
#include "support/drawn_crossword.h"

// The console's command as a process.
namespace telarium {
namespace {

Figures MeasureProcesses(const Seeds& seeds) {
  const CartellaTemporanea folder;
  ::setenv("XDG_CACHE_HOME", folder.Nome().c_str(), 1);
  const Percorso grid = folder.Nome() / "grid.tlrm";
  std::ofstream(grid, std::ios::binary)
      << ContenutoDelFile(DrawnCrossword(PatternNamed("model6"))).value();
  const auto compose = [&](std::uint64_t seed) {
    return MeasureProcess(
        {TELAR_PROGRAM, "--cartella", TELARIUM_DATA_DIR, "componi", grid.string(),
         (folder.Nome() / "out.tlrm").string(), "--ottimizza", "0", "--seme", std::to_string(seed)},
        1);
  };
  compose(1);  // makes the index of the words that have clues
  Times times;
  double mebibytes = 0;
  ForEachSeed(seeds, [&](std::uint64_t seed) {
    const ProcessCost cost = compose(seed);
    Demand(cost.succeeded, "telar componi failed");
    times.Add(cost.milliseconds);
    mebibytes = std::max(mebibytes, cost.peakMebibytes);
  });
  return {Spread({times}) + " ms, " + Told(mebibytes) + " MiB", ""};
}

}  // namespace

std::vector<Row> ProcessRows() {
  return {{14, "`telar componi` of a 13x13, whole process, `--ottimizza 0`, fresh side index",
           "under 40 ms, 64 MiB resident", MeasureProcesses, true}};
}

}  // namespace telarium
