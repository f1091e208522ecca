#include "clues/bulk.h"

#include "clues/clue_family.h"
#include "clues/encyclopedia.h"
#include "clues/merging.h"
#include "clues/store_use.h"
#include "model/pointer.h"
#include "model/words.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

// Calls `visita` with each complete word: by columns, in a column by rows, at a cell the horizontal
// word before the vertical one.
template <class Visita>
void PerOgniParolaCompleta(Visita visita) {
  for (int c = 1; c <= NumColonne; ++c) {
    for (int r = 1; r <= NumRighe; ++r) {
      for (const int d : Direzioni) {
        const bool inizia = IniziaParola({c, r}, d);
        const std::string& parola = ParolaCasella(c, r, d);
        if (inizia && parola.find(CellaVuota) == std::string::npos)
          visita(parola, Definizione(c, r, d), d);
      }
    }
  }
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

std::optional<RapportoDefinizioni> PrelevaTutte(std::int16_t modo) {
  EnciclopediaAperta enciclopedia;
  if (!ConEnciclopedia([&] { enciclopedia = ApriEnciclopedia(); })) return std::nullopt;
  const Clessidra clessidra;
  int orizzontali = 0, verticali = 0;
  ContoErrori errori;
  PerOgniParolaCompleta([&](const std::string& parola, std::string& definizione, int direzione) {
    try {
      if (!enciclopedia->CercaParola(parola)) return;
      definizione = Sorteggia(TestoDelModo(*enciclopedia, modo));
      ++(direzione == Orizzontale ? orizzontali : verticali);
    } catch (const ErroreEnciclopedia& errore) {
      errori.Aggiungi(errore);
      // A bad row costs its word alone, and who holds the file keeps the run waiting once.
      enciclopedia->NonAttendere();
    }
  });
  return RapportoDefinizioni{.testo = TestoPrelievo(orizzontali, verticali),
                             .nonFatto = errori.Testo("parola non si è potuta cercare"_cp,
                                                      "parole non si sono potute cercare")};
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
    PerOgniParolaCompleta([&](const std::string& parola, const std::string& definizione, int) {
      if (!definizione.empty()) UnisciDefinizione(*enciclopedia, parola, definizione, conto);
    });
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
