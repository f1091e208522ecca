#include "crossworddialogs/new_crossword.h"
#include "dictionary/dictionary.h"
#include "dictionary/masked_search.h"
#include "editor/fill_command.h"
#include "fill/word_choice.h"
#include "fuzz/fuzz_target.h"
#include "model/crossword_file.h"
#include "model/words.h"
#include "platform/check.h"

using namespace telarium;

namespace {

void TrySection(const Dizionario& dictionary, int length, std::size_t fileSize) {
  const auto bytes = static_cast<std::size_t>(length);
  const std::string allFree(bytes, ' ');
  std::string first, last;
  const int found = CercaParole(dictionary, allFree, [&](std::string_view word) {
                      if (first.empty()) first = word;
                      last = word;
                    }).trovate;
  Verifica(static_cast<std::size_t>(found) * bytes <= fileSize, "more words than the file holds");
  for (const int number : {-32768, -1, 0, 1, found, 32767}) {
    const std::string word = dictionary.LeggiParola(static_cast<std::int16_t>(number), length);
    Verifica(word.size() == bytes, "a word of another length");
    if (number == found && found > 0) Verifica(word == last, "another word than the scan's");
  }
  SceltaDiParole choice(dictionary, [] { return Sistema().Casuale(); });
  Verifica(choice.CercaCandidati(allFree) && choice.NumCandidati() <= found, "too many candidates");
  if (found == 0) return;
  Verifica(choice.CercaCandidati(first) && choice.NumCandidati() > 0 && choice.Candidati(1) == 1,
           "a word is no candidate");
  Verifica(choice.EstraiParola(length).size() == bytes, "a drawn word of another length");
  Verifica(choice.ParolaEsiste(last) != Falso, "a word does not exist");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartFresh();
  Dizionario& dictionary = IlDizionario();
  const std::string_view input = TextOf(data, size);
  if (ScriviFile(dictionary.PercorsoDizionario(), input, Permanenza::Provvisoria)) return 0;
  Verifica(ApriDizionario(dictionary), "not opened");
  for (int length = MinLunghezza; length <= MaxLunghezza; ++length) {
    TrySection(dictionary, length, size);
  }
  if (OneIn(16, input) && NuovoVuoto(7, 5) == EsitoNuovo::Fatto) {
    ComandoEstrazione().EseguiEstrazione();
    Verifica(!ScriviIstantanea() || ApriCruciverba(PercorsoIstantanea()) == Apertura::Intera,
             "a filled crossword cannot be read");
  }
  return 0;
}
