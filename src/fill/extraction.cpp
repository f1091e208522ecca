#include "fill/extraction.h"

#include <algorithm>
#include <utility>

#include "model/crossword_format.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::string_view CodaDomanda =
    "\r<Si> per accettare\r<No> per iniziare l'estrazione da capo\r"
    "<Annulla> per interrompere l'estrazione\rVa bene ?\r";

// What is told of a dead end in one direction.
struct TestiVicoloCieco {
  std::string_view parola;    // no candidates: before the number
  std::string_view incrocio;  // failed crossing: before the coordinates
  std::string_view traversa;  // failed crossing: the direction of the other word
};

const TestiVicoloCieco& TestiPer(int direzione) {
  static constexpr TestiVicoloCieco testi[] = {
      {"Parola orizzontale ", "Sulla parola orizzontale alla posizione ", "verticale"},
      {"Parola verticale ", "Sulla parola verticale alla posizione ", "orizzontale"},
  };
  return testi[direzione == Orizzontale ? 0 : 1];
}

std::string TestoSenzaCandidati(const Slot& slot, int numero, std::string_view modello) {
  const auto [c, r] = slot.inizio;
  return Unisci(TestiPer(slot.direzione).parola, numero, " alle coordinate ", c, ',', r,
                " non trovata nel vocabolario: '", MascheraPunti(modello), "'", CodaDomanda);
}

std::string TestoIncrocioFallito(const Slot& slot, std::string_view incrocio) {
  const auto [c, r] = slot.inizio;
  const TestiVicoloCieco& testi = TestiPer(slot.direzione);
  return Unisci(testi.incrocio, c, ',', r, " c'è un incrocio "_cp, testi.traversa,
                " non trovato nel vocabolario: '", MascheraPunti(incrocio), "'", CodaDomanda);
}

// The slots that a dictionary has words for, the longest first, among equally long ones in reading
// order and at one cell the horizontal first.
std::vector<Slot> SlotInOrdine(const GrigliaInEstrazione& griglia) {
  std::vector<Slot> slot;
  std::copy_if(griglia.Parole().begin(), griglia.Parole().end(), std::back_inserter(slot),
               [](const Slot& uno) { return LunghezzaAmmessa(uno.lunghezza); });
  std::stable_sort(slot.begin(), slot.end(),
                   [](const Slot& a, const Slot& b) { return a.lunghezza > b.lunghezza; });
  return slot;
}

// Empties the white cells of a row line, also those past the grid.
void SvuotaRiga(std::string& riga) {
  for (std::size_t p = 0; p < riga.size(); p += 2) {
    if (riga[p] != CellaNera) riga[p] = CellaVuota;
  }
}

}  // namespace

Estrazione::Estrazione(const Cruciverba& cruciverba, const Dizionario& dizionario, Caso caso,
                       OsservatoreEstrazione& osservatore)
    : cruciverba_(cruciverba),
      osservatore_(osservatore),
      griglia_(cruciverba_),
      slot_(SlotInOrdine(griglia_)),
      scelta_(dizionario, std::move(caso)) {}

RisultatoEstrazione Estrazione::Esegui() {
  Seguito seguito;
  do {
    seguito = Passata();
  } while (seguito == Seguito::DaCapo);
  if (seguito == Seguito::Avanti) RiempiCelleVuote();
  RiportaLettere();
  return {esito_, std::move(cruciverba_), scelta_.Errore()};
}

Seguito Estrazione::Basta(EsitoEstrazione esito) {
  esito_ = esito;
  return Seguito::Basta;
}

// Tells how far the run has come; it may be wanted to end here.
Seguito Estrazione::Riferisci() {
  if (osservatore_.Prosegue(avanzamento_)) return Seguito::Avanti;
  return Basta(EsitoEstrazione::Interrotta);
}

