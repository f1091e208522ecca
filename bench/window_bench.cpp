#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <cstdio>
#include <cstdlib>

#include <benchmark/benchmark.h>

#include "crossworddialogs/new_crossword.h"
#include "editor/cell_editing.h"
#include "editor/commit.h"
#include "editor/history_commands.h"
#include "editor/redraw.h"
#include "editor/startup.h"
#include "editor/windows/Form1.h"
#include "median_keeper.h"
#include "model/documento.h"
#include "model/words.h"
#include "offscreen_main.h"
#include "platform/temporary.h"
#include "support/crossword_state.h"
#include "support/scripted_platform.h"

// Measures what the main window paints, on a screen that nobody sees: a redraw, a repaint, and what
// the painting adds to a fill.
namespace telarium {
namespace {

constexpr int ModelNumber = 4;  // the first 13x13 grid of STANDARD.dfc, counted from 0
constexpr int Attempts = 300;   // of the endless run, to an iteration
constexpr int ColouredCells = 400;

// A 53x30 grid with 400 coloured black cells and a letter in each other one.
void FullGrid() {
  NuovoVuoto(MaxColonne, MaxRighe);
  int black = 0;
  Change([&](Cruciverba& crossword) {
    for (int r = 1; r <= MaxRighe; ++r) {
      for (int c = 1; c <= MaxColonne; ++c) {
        const bool coloured = (c + 2 * r) % 4 == 3 && black < ColouredCells;
        ScriviCarattere(crossword, {c, r}, coloured ? CellaNera : static_cast<char>('A' + c % 21));
        crossword.colori.Imposta(coloured ? ++black * 7919 + 1 : ColoreNero, c, r);
      }
    }
  });
  if (black != ColouredCells) abort();
  ConsolidaSchema();
}

void BM_Redraw(benchmark::State& state, Form1& form) {
  FullGrid();
  for (auto _ : state) {
    RidisegnaSchema();
    benchmark::DoNotOptimize(form.Area->Superficie().Immagine());
  }
}

void BM_Repaint(benchmark::State& state, Form1& form) {
  FullGrid();
  SuperficieQt& surface = form.Area->Superficie();
  QImage screen(surface.Immagine().size(), QImage::Format_RGB32);
  for (auto _ : state) {
    QPainter painter(&screen);
    surface.Copia(painter);
  }
}

// A cell turns black, and white again at the next click: from the press of the mouse to the picture
// on the screen.
void BM_Click(benchmark::State& state, Form1& form) {
  FullGrid();
  AttivaCasellaNera();
  const QPointF cell(GeometriaDelloSchema().BordoSinistro(1) + LatoCasella / 2.0,
                     GeometriaDelloSchema().BordoAlto(1) + LatoCasella / 2.0);
  const bool black = LetteraCasella(1, 1) == CellaNera;
  Qt::MouseButton button = black ? Qt::RightButton : Qt::LeftButton;
  for (auto _ : state) {
    QMouseEvent press(QEvent::MouseButtonPress, cell, form.Area->mapToGlobal(cell), button, button,
                      Qt::NoModifier);
    QApplication::sendEvent(form.Area, &press);
    QApplication::processEvents();
    benchmark::DoNotOptimize(form.Area->Superficie().Immagine());
    // Each click changes the tool too, so that the other button undoes it.
    button = Qt::RightButton;
  }
}

// A whole fill of the largest grid taken back and brought again, each with its redraw.
void BM_UndoAndRedo(benchmark::State& state, Form1& form) {
  FullGrid();
  SetCells([](int c, int r) { return static_cast<char>('A' + (c * r) % 21); });
  for (auto _ : state) {
    AnnullaModifica();
    RipetiModifica();
    benchmark::DoNotOptimize(form.Area->Superficie().Immagine());
  }
  if (CarattereDi(IlDocumento().Valore(), {1, 1}) != 'B') abort();
}

void OpenModelGrid() {
  if (NuovoDaModello(CartellaProgramma / NomeModelliIniziale, ModelNumber) != EsitoNuovo::Fatto) {
    abort();
  }
  Change([](Cruciverba& crossword) { crossword.colori = Cruciverba().colori; });
  RiprendiSchema();
}

// The endless run on the model grid for some attempts; without a window nothing is painted.
void BM_Attempts(benchmark::State& state, ScriptedPlatform& platform, Form1& form, bool window) {
  OpenModelGrid();
  platform.hasWindow = window;
  std::int64_t attempts = 0;
  ComandoEstrazione fill([&](const AvanzamentoEstrazione& progress) {
    attempts = progress.tentativo;
    return attempts <= Attempts && (!window || form.SeguiEstrazione(progress));
  });
  fill.ProvaInfinita = Vero;
  for (auto _ : state) {
    platform.machine.random = SorgenteCasuale(1);
    platform.user.Answer(Risposta::Ok);
    fill.EstraiSchema();
    if (attempts <= Attempts) abort();
    platform.user.TakeMessages();
  }
  platform.hasWindow = true;
}

void PrintTable(std::map<std::string, double>& medians) {
  const double hidden = medians["attempts/hidden"] / Attempts;
  const double shown = medians["attempts/shown"] / Attempts;
  std::printf("\n| | Telarium, ms | wanted |\n|---|---|---|\n");
  std::printf("| redraw of a full 53x30 with %d coloured cells at 1920x1080 | %.2f | under 16 |\n",
              ColouredCells, medians["redraw"]);
  std::printf("| repaint of it | %.2f | under 2 |\n", medians["repaint"]);
  std::printf("| click to screen, a cell of it turns black or white | %.2f | under 30 |\n",
              medians["click"]);
  std::printf("| undo or redo of a whole fill of it, with the redraw | %.2f | under 16 |\n",
              medians["undo"] / 2);
  std::printf("| an attempt of the endless run, 13x13: searching | %.2f | |\n", hidden);
  std::printf("| what its painting adds | %.2f | less than the searching |\n", shown - hidden);
}

int Main() {
  const CartellaTemporanea temporary;
  ScriptedPlatform platform;
  ImpostaPiattaforma(&platform);
  CaricaProgramma(TELARIUM_DATA_DIR);
  CartellaIstantanea = temporary.Nome();
  Cronologia history(IlDocumento(), temporary.Nome() / "passi", [] {
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  });
  ImpostaCronologia(&history);
  Form1 form;
  platform.surface = &form.Area->Superficie();
  platform.hasWindow = true;
  form.Mostra();
  form.showNormal();
  form.resize(1920, 1080);
  QApplication::processEvents();
  if (form.size() != QSize(1920, 1080)) abort();

  Register("redraw", [&](benchmark::State& state) { BM_Redraw(state, form); });
  Register("repaint", [&](benchmark::State& state) { BM_Repaint(state, form); });
  Register("click", [&](benchmark::State& state) { BM_Click(state, form); });
  Register("undo", [&](benchmark::State& state) { BM_UndoAndRedo(state, form); });
  Register("attempts/hidden",
           [&](benchmark::State& state) { BM_Attempts(state, platform, form, false); });
  Register("attempts/shown",
           [&](benchmark::State& state) { BM_Attempts(state, platform, form, true); });
  MedianKeeper reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  PrintTable(reporter.medians);
  return 0;
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  return telarium::RunOffscreen(argc, argv, telarium::Main);
}
