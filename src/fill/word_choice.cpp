#include "fill/word_choice.h"

#include <algorithm>
#include <cstring>

#include "dictionary/word_pattern.h"
#include "platform/check.h"
#include "platform/text.h"

namespace telarium {
namespace {

// Finds the occurrences of one character in a block, in rising order.
class Occorrenze {
 public:
  Occorrenze(const char* inizio, const char* fine, char carattere)
      : fine_(fine), carattere_(carattere) {
    CercaDa(inizio);
  }

  /// The first occurrence at or behind a place; the end of the block when there is none. Places
  /// must rise from call to call.
  const char* DaQui(const char* posto) {
    if (prossima_ < posto) CercaDa(posto);
    return prossima_;
  }

 private:
  void CercaDa(const char* posto) {
    const void* trovata = std::memchr(posto, carattere_, static_cast<std::size_t>(fine_ - posto));
    prossima_ = trovata ? static_cast<const char*>(trovata) : fine_;
  }

  const char* fine_;
  char carattere_;
  const char* prossima_ = nullptr;
};

// Calls `accogli` with the number of each word without Q and H: stretches of them between one such
// letter and the next, since looking at every letter of every word is what takes the time.
template <class Accogli>
void PerOgniSenzaQH(const BloccoDiParole& blocco, Accogli accogli) {
  const char* const fine = blocco.Parola(blocco.quante);
  Occorrenze q(blocco.inizio, fine, 'Q');
  Occorrenze h(blocco.inizio, fine, 'H');
  for (int i = 0; i < blocco.quante;) {
    const char* const prossima = std::min(q.DaQui(blocco.Parola(i)), h.DaQui(blocco.Parola(i)));
    const int esclusa = static_cast<int>((prossima - blocco.inizio) / blocco.lunghezza);
    for (; i < esclusa; ++i)
      accogli(blocco.primoNumero + i);
    ++i;
  }
}

// The cell so many steps back from a cell, left or up.
Casella Indietro(Casella casella, int direzione, int passi) {
  return direzione == Orizzontale ? Casella{casella.colonna - passi, casella.riga}
                                  : Casella{casella.colonna, casella.riga - passi};
}

// How far back from a cell, which counts as 1, its run in a direction begins.
std::int16_t DistanzaDallInizio(const GrigliaInEstrazione& griglia, Casella casella,
                                int direzione) {
  const int posto = direzione == Orizzontale ? casella.colonna : casella.riga;
  std::int16_t d = 1;
  while (d < posto && !griglia.Nera(Indietro(casella, direzione, d)))
    ++d;
  return d;
}

bool VaProvato(std::string_view incrocio) {
  return incrocio.size() >= MinLunghezza && incrocio.find(PostoLibero) == std::string_view::npos;
}

}  // namespace

// Whether the dictionary has a word that fits; none when it cannot be read.
std::optional<bool> SceltaDiParole::Esiste(std::string_view modello) {
  const int lunghezza = static_cast<int>(modello.size());
  if (!LunghezzaAmmessa(lunghezza)) return false;
  std::string conSpazi(modello);
  std::replace(conSpazi.begin(), conSpazi.end(), CellaVuota, PostoLibero);
  const ModelloParola cercato(conSpazi);
  ScansioneSezione scansione(dizionario_, lunghezza);
  BloccoDiParole blocco;
  while (scansione.Prossimo(blocco)) {
    const bool nessuna = cercato.PerOgniAdatta(blocco, [](int) { return false; });
    if (!nessuna) return true;
  }
  if (scansione.Leggibile()) return false;
  errore_ = dizionario_.TestoIlleggibile();
  return std::nullopt;
}

bool SceltaDiParole::CercaCandidati(std::string_view modello) {
  const int lunghezza = static_cast<int>(modello.size());
  numCandidati_ = 0;
  if (!LunghezzaAmmessa(lunghezza)) {
    errore_ = Unisci("Errore: Parola con ", lunghezza, " caratteri non disponibile!.");
    return false;
  }
  int quanti = 0;  // a register in the loops below
  const auto aggiungi = [&](int numero) {
    candidati_(++quanti) = static_cast<std::int16_t>(numero);
  };
  const ModelloParola adatto(modello);
  ScansioneSezione scansione(dizionario_, lunghezza);
  BloccoDiParole blocco;
  while (scansione.Prossimo(blocco)) {
    if (adatto.TuttoLibero()) {
      PerOgniSenzaQH(blocco, aggiungi);
    } else {
      adatto.PerOgniAdatta(blocco, [&](int i) {
        aggiungi(blocco.primoNumero + i);
        return true;
      });
    }
  }
  numCandidati_ = static_cast<std::int16_t>(quanti);
  if (!scansione.Leggibile()) errore_ = dizionario_.TestoIlleggibile();
  return scansione.Leggibile();
}

std::string SceltaDiParole::EstraiParola(int lunghezza) {
  VerificaInvariante(numCandidati_ > 0, "EstraiParola senza candidati");
  // The 1 is added behind the cut: a draw next to 1 would round up to a place too many.
  const int posto = static_cast<int>(numCandidati_ * caso_()) + 1;
  std::string parola = dizionario_.LeggiParola(candidati_(posto), lunghezza);
  if (parola.empty()) errore_ = dizionario_.TestoIlleggibile();
  return parola;
}

EsitoIncroci SceltaDiParole::ProvaIncroci(const GrigliaInEstrazione& griglia, const Slot& slot) {
  const int traversa = Traversa(slot.direzione);
  Distanze& distanza = slot.direzione == Orizzontale ? DistanzaSu : DistanzaSinistra;
  for (int k = 1; k <= slot.lunghezza; ++k)
    distanza(k) = DistanzaDallInizio(griglia, slot.Cella(k), traversa);

  EsitoIncroci esito;
  for (int k = 1; k <= slot.lunghezza && esito.passati; ++k) {
    const Casella inizio = Indietro(slot.Cella(k), traversa, distanza(k) - 1);
    const std::string incrocio = griglia.LettereAttraverso(inizio, traversa);
    if (!VaProvato(incrocio)) continue;
    const std::optional<bool> esiste = Esiste(incrocio);
    esito.letti = esiste.has_value();
    esito.passati = esiste.value_or(false);
    esito.incrocio = incrocio;
  }
  return esito;
}

Booleano16 SceltaDiParole::ParolaEsiste(std::string_view modello) {
  return Esiste(modello).value_or(false) ? Vero : Falso;
}

char SceltaDiParole::LetteraCasuale() {
  constexpr std::string_view lettere = "ABCDEFGHILMNOPQRSTUVZ";
  return lettere[static_cast<std::size_t>(static_cast<double>(lettere.size()) * caso_())];
}

std::string MascheraPunti(std::string_view modello) {
  std::string punti(modello);
  std::replace(punti.begin(), punti.end(), CellaSvuotata, CellaVuota);
  return punti;
}

}  // namespace telarium