// Clears the grid and goes once over its slots.
Seguito Estrazione::Passata() {
  avanzamento_ = {.tentativo = avanzamento_.tentativo + 1};
  if (Riferisci() == Seguito::Basta) return Seguito::Basta;
  if (!Svuota()) return Basta(EsitoEstrazione::NonRegistrata);
  avanzamento_.slotTotali = static_cast<int>(slot_.size());
  for (const Slot& uno : slot_) {
    Seguito seguito = PrendiSlot(uno);
    if (seguito == Seguito::Avanti) seguito = Riferisci();
    if (seguito != Seguito::Avanti) return seguito;
  }
  return Seguito::Avanti;
}

// Clues outside the grid, and those that have lost their start, stay.
bool Estrazione::Svuota() {
  if (avanzamento_.tentativo == 1) {
    for (Condiviso<std::string>& riga : cruciverba_.griglia)
      SvuotaRiga(riga.Proprio());
    for (const Slot& slot : griglia_.Parole()) {
      for (const int d : Direzioni)
        cruciverba_.definizioni.Imposta({}, slot.inizio.colonna, slot.inizio.riga, d);
    }
  }
  griglia_.Svuota();
  return osservatore_.Svuotata(cruciverba_, avanzamento_.tentativo);
}

Seguito Estrazione::PrendiSlot(const Slot& slot) {
  const std::string modello = griglia_.LettereDi(slot);
  if (!scelta_.CercaCandidati(modello)) return Basta(EsitoEstrazione::SenzaParole);
  const bool trovata = scelta_.NumCandidati() > 0;
  const std::string parola = trovata ? scelta_.EstraiParola(slot.lunghezza) : std::string();
  if (trovata && parola.empty()) return Basta(EsitoEstrazione::SenzaParole);
  // A word with anything but letters, from a damaged dictionary, would make or undo black cells or
  // a crossword that no file can hold: it counts as none.
  const bool utile = std::all_of(parola.begin(), parola.end(), LetteraScrivibile);
  if (parola.empty() || !utile) {
    // Three letters without a word are passed over in silence.
    if (slot.lunghezza <= 3) return Seguito::Avanti;
    return VicoloCieco(slot,
                       TestoSenzaCandidati(slot, griglia_.NumeroCasella(slot.inizio), modello));
  }
  const EsitoIncroci incroci = scelta_.ProvaIncroci(griglia_, slot);
  if (!incroci.letti) return Basta(EsitoEstrazione::SenzaParole);
  if (!incroci.passati && incroci.incrocio.size() > 3) {
    const Seguito seguito = VicoloCieco(slot, TestoIncrocioFallito(slot, incroci.incrocio));
    if (seguito != Seguito::Avanti) return seguito;
  }
  Colloca(slot, parola);
  return Seguito::Avanti;
}

Seguito Estrazione::VicoloCieco(const Slot& slot, const std::string& domanda) {
  const Seguito seguito = osservatore_.VicoloCieco(slot, domanda);
  return seguito == Seguito::Basta ? Basta(EsitoEstrazione::Annullata) : seguito;
}

void Estrazione::Colloca(const Slot& slot, const std::string& parola) {
  for (int k = 1; k <= slot.lunghezza; ++k)
    griglia_.ScriviLettera(slot.Cella(k), parola[static_cast<std::size_t>(k) - 1]);
  ++avanzamento_.slotCollocati;
  osservatore_.Collocata(slot, parola);
}

// Gives a letter to every cell that no word covered.
void Estrazione::RiempiCelleVuote() {
  for (int r = 1; r <= griglia_.Righe(); ++r) {
    for (int c = 1; c <= griglia_.Colonne(); ++c) {
      if (griglia_.LetteraCasella({c, r}) == CellaSvuotata)
        griglia_.ScriviLettera({c, r}, scelta_.LetteraCasuale());
    }
  }
}

// Brings the letters into the crossword.
void Estrazione::RiportaLettere() {
  for (int r = 1; r <= griglia_.Righe(); ++r) {
    for (int c = 1; c <= griglia_.Colonne(); ++c) {
      const char lettera = griglia_.LetteraCasella({c, r});
      if (lettera != CellaSvuotata && lettera != CarattereDi(cruciverba_, {c, r}))
        ScriviCarattere(cruciverba_, {c, r}, lettera);
    }
  }
}

}  // namespace telarium
