#include "editor/cell_editing.h"

#include "editor/commands.h"
#include "editor/commit.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "editor/word_pointing.h"
#include "model/crossword_file.h"
#include "model/derivation.h"
#include "model/documento.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {

Colore ColoreScelto = 0;

namespace {

const AzzeramentoDiSottosistema azzeramento([] { ColoreScelto = 0; });

void AttivaStrumento(std::int16_t modo, Strumento strumento) {
  LaFinestra().NascondiShape1();
  if (ModoGriglia == ModoAnteprima) RidisegnaSchema();
  ModoGriglia = modo;
  PrendiStrumento(strumento);
}

std::string MotivoDi(std::string_view cosa, Casella casella) {
  return Unisci(cosa, ' ', casella.colonna, ',', casella.riga);
}

// Turns the cell and commits it; from then on the tool is the one that does so.
void Trasforma(Casella casella, bool nera) {
  ImpostaPuntatoreMouse(PuntatoreClessidra);
  AnticipaCasella(casella, nera);
  IlDocumento().Modifica(MotivoDi(nera ? "Casella nera" : "Casella bianca", casella),
                         [&](Cruciverba& cruciverba) {
                           ScriviCarattere(cruciverba, casella, nera ? CellaNera : CellaVuota);
                         });
  ConsolidaSchema();
  IlDocumento().SegnaModificato(true);
  PrendiStrumento(nera ? Strumento::CasellaNera : Strumento::CasellaBianca);
  LaFinestra().PremiEdit(false);
}

void TrasformaSeDiversa(Casella casella, bool nera) {
  const bool eraNera = LetteraCasella(casella.colonna, casella.riga) == CellaNera;
  if (eraNera != nera) Trasforma(casella, nera);
}

void Colora(Casella casella) {
  ColoreScelto = ChiUsa().ScegliColore(ColoreCasella(casella.colonna, casella.riga));
  if (ColoreScelto < 0) return;
  const bool cambiato = IlDocumento().Modifica(
      MotivoDi("Colore della casella", casella), [casella](Cruciverba& cruciverba) {
        cruciverba.colori.Imposta(ColoreScelto, casella.colonna, casella.riga);
      });
  if (cambiato) IlDocumento().SegnaModificato(true);
  // Else the redraw does it. No older colour shall come back.
  if (!SchemaColorato()) AggiornaIstantanea();
  RidisegnaSchema();
}

// Whether a clue shall be that of a word, in whose rest alone it was written.
bool DaAssegnare(const Slot& intera, const Derivati& derivati) {
  const auto [c, r] = intera.inizio;
  const char* direzione = intera.direzione == Orizzontale ? " Orizz. " : " Vertic. ";
  std::string domanda = Unisci(
      "Nella casella scelta non inizia nessuna parola: la definizione non verrebbe salvata. Si "
      "desidera assegnarla alla parola ",
      derivati.Numero(intera.inizio), direzione, derivati.Lettere(intera), '?');
  if (!Definizione(c, r, intera.direzione).empty())
    domanda += " La definizione che questa ha già verrebbe sostituita."_cp;
  return ChiUsa().MostraMessaggio({.testo = std::move(domanda),
                                   .titolo = "Definizione senza parola",
                                   .pulsanti = Pulsanti::OkAnnulla,
                                   .icona = Icona::Domanda}) == Risposta::Ok;
}

// The word that gets the clue accepted for a word, or for the rest of one. In a cell where no word
// starts it would be in no file: the word that runs through that cell may have it.
Slot ParolaDaDefinire(const Slot& slot, const Derivati& derivati) {
  const int quale = derivati.ParolaPer(slot.inizio, slot.direzione);
  if (quale == Derivati::NessunaParola) return slot;
  const Slot& intera = derivati.Parole()[static_cast<std::size_t>(quale)];
  return intera.inizio != slot.inizio && DaAssegnare(intera, derivati) ? intera : slot;
}

// Carries what the clue editor gave back into the grid.
void Applica(const Slot& slot, const ParolaDefinita& prima, const ParolaDefinita& dopo) {
  Cruciverba conParola = IlDocumento().Valore();
  ScriviCaratteri(conParola, slot, dopo.parola);
  const Derivati derivati = Deriva(conParola);
  const bool nuova = dopo.definizione != prima.definizione;
  const Slot definita =
      nuova && !dopo.definizione.empty() ? ParolaDaDefinire(slot, derivati) : slot;
  IlDocumento().Modifica(Unisci(nuova ? "Definizione di " : "Parola ", derivati.Lettere(definita)),
                         [&](Cruciverba& cruciverba) {
                           ScriviCaratteri(cruciverba, slot, dopo.parola);
                           const auto [c, r] = definita.inizio;
                           if (nuova)
                             cruciverba.definizioni.Imposta(dopo.definizione, c, r, slot.direzione);
                         });
  IlDocumento().SegnaModificato(true);
  ConsolidaSchema();
}

// Hands the characters from the cell to the end of their run on to the clue editor.
void ModificaParola(Casella casella, int direzione) {
  const auto [c, r] = casella;
  const ParolaDefinita prima{ParolaCasella(c, r, direzione), Definizione(c, r, direzione)};
  if (prima.parola.empty()) return;  // the pointer keeps its shape over cells without a word there
  const Slot slot = SlotDa(casella, direzione);
  const auto dopo =
      LaFinestra().ModificaParola({.testo = prima,
                                   .numero = NumeroCasella(c, r),
                                   .direzione = direzione,
                                   .destra = GeometriaDelloSchema().BordoSinistro(c + 1),
                                   .fondo = GeometriaDelloSchema().BordoAlto(r + 1)});
  if (dopo && *dopo != prima) Applica(slot, prima, *dopo);
}

// The word that the last movement settled on.
void ModificaParolaIndicata(int puntatore) {
  LaFinestra().TogliLabel1();
  const Casella casella{MouseCol, MouseRiga};
  // Nobody has moved the pointer since the grid became smaller.
  if (!NelloSchema(casella)) return;
  if (puntatore == PuntatoreOrizzontale) ModificaParola(casella, Orizzontale);
  if (puntatore == PuntatoreVerticale) ModificaParola(casella, Verticale);
}

}  // namespace

