#include "fill/extraction.h"

#include <algorithm>
#include <vector>

#include "dictionary/word_pattern.h"
#include "editor/commit.h"
#include "editor/redraw.h"
#include "fill/placed_word.h"
#include "fill/word_choice.h"
#include "model/crossword_file.h"
#include "model/current_crossword.h"
#include "model/derivation.h"
#include "model/pointer.h"
#include "platform/codepage.h"
#include "platform/platform.h"

// The fill is greedy and takes nothing back. What holds while it runs: an empty white cell is " "
// in LetteraCasella and "." in Schema; every letter is in both; TipoCasella and the lengths of
// ParolaCasella are those of the emptied grid, since placing words moves no black cell.
namespace telarium {

Booleano16 ProvaInfinita = Falso;

namespace {

void AzzeraEstrazione() {
  ProvaInfinita = Falso;
}

const AzzeramentoDiSottosistema azzeramento(AzzeraEstrazione);

constexpr std::string_view CodaDomanda =
    "\r<Si> per accettare\r<No> per iniziare l'estrazione da capo\r"
    "<Annulla> per interrompere l'estrazione\rVa bene ?\r";

// What a slot, a dead end or one whole pass over the grid means for the run: on to the next one, a
// new start, or the end.
enum class Seguito { Avanti, DaCapo, Basta };

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

std::string TestoSenzaCandidati(const Slot& slot, std::string_view modello) {
  const auto [c, r] = slot.inizio;
  return Unisci(TestiPer(slot.direzione).parola, NumeroCasella(c, r), " alle coordinate ", c, ',',
                r, " non trovata nel vocabolario: '", MascheraPunti(modello), "'", CodaDomanda);
}

std::string TestoIncrocioFallito(const Slot& slot, std::string_view incrocio) {
  const auto [c, r] = slot.inizio;
  const TestiVicoloCieco& testi = TestiPer(slot.direzione);
  return Unisci(testi.incrocio, c, ',', r, " c'è un incrocio "_cp, testi.traversa,
                " non trovato nel vocabolario: '", MascheraPunti(incrocio), "'", CodaDomanda);
}

// One run of the fill, from its first clearing to its end.
class Estrazione {
 public:
  Estrazione() : pittore_(FinestraPrincipale()) {}

  EsitoEstrazione Esegui() {
    Seguito seguito;
    do {
      seguito = Passata();
    } while (seguito == Seguito::DaCapo);
    if (seguito == Seguito::Avanti) {
      RiempiCelleVuote();
      RidisegnaSchema();
    }
    MostraCelleVuote();
    pittore_.Fine();
    if (esito_ == EsitoEstrazione::NonRegistrata) {
      RidisegnaSchema();  // a second try would only tell the same failure again
    } else {
      ConsolidaSchema();
    }
    return esito_;
  }

 private:
  Seguito Basta(EsitoEstrazione esito) {
    esito_ = esito;
    return Seguito::Basta;
  }

  // Tells how far the run has come; the user may want it to end here.
  Seguito Riferisci() {
    if (ChiUsa().ContinuaEstrazione(avanzamento_)) return Seguito::Avanti;
    return Basta(EsitoEstrazione::Interrotta);
  }

  // Clears the grid and goes once over its slots.
  Seguito Passata() {
    ++avanzamento_.tentativo;
    avanzamento_.slotCollocati = avanzamento_.slotTotali = 0;
    if (Riferisci() == Seguito::Basta) return Seguito::Basta;
    if (!SvuotaGriglia()) return Basta(EsitoEstrazione::NonRegistrata);
    const std::vector<Slot> slot = SlotInOrdine();
    avanzamento_.slotTotali = static_cast<int>(slot.size());
    for (const Slot& uno : slot) {
      Seguito seguito = PrendiSlot(uno);
      if (seguito == Seguito::Avanti) seguito = Riferisci();
      if (seguito != Seguito::Avanti) return seguito;
    }
    return Seguito::Avanti;
  }

  bool SvuotaGriglia() {
    for (int r = 1; r <= MaxRighe; ++r) {
      std::string& riga = Schema(r + RigheIntestazione);
      for (std::size_t p = 0; p < riga.size(); p += 2) {
        if (riga[p] != CellaNera) riga[p] = CellaVuota;
      }
    }
    SvuotaDefinizioniDegliInizi();
    pittore_.DirettoSulloSchermo();
    const bool registrata = ConsolidaSchema();
    for (int c = 1; c <= MaxColonne; ++c) {
      for (int r = 1; r <= MaxRighe; ++r) {
        if (LetteraCasella(c, r) != CellaNera) LetteraCasella(c, r) = CellaSvuotata;
      }
    }
    pittore_.PreparaCarattere();
    return registrata;
  }

  // Clues outside the grid, and those that have lost their start, stay.
  static void SvuotaDefinizioniDegliInizi() {
    const Derivati derivati = Deriva(CruciverbaCorrente());
    for (const Slot& slot : derivati.Parole()) {
      for (const int d : Direzioni)
        Definizione(slot.inizio.colonna, slot.inizio.riga, d).clear();
    }
  }

