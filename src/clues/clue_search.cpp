#include "clues/clue_search.h"

#include <algorithm>

#include "clues/encyclopedia.h"
#include "clues/store_use.h"
#include "model/words.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

bool CarattereAmmesso(char carattere) {
  return CarattereSemplice(carattere) && carattere != CellaNera;
}

std::string MessaggioAssente(std::string_view parola) {
  return Unisci(
      "La parola ", parola,
      " non è ancora stata inserita nell'enciclopedia, in questa versione ci sono già "
      "molte migliaia di parole catalogate con allegata una o più definizioni ma cresceranno col "
      "tempo! E' possibile editare/aggiungere parole dal menù "
      "della form Principale 'Utilità' la voce 'Gestione definizioni' il file telarium1.mdb può "
      "essere anche modificato/aggiornato con Microsoft Access. \r\n"
      "Infine se hai installato Word oppure se hai una connessione ad Internet puoi provare i 2 "
      "bottoni sottostanti."_cp);
}

}  // namespace

bool ParolaAccettata(std::string_view testo, int lunghezza) {
  if (static_cast<int>(testo.size()) != lunghezza) {
    Avvisa(Unisci("La parola deve avere obbligatoriamente ", lunghezza,
                  " caratteri, usare il simbolo punto '.' per gli spazi."));
    return false;
  }
  if (!std::all_of(testo.begin(), testo.end(), CarattereAmmesso)) {
    Avvisa("La parola contiene caratteri non ammessi (ammessi solo caratteri alfabetici da A a Z)");
    return false;
  }
  return true;
}

void AvvisaDefinizioneNonScrivibile() {
  Avvisa("La definizione contiene caratteri che il file del cruciverba non può contenere."_cp);
}

std::string ParolaDaCercare(std::string_view testo) {
  return Maiuscole(SenzaSpazi(testo));
}

std::optional<Famiglie> LeggiFamiglie(std::string_view parola) {
  const EnciclopediaAperta enciclopedia = ApriEnciclopedia();
  if (!enciclopedia->CercaParola(parola)) return std::nullopt;
  return Famiglie{enciclopedia->LeggiFacili().value_or(""),
                  enciclopedia->LeggiDifficili().value_or("")};
}

std::optional<Famiglie> CercaFamiglie(std::string_view testo, std::string_view incompleta) {
  const std::string parola = ParolaDaCercare(testo);
  if (parola.size() < 2 || parola.find(CellaVuota) != std::string::npos) {
    Avvisa(incompleta);
    return std::nullopt;
  }
  std::optional<Famiglie> famiglie;
  if (!ConEnciclopedia([&] { famiglie = LeggiFamiglie(parola); })) return std::nullopt;
  if (!famiglie) {
    ChiUsa().SegnaleAcustico();
    Avvisa(MessaggioAssente(parola));
  }
  return famiglie;
}

void ChiediAWord(std::string_view testo) {
  Sistema().ScriviInWord(std::string(testo));
}

}  // namespace telarium
