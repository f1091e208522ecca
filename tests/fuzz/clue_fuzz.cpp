#include "clues/clue_family.h"
#include "clues/encyclopedia.h"
#include "clues/encyclopedia_writer.h"
#include "clues/import.h"
#include "fuzz/fuzz_target.h"
#include "platform/check.h"
#include "platform/codepage.h"

using namespace telarium;

namespace {

// A family splits into parts that make it up again.
void TryFamily(std::string_view input) {
  std::string joined;
  for (const std::string_view part : PartiDellaFamiglia(input)) {
    if (part.data() != input.data()) joined += SeparatoreDefinizioni;
    joined += part;
  }
  Verifica(joined == input, "a family comes back changed");
  std::string text(input);
  spezzatesto(text);
  const auto clues = DefinizioniDellaFamiglia(input);
  Verifica(text == std::to_string(std::min<std::size_t>(clues.size(), MaxDefinizioni)), "count");
}

// A list becomes a store, which takes the input as a clue file twice, the second time for nothing.
void TryStore(std::string_view input) {
  std::vector<VoceDiLista> entries;
  AggiungiVoci(input, entries);
  for (const VoceDiLista& entry : entries)
    ContieneRisposta(entry.definizione, entry.parola);
  Verifica(ScriviEnciclopedia(std::move(entries)).errore.empty(), "no store");
  if (ScriviFile(CartellaProgramma / NomeFileDefinizioni, input, Permanenza::Provvisoria)) return;
  Verifica(ImportaDefinizioni().has_value(), "the import failed");
  const auto again = ImportaDefinizioni();
  Verifica(again && again->testo.find(" aggiunte 0 ") != std::string::npos &&
               again->testo.find(" aggiornate 0 ") != std::string::npos,
           "a second import changed the store");
  const auto keys = ApriEnciclopedia()->Chiavi();
  for (std::size_t i = 1; i < keys.size(); ++i)
    Verifica(AUtf8(keys[i - 1].parola) <= AUtf8(keys[i].parola), "rows out of order");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartFresh();
  const std::string_view input = TextOf(data, size);
  TryFamily(input);
  if (OneIn(8, input)) TryStore(input);
  return 0;
}
