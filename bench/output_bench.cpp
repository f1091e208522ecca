#include <QApplication>
#include <QPrinter>
#include <cstdio>
#include <cstdlib>

#include <benchmark/benchmark.h>

#include "crossworddialogs/new_crossword.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "median_keeper.h"
#include "model/words.h"
#include "offscreen_main.h"
#include "output/interactive_page.h"
#include "output/output_file.h"
#include "output/printing.h"
#include "output/static_page.h"
#include "output/window_picture.h"
#include "platform/qt/qt_print_job.h"
#include "platform/qt/qt_surface.h"
#include "platform/qt/qt_text.h"
#include "platform/temporary.h"
#include "support/crossword_state.h"
#include "support/scripted_platform.h"

// Measures what the output commands make, files included, on a screen that nobody sees.
namespace telarium {
namespace {

constexpr int ClueLength = 60;

void Expect(bool condition) {
  if (!condition) abort();
}

// A printer whose user always chooses the same file.
class PdfPrinter : public ScriptedPrinter {
 public:
  std::unique_ptr<LavoroDiStampa> IniziaLavoro(const std::string&) override {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(PercorsoAQt(file));
    return std::make_unique<LavoroQt>(CartaPdf(printer),
                                      TipoIniziale{std::string(CarattereIniziale), false, false});
  }

  Percorso file;
};

class BenchPlatform : public ScriptedPlatform {
 public:
  PdfPrinter pdf;
  Stampante* LaStampante() override { return &pdf; }
};

// A grid with a letter in each white cell and a clue for each word.
void FullGrid(int columns, int rows) {
  Expect(NuovoVuoto(columns, rows) == EsitoNuovo::Fatto);
  SetCells(
      [](int c, int r) { return (c + r) % 6 == 0 ? CellaNera : static_cast<char>('A' + c % 21); });
  SetClues([](const Slot& slot) {
    const int number = NumeroCasella(slot.inizio.colonna, slot.inizio.riga);
    return std::string(ClueLength, static_cast<char>('a' + number % 26));
  });
  RidisegnaSchema();
}

void BM_StaticPage(benchmark::State& state) {
  FullGrid(MaxColonne, MaxRighe);
  for (auto _ : state)
    Expect(creadocHTML(PaginaPerIlBrowser));
}

void BM_InteractivePage(benchmark::State& state) {
  FullGrid(MaxColonne, MaxRighe);
  for (auto _ : state)
    Expect(ScriviUscita(FileDiUscita(NomePaginaInterattiva), PaginaInterattiva().value()));
}

void BM_Picture(benchmark::State& state) {
  FullGrid(MaxColonne, MaxRighe);
  for (auto _ : state)
    Expect(ScriviPicture(FileDiUscita("NONOME.BMP"), BitmapSuBianco(false)));
}

void BM_Pdf(benchmark::State& state) {
  FullGrid(15, 13);
  for (auto _ : state)
    StampaSchema();
}

int Main() {
  const CartellaTemporanea folder;
  BenchPlatform platform;
  SuperficieQt window;
  window.Ridimensiona({1920, 1080}, 1);
  platform.surface = &window;
  platform.hasWindow = true;
  platform.pdf.file = folder.Nome() / "sheet.pdf";
  ImpostaPiattaforma(&platform);
  ImpostazioniIniziali();
  CartellaProgramma = folder.Nome();
  Register("static page", BM_StaticPage);
  Register("interactive page", BM_InteractivePage);
  Register("picture", BM_Picture);
  Register("pdf", BM_Pdf);
  MedianKeeper reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const auto median = [&](const char* name) { return reporter.medians[name]; };
  std::printf("\n| | Telarium | wanted |\n|---|---|---|\n");
  std::printf("| the page to read of a full 53x30, clues of %d characters | %.1f ms | under 20 |\n",
              ClueLength, median("static page"));
  std::printf("| the page to solve of it | %.1f ms | under 20 |\n", median("interactive page"));
  std::printf("| the picture of a window of 1920x1080 | %.1f ms | under 200 |\n",
              median("picture"));
  std::printf("| the PDF of a 15x13 | %.1f ms | under 200 |\n", median("pdf"));
  std::printf("| its size | %.0f KB | under 200 |\n",
              static_cast<double>(std::filesystem::file_size(platform.pdf.file)) / 1000);
  return 0;
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  return telarium::RunOffscreen(argc, argv, telarium::Main);
}