void AttivaCasellaNera() {
  AttivaStrumento(ModoCasellaNera, Strumento::CasellaNera);
}

void AttivaCasellaBianca() {
  AttivaStrumento(ModoCasellaBianca, Strumento::CasellaBianca);
}

void PremiSullaSuperficie(TastoMouse tasto, double x, double y) {
  const int puntatore = PuntatoreMouse;
  const Strumento strumento = StrumentoAttivo();
  const bool conStrumento = strumento != Strumento::Nessuno;
  const bool sinistro = tasto == TastoMouse::Sinistro;
  if (!conStrumento && ModoGriglia != ModoModifica) return EntraInModifica();
  LaFinestra().MostraCommand3d15(false);
  if (LatoCasella == 0) return;
  const Casella casella = CasellaSotto(x, y);
  const bool dentro = NelloSchema(casella);
  if (dentro && sinistro && puntatore == PuntatoreFreccia) return Colora(casella);
  if (!dentro || (!sinistro && !conStrumento)) {
    LaFinestra().TogliLabel1();  // the tool's name holds no longer
    return EntraInModifica();
  }
  if (conStrumento && tasto != TastoMouse::Altro) {
    TrasformaSeDiversa(casella, (strumento == Strumento::CasellaNera) == sinistro);
    return PassaSullaSuperficie(x, y);  // the tool may be the other one now
  }
  if (ModoGriglia == ModoModifica) ModificaParolaIndicata(puntatore);
}

}  // namespace telarium