  // The slots that a dictionary has words for, the longest first, among equally long ones in
  // reading order and at one cell the horizontal first.
  static std::vector<Slot> SlotInOrdine() {
    std::vector<Slot> slot;
    PerOgniParola([&](const Slot& uno) {
      if (LunghezzaAmmessa(uno.lunghezza)) slot.push_back(uno);
    });
    std::stable_sort(slot.begin(), slot.end(),
                     [](const Slot& a, const Slot& b) { return a.lunghezza > b.lunghezza; });
    return slot;
  }

  Seguito PrendiSlot(const Slot& slot) {
    const std::string modello = LettereDi(slot);
    if (!CercaCandidati(modello)) return Basta(EsitoEstrazione::SenzaParole);
    const std::string parola = NumCandidati > 0 ? EstraiParola(slot.lunghezza) : std::string();
    if (NumCandidati > 0 && parola.empty()) return DizionarioIlleggibile();
    // A word with anything but letters, from a damaged dictionary, would make or undo black cells
    // or a crossword that no file can hold: it counts as none.
    const bool utile = std::all_of(parola.begin(), parola.end(), LetteraScrivibile);
    if (parola.empty() || !utile) {
      // Three letters without a word are passed over in silence.
      return slot.lunghezza > 3 ? VicoloCieco(TestoSenzaCandidati(slot, modello)) : Seguito::Avanti;
    }
    const EsitoIncroci incroci = ProvaIncroci(slot);
    if (!incroci.letti) return DizionarioIlleggibile();
    if (!incroci.passati && incroci.incrocio.size() > 3) {
      const Seguito seguito = VicoloCieco(TestoIncrocioFallito(slot, incroci.incrocio));
      if (seguito != Seguito::Avanti) return seguito;
    }
    Colloca(slot, parola);
    return Seguito::Avanti;
  }

  Seguito DizionarioIlleggibile() {
    AvvisaDizionarioIlleggibile();
    return Basta(EsitoEstrazione::SenzaParole);
  }

  Seguito VicoloCieco(const std::string& testo) {
    if (ProvaInfinita) return Seguito::DaCapo;
    switch (ChiUsa().ChiediVicoloCieco(testo)) {
      case Risposta::No:
        return Seguito::DaCapo;
      case Risposta::Annulla:
        return Basta(EsitoEstrazione::Annullata);
      default:
        return Seguito::Avanti;
    }
  }

  void Colloca(const Slot& slot, const std::string& parola) {
    for (int k = 1; k <= slot.lunghezza; ++k) {
      ScriviLettera(slot.Cella(k), parola[static_cast<std::size_t>(k) - 1]);
    }
    ParolaCasella(slot.inizio.colonna, slot.inizio.riga, slot.direzione) = parola;
    ++avanzamento_.slotCollocati;
    pittore_.Dipingi(slot, parola);
  }

  static void ScriviLettera(Casella cella, char lettera) {
    const char prima = LetteraCasella(cella.colonna, cella.riga);
    VerificaInvariante(prima == CellaSvuotata || prima == CellaVuota || prima == lettera,
                       "una parola cambia una lettera già posta"_cp);
    LetteraCasella(cella.colonna, cella.riga) = lettera;
    ScriviInSchema(cella, lettera);
  }

  // Gives a letter to every cell that no word covered.
  static void RiempiCelleVuote() {
    for (int r = 1; r <= NumRighe; ++r) {
      for (int c = 1; c <= NumColonne; ++c) {
        const char lettera = LetteraCasella(c, r);
        if (lettera == CellaSvuotata || lettera == CellaVuota)
          ScriviLettera({c, r}, LetteraCasuale());
      }
    }
  }

  // What no word and no random letter reached is an empty cell again, also where a row line of
  // Schema is too short to say so.
  static void MostraCelleVuote() {
    for (int c = 1; c <= MaxColonne; ++c) {
      for (int r = 1; r <= MaxRighe; ++r) {
        if (LetteraCasella(c, r) == CellaSvuotata) LetteraCasella(c, r) = CellaVuota;
      }
    }
  }

  PittoreDiParole pittore_;
  AvanzamentoEstrazione avanzamento_;
  EsitoEstrazione esito_ = EsitoEstrazione::Completa;
};

bool ConfermaEstrazione() {
  return ChiUsa().MostraMessaggio(
             {.testo = std::string(
                  "L'estrazione automatica delle parole dal vocabolario, azzera il cruciverba "
                  "corrente ed inoltre richiede un processore molto veloce, è possibile "_cp
                  "interrompere questa operazione solamente durante i messaggi di errore sulla "
                  "estrazione, si desidera comunque procedere?"_cp),
              .titolo = "Estrazione automatica parole",
              .pulsanti = Pulsanti::OkAnnulla}) == Risposta::Ok;
}

}  // namespace

EsitoEstrazione EstraiSchema() {
  if (NumColonne == 0) return EsitoEstrazione::Rifiutata;
  return ConfermaEstrazione() ? EseguiEstrazione() : EsitoEstrazione::Rifiutata;
}

EsitoEstrazione EseguiEstrazione() {
  // What would end the run at its first step leaves the grid as it is.
  if (!DizionarioLeggibile()) {
    AvvisaDizionarioIlleggibile();
    return EsitoEstrazione::SenzaParole;
  }
  if (!ScriviIstantanea()) return EsitoEstrazione::NonRegistrata;
  ModoGriglia = ModoNeutro;
  SchemaModificato = Vero;
  const Clessidra clessidra;
  return Estrazione().Esegui();
}

}  // namespace telarium
