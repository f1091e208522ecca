#include "clues/bulk.h"

#include <algorithm>
#include <vector>

#include "clues/clue_family.h"
#include "clues/encyclopedia.h"
#include "clues/merging.h"
#include "clues/store_use.h"
#include "model/derivation.h"
#include "model/documento.h"
#include "model/pointer.h"
#include "model/state.h"
#include "model/word_edit.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

struct ParolaCompleta {
  Slot slot;
  ParolaDefinita testo;
};

// The complete words of a crossword: by columns, in a column by rows, at a cell the horizontal word
// before the vertical one.
std::vector<ParolaCompleta> ParoleComplete(const Cruciverba& cruciverba) {
  const Derivati derivati = Deriva(cruciverba);
  std::vector<ParolaCompleta> complete;
  for (const Slot& slot : derivati.Parole()) {
    const std::string parola = derivati.Lettere(slot);
    if (parola.find(CellaVuota) != std::string::npos) continue;
    const auto [c, r] = slot.inizio;
    complete.push_back({slot, {parola, cruciverba.definizioni(c, r, slot.direzione)}});
  }
  std::stable_sort(complete.begin(), complete.end(),
                   [](const ParolaCompleta& una, const ParolaCompleta& altra) {
                     return una.slot.inizio.colonna < altra.slot.inizio.colonna;
                   });
  return complete;
}

// The text from which a mode draws, of the current row.
std::string TestoDelModo(Enciclopedia& enciclopedia, std::int16_t modo) {
  std::string testo;
  if (modo != ModoDifficili) testo = enciclopedia.LeggiFacili().value_or("");
  if (modo == ModoTutte) testo += SeparatoreDefinizioni;
  if (modo != ModoFacili) testo += enciclopedia.LeggiDifficili().value_or("");
  return testo;
}

// One clue of a text, with equal chances; the empty one when it has none.
const std::string& Sorteggia(std::string testo) {
  spezzatesto(testo);
  const int quante = ValoreNumerico(testo);
  const auto estratta = static_cast<int>(Sistema().Casuale() * quante);
  return ElencoDefinizioni(estratta + 1);
}

void Riferisci(const std::optional<RapportoDefinizioni>& rapporto) {
  if (rapporto) Avvisa(rapporto->Intero());
}

std::string TestoPrelievo(int orizzontali, int verticali) {
  return Unisci(
      "L'operazione di recupero delle definizioni è terminata con successo.\r\n"
      "Dall'enciclopedia sono state trovate e compilate N. "_cp,
      orizzontali, " definizioni orizzontali e N. ", verticali,
      " definizioni verticali. Cliccare sul bottone 'Vista tabellare' della barra principale per "
      "vedere le parole inserite.");
}

}  // namespace

std::optional<Prelievo> PrelevaPer(Cruciverba cruciverba, std::int16_t modo) {
  EnciclopediaAperta enciclopedia;
  if (!ConEnciclopedia([&] { enciclopedia = ApriEnciclopedia(); })) return std::nullopt;
  const Clessidra clessidra;
  int orizzontali = 0, verticali = 0;
  ContoErrori errori;
  for (const auto& [slot, testo] : ParoleComplete(cruciverba)) {
    const auto [c, r] = slot.inizio;
    try {
      if (!enciclopedia->CercaParola(testo.parola)) continue;
      cruciverba.definizioni.Imposta(Sorteggia(TestoDelModo(*enciclopedia, modo)), c, r,
                                     slot.direzione);
      ++(slot.direzione == Orizzontale ? orizzontali : verticali);
    } catch (const ErroreEnciclopedia& errore) {
      errori.Aggiungi(errore);
      // A bad row costs its word alone, and who holds the file keeps the run waiting once.
      enciclopedia->NonAttendere();
    }
  }
  return Prelievo{.cruciverba = std::move(cruciverba),
                  .rapporto = {.testo = TestoPrelievo(orizzontali, verticali),
                               .nonFatto = errori.Testo("parola non si è potuta cercare"_cp,
                                                        "parole non si sono potute cercare")}};
}

std::optional<RapportoDefinizioni> PrelevaTutte(std::int16_t modo) {
  const auto prelievo = PrelevaPer(IlDocumento().Valore(), modo);
  if (!prelievo) return std::nullopt;
  const bool cambiato = IlDocumento().Modifica(
      "Prelievo delle definizioni",
      [&](Cruciverba& cruciverba) { cruciverba.definizioni = prelievo->cruciverba.definizioni; });
  if (cambiato) IlDocumento().SegnaModificato(true);
  return prelievo->rapporto;
}

void Prelevadefinizioni(std::int16_t modo) {
  Riferisci(PrelevaTutte(modo));
}

std::optional<RapportoDefinizioni> SalvaTutte() {
  ContoFusioni conto;
  const bool riuscita = ConEnciclopedia([&] {
    const EnciclopediaAperta enciclopedia = ApriEnciclopedia();
    const Clessidra clessidra;
    enciclopedia->IniziaSerie();
    for (const auto& [slot, testo] : ParoleComplete(IlDocumento().Valore())) {
      const auto& [parola, definizione] = testo;
      if (!definizione.empty()) UnisciDefinizione(*enciclopedia, parola, definizione, conto);
    }
  });
  if (!riuscita) return std::nullopt;
  return RapportoDefinizioni{
      .testo = TestoFusioni("Tutte le definizioni presenti in questo sdhema sono state salvate "
                            "sull'enciclopedia con successo.",
                            conto),
      .nonFatto = {}};
}

void SalvaDefinizioni() {
  Riferisci(SalvaTutte());
}

}  // namespace telarium
