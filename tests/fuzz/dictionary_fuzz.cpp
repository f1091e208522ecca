#include "crossworddialogs/new_crossword.h"
#include "dictionary/masked_search.h"
#include "fill/extraction.h"
#include "fill/word_choice.h"
#include "fuzz/fuzz_target.h"
#include "model/crossword_file.h"
#include "model/words.h"
#include "platform/check.h"

using namespace telarium;

namespace {

void TrySection(int length, std::size_t fileSize) {
  const auto bytes = static_cast<std::size_t>(length);
  const std::string allFree(bytes, ' ');
  std::string first, last;
  const int found = CercaParole(allFree, [&](std::string_view word) {
                      if (first.empty()) first = word;
                      last = word;
                    }).trovate;
  Verifica(static_cast<std::size_t>(found) * bytes <= fileSize, "more words than the file holds");
  for (const int number : {-32768, -1, 0, 1, found, 32767}) {
    const std::string word = LeggiParola(static_cast<std::int16_t>(number), length);
    Verifica(word.size() == bytes, "a word of another length");
    if (number == found && found > 0) Verifica(word == last, "another word than the scan's");
  }
  Verifica(CercaCandidati(allFree) && NumCandidati <= found, "too many candidates");
  if (found == 0) return;
  Verifica(CercaCandidati(first) && NumCandidati > 0 && Candidati(1) == 1,
           "a word is no candidate");
  Verifica(EstraiParola(length).size() == bytes, "a drawn word of another length");
  Verifica(ParolaEsiste(last) != Falso, "a word does not exist");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartFresh();
  const std::string_view input = TextOf(data, size);
  if (ScriviFile(CartellaProgramma / NomeDizionario, input, Permanenza::Provvisoria)) return 0;
  Verifica(ApriDizionario(), "not opened");
  for (int length = MinLunghezza; length <= MaxLunghezza; ++length) {
    TrySection(length, size);
  }
  if (OneIn(16, input) && NuovoVuoto(7, 5) == EsitoNuovo::Fatto) {
    RicalcolaCaselle();
    EseguiEstrazione();
    Verifica(!ScriviIstantanea() || LeggiIstantanea(), "a filled crossword cannot be read");
  }
  return 0;
}
