#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include <benchmark/benchmark.h>

#include "crossworddialogs/new_crossword.h"
#include "crossworddialogs/windows/Form2.h"
#include "editor/settings.h"
#include "median_keeper.h"
#include "model/crossword_file.h"
#include "model/words.h"
#include "offscreen_main.h"
#include "platform/temporary.h"
#include "support/crossword_state.h"
#include "support/scripted_platform.h"

// Measures the window that opens a crossword on a folder with many files, on a screen that nobody
// sees.
namespace telarium {
namespace {

constexpr int Files = 2000;

// The archive of a program folder with that many grids of the largest size, each cell filled.
void FillArchive(const Percorso& folder) {
  CartellaProgramma = folder;
  if (NuovoVuoto(MaxColonne, MaxRighe) != EsitoNuovo::Fatto) abort();
  SetCells([](int c, int) { return c % 5 ? static_cast<char>('A' + c % 21) : CellaNera; });
  const Percorso archive = folder / "Archivio cruciverba";
  std::filesystem::create_directory(archive);
  const Percorso first = archive / "0.tlrm";
  if (!ScriviCruciverba(first)) abort();
  for (int n = 1; n < Files; ++n)
    std::filesystem::copy_file(first, archive / (std::to_string(n) + ".tlrm"));
}

void BM_Open(benchmark::State& state) {
  for (auto _ : state) {
    Form2 window(nullptr);
    ShowPainted(window);
    if (window.File1->count() != Files) abort();
  }
}

void BM_Preview(benchmark::State& state) {
  Form2 window(nullptr);
  ShowPainted(window);
  int row = 0;
  for (auto _ : state) {
    window.File1->setCurrentRow(++row % Files);
    benchmark::DoNotOptimize(window.Picture1->Superficie().Immagine());
  }
}

int Main() {
  const CartellaTemporanea temporary;
  ScriptedPlatform platform;
  ImpostaPiattaforma(&platform);
  ImpostazioniIniziali();
  FillArchive(temporary.Nome());
  Register("open", BM_Open);
  Register("preview", BM_Preview);
  MedianKeeper reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::printf("\n| | Telarium, ms | wanted |\n|---|---|---|\n");
  std::printf(
      "| the open window on a folder of %d crosswords, with its list | %.1f | under 300 |\n", Files,
      reporter.medians["open"]);
  std::printf("| a preview of a full 53x30 | %.2f | under 30 |\n", reporter.medians["preview"]);
  return 0;
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  return telarium::RunOffscreen(argc, argv, telarium::Main);
}
