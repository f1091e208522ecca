#include "auxiliary/addresses.h"
#include "crossworddialogs/new_crossword.h"
#include "editor/cell_drawing.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "fuzz/fuzz_target.h"
#include "output/printing.h"
#include "platform/check.h"
#include "support/recording_window.h"

using namespace telarium;

namespace {

// The settings as their file holds them.
std::string Written() {
  std::string bytes;
  ScriviImpostazioni();
  Verifica(LeggiFile(CartellaProgramma / "telarium.INI", 1000, bytes) == EsitoLettura::Letto,
           "not there");
  return bytes;
}

void TrySettings(std::string_view input) {
  if (ScriviFile(CartellaProgramma / "telarium.INI", input, Permanenza::Provvisoria)) return;
  Verifica(LeggiImpostazioni() == EsitoImpostazioni::Lette, "not read");
  for (const Booleano16 flag : {RettangoloParola, TastoSin})
    Verifica(flag == Vero || flag == Falso, "neither true nor false");
  const std::string first = Written();
  ImpostazioniIniziali();
  Verifica(LeggiImpostazioni() == EsitoImpostazioni::Lette && Written() == first,
           "what was written reads as something else");
}

// No letter or number is larger than its cell, but for the least sizes, and no square larger.
void TrySizes() {
  for (const double side : {6.0, 21.0, 48.5}) {
    Verifica(CorpoLettere(side, 6) >= 6 && CorpoLettere(side, 6) <= side, "size of the letters");
    Verifica(CorpoLettereIntero(side) >= 5 && CorpoLettereIntero(side) <= side + 1, "whole size");
    Verifica(CorpoNumeri(side) >= 0 && CorpoNumeri(side) <= side, "size of the numbers");
    Verifica(RientroCasellaNera(side) > 0 && 2 * RientroCasellaNera(side) <= side, "inside out");
  }
}

// A crossword shows and prints whatever the settings, in no more calls than the window has rows
// or columns of pixels beside what the cells need.
void TryDrawing(QuietPlatform& platform) {
  static RecordingWindow window;
  platform.hasWindow = true;
  platform.window.calls.clear();
  Verifica(NuovoVuoto(4, 3) == EsitoNuovo::Fatto, "no crossword");
  SetCell(1, 1, 'A');
  SetCell(2, 1, CellaNera);
  RidisegnaSchema();
  Verifica(platform.window.calls.size() < 1100, "too much was drawn");
  StampaSchema();
  Verifica(!platform.printer.printed.empty(), "nothing was printed");
}

void TryAddresses(std::string_view input) {
  if (ScriviFile(CartellaProgramma / "indirizzi.txt", input, Permanenza::Provvisoria)) return;
  LeggiIndirizzi();
  constexpr std::string_view ends = " \t";
  for (int i = 0; i <= static_cast<int>(Indirizzo::ScaricoAccessoDati); ++i) {
    const std::string& value = ValoreIndirizzo(static_cast<Indirizzo>(i));
    Verifica(value.find_first_of("\r\n") == value.npos, "an address is one line");
    Verifica(value.empty() ||
                 (ends.find(value.front()) == ends.npos && ends.find(value.back()) == ends.npos),
             "blanks round an address");
    Verifica(value.empty() || ConSchema(value).find("://") != value.npos, "no scheme");
  }
}

}  // namespace

// The input is both of the files that say how the program is set up.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  QuietPlatform& platform = StartFresh();
  const std::string_view input = TextOf(data, size);
  TryAddresses(input);
  TrySettings(input);
  TrySizes();
  if (OneIn(4, input)) TryDrawing(platform);
  return 0;
}
