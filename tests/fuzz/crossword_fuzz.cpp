#include "crossworddialogs/crossword_preview.h"
#include "editor/resizing.h"
#include "fuzz/fuzz_target.h"
#include "laboratory/checks.h"
#include "model/crossword_file.h"
#include "model/crossword_reader.h"
#include "model/crossword_writer.h"
#include "model/words.h"
#include "platform/check.h"

using namespace telarium;

namespace {

// Whatever was read can be written, and its file gives it back.
void ReadAndWrite(std::string_view input) {
  const Cruciverba read = LeggiContenuto(input).cruciverba;
  const auto written = ContenutoDelFile(read);
  Verifica(written.has_value(), "what was read cannot be written");
  if (read.colonne == 0) return;
  const LetturaDelFile again = LeggiContenuto(*written);
  Verifica(!again.guasto, "the writer's file has a fault");
  Verifica(again.cruciverba.laboratorio == read.laboratorio, "the laboratory kept something else");
  const auto second = ContenutoDelFile(again.cruciverba);
  Verifica(second == written, "the second file differs from the first");
  Verifica(LeggiContenuto(*second).cruciverba == again.cruciverba, "another value was read");
}

// Whatever was read can be checked; each finding lies in the grid, or in no place.
void Check(std::string_view input) {
  const Cruciverba read = LeggiContenuto(input).cruciverba;
  Criteri criteria;
  criteria.regole = *RegolamentoDiNome(RegolamentoIniziale);
  const Verdetto verdict = Controlla(read, criteria);
  for (const auto* findings : {&verdict.errori, &verdict.avvisi}) {
    for (const Rilievo& one : *findings) {
      Verifica(one.inizio == Casella{} || NelloSchema(read, one.inizio), "outside the grid");
      Verifica(!one.testo.empty(), "nothing is told");
    }
  }
}

// The crossword as its file holds it; empty when it has a character that no file can hold.
std::string Written() {
  std::string bytes;
  if (!ScriviIstantanea()) return bytes;
  Verifica(LeggiFile(PercorsoIstantanea(), MaxByteCruciverba, bytes) == EsitoLettura::Letto,
           "not there");
  return bytes;
}

// A preview stays on its surface and leaves the crossword alone.
void Preview(std::string_view input) {
  const Percorso file = CartellaProgramma / "fuzz.tlrm";
  if (ScriviFile(file, input, Permanenza::Provvisoria)) return;
  RecordingSurface surface;
  const std::string line = Schema(5);
  if (const auto preview = LeggiAnteprima(file)) DisegnaAnteprima(*preview, surface);
  Verifica(surface.calls.size() <= 3u + 4 * MaxColonne * MaxRighe, "more than a grid was drawn");
  Verifica(Schema(5) == line, "the preview changed the crossword");
}

// The grid grows and shrinks whatever the lengths of its lines.
void Resize() {
  const int cells = NumColonne * NumRighe;
  for (const auto operation : {AggiungiColonna, AggiungiRiga, TogliColonna, TogliRiga})
    operation();
  Verifica(NumColonne * NumRighe <= cells || NumColonne < 4 || NumRighe < 4, "it only grew");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartFresh();
  const std::string_view input = TextOf(data, size);
  const bool slow = OneIn(8, input);
  ReadAndWrite(input);
  const LetturaDelFile read = LeggiContenuto(input);
  Change([&](Cruciverba& crossword) { crossword = read.cruciverba; });
  if (slow) Preview(input);
  if (slow) Check(input);
  if (NumColonne == 0) return 0;
  for (const char cell : {CellaNera, 'A', CellaVuota}) {
    SetCell(NumColonne, NumRighe, cell);
    SetCell(1, NumRighe, cell);
  }
  if ((read.guasto && read.guasto->Grave()) || !slow) return 0;
  // What is written reads as the same.
  const std::string first = Written();
  if (first.empty()) return 0;
  Verifica(ApriCruciverba(PercorsoIstantanea()) == Apertura::Intera,
           "what was written cannot be read");
  Verifica(Written() == first, "the second file differs from the first");
  Resize();
  return 0;
}
