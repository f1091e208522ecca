#include "fuzz/fuzz_target.h"
#include "lexicon/list_import.h"
#include "lexicon/own_words.h"
#include "platform/check.h"

using namespace telarium;

namespace {

// Each different word is found under its own number, with a score of our scale.
void CheckLayer(const ElencoParole& list) {
  const StratoElenco layer("list", list);
  std::size_t words = 0;
  for (int length = MinLunghezzaVoce; length <= MaxLunghezzaVoce; ++length) {
    for (int i = 0; i < layer.Conta(length); ++i, ++words) {
      const NumeroVoce number = layer.Prima(length) + static_cast<NumeroVoce>(i);
      const int score = layer.Punteggio(number);
      Verifica(layer.Cerca(layer.Parola(number)) == number, "not found");
      Verifica(score >= 0 && score <= MaxPunteggio, "a score of no scale");
      Verifica(i == 0 || layer.Punteggio(number - 1) >= score, "not by score");
    }
  }
  Verifica(words == list.Quante(), "not all words");
}

// The user's own list keeps every byte, and what is set in it is read again.
void CheckOwnWords(std::string_view text) {
  ParoleMie own = ParoleMie::Interpreta(text);
  Verifica(own.Testo() == text, "not kept");
  own.Imposta("parola", 7);
  const ElencoParole list = ParoleMie::Interpreta(own.Testo()).Elenco();
  const auto number = list.Cerca("PAROLA");
  Verifica(number && list[*number].punteggio == 7, "not set");
  own.Togli("PAROLA");
  Verifica(!ParoleMie::Interpreta(own.Testo()).Elenco().Cerca("PAROLA"), "not taken out");
}

}  // namespace

// A list of another program is imported, and read as the user's own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = TextOf(data, size);
  std::string cause;
  for (const auto reading : {LetturaPunteggi::Riconosci, LetturaPunteggi::ComeSono}) {
    const auto list = InterpretaElenco(text, reading, cause);
    Verifica(list || !cause.empty(), "refused without a cause");
    if (!list) continue;
    const ResocontoElenco& report = list->resoconto;
    Verifica(report.righe ==
                 report.doppie + report.scartate + static_cast<std::int64_t>(list->parole.Quante()),
             "lines without an account");
    Verifica(!TestoResoconto(*list).empty(), "no report");
    CheckLayer(list->parole);
  }
  CheckOwnWords(text);
  return 0;
}
