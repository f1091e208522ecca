#include "fuzz/fuzz_target.h"
#include "model/crossword_file.h"
#include "model/words.h"
#include "platform/check.h"

using namespace telarium;

namespace {

// The crossword as its file holds it; empty when it has a character that no file can hold.
std::string Written() {
  std::string bytes;
  if (!ScriviIstantanea()) return bytes;
  Verifica(LeggiFile(PercorsoIstantanea(), MaxByteCruciverba, bytes) == EsitoLettura::Letto,
           "not there");
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartFresh();
  const std::string_view input = TextOf(data, size);
  const bool read = InterpretaCruciverba(input);
  RicalcolaCaselle();
  if (NumColonne == 0) return 0;
  for (const char cell : {CellaNera, 'A', CellaVuota}) {
    ScriviInSchema({NumColonne, NumRighe}, cell);
    ScriviInSchema({1, NumRighe}, cell);
    RicalcolaCaselle();
  }
  if (!read || !OneIn(8, input)) return 0;
  // What is written reads as the same.
  const std::string first = Written();
  if (first.empty()) return 0;
  Verifica(ApriCruciverba(PercorsoIstantanea()) == Apertura::Intera,
           "what was written cannot be read");
  RicalcolaCaselle();
  Verifica(Written() == first, "the second file differs from the first");
  return 0;
}
