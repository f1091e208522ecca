#include "editor/cell_editing.h"

#include "editor/commands.h"
#include "editor/commit.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "editor/word_pointing.h"
#include "model/crossword_file.h"
#include "model/current_crossword.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {

Colore ColoreScelto = 0;

namespace {

const AzzeramentoDiSottosistema azzeramento([] { ColoreScelto = 0; });

void AttivaStrumento(std::int16_t modo, int puntatore) {
  LaFinestra().NascondiShape1();
  if (ModoGriglia == ModoAnteprima) RidisegnaSchema();
  ModoGriglia = modo;
  ImpostaPuntatoreMouse(puntatore);
}

// Writes the cell into Schema and commits it; from then on the pointer is that of the tool.
void Trasforma(Casella casella, bool nera) {
  ImpostaPuntatoreMouse(PuntatoreClessidra);
  AnticipaCasella(casella, nera);
  ScriviInSchema(casella, nera ? CellaNera : CellaVuota);
  ConsolidaSchema();
  SchemaModificato = Vero;
  ImpostaPuntatoreMouse(nera ? PuntatoreCasellaNera : PuntatoreCasellaBianca);
  LaFinestra().PremiEdit(false);
}

void TrasformaSeDiversa(Casella casella, bool nera) {
  const bool eraNera = LetteraCasella(casella.colonna, casella.riga) == CellaNera;
  if (eraNera != nera) Trasforma(casella, nera);
}

void Colora(Casella casella) {
  const auto [c, r] = casella;
  ColoreScelto = ChiUsa().ScegliColore(ColoreCasella(c, r));
  if (ColoreScelto < 0) return;
  ModificaCruciverba(
      Unisci("Colore della casella ", c, ',', r),
      [&, c = c, r = r](Cruciverba& cruciverba) { cruciverba.colori.Imposta(ColoreScelto, c, r); });
  // Else the redraw does it. No older colour shall come back.
  if (!SchemaColorato()) AggiornaIstantanea();
  RidisegnaSchema();
}

// Where the clue of a word goes, or of the rest of one.
Casella PostoDellaDefinizione(const Slot& slot) {
  return slot.inizio;
}

// Carries what the clue editor gave back into the grid.
void Applica(const Slot& slot, const ParolaDefinita& prima, const ParolaDefinita& dopo) {
  const auto [c, r] = PostoDellaDefinizione(slot);
  const bool definita = dopo.definizione != prima.definizione;
  ModificaCruciverba(Unisci(definita ? "Definizione di " : "Parola ", dopo.parola),
                     [&, c = c, r = r](Cruciverba& cruciverba) {
                       ScriviCaratteri(cruciverba, slot, dopo.parola);
                       cruciverba.definizioni.Imposta(dopo.definizione, c, r, slot.direzione);
                     });
  SchemaModificato = Vero;
  ConsolidaSchema();
}

// Hands the characters from the cell to the end of their run on to the clue editor.
void ModificaParola(Casella casella, int direzione) {
  const auto [c, r] = casella;
  const ParolaDefinita prima{ParolaCasella(c, r, direzione), Definizione(c, r, direzione)};
  if (prima.parola.empty()) return;  // the pointer keeps its shape over cells without a word there
  const Slot slot = SlotDa(casella, direzione);
  const auto dopo = LaFinestra().ModificaParola({.testo = prima,
                                                 .numero = NumeroCasella(c, r),
                                                 .direzione = direzione,
                                                 .destra = BordoSinistro(c + 1),
                                                 .fondo = BordoAlto(r + 1)});
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
  AttivaStrumento(ModoCasellaNera, PuntatoreCasellaNera);
}

void AttivaCasellaBianca() {
  AttivaStrumento(ModoCasellaBianca, PuntatoreCasellaBianca);
}

void PremiSullaSuperficie(TastoMouse tasto, double x, double y) {
  const int puntatore = PuntatoreMouse;
  const bool strumento = puntatore == PuntatoreCasellaNera || puntatore == PuntatoreCasellaBianca;
  const bool sinistro = tasto == TastoMouse::Sinistro;
  if (!strumento && ModoGriglia != ModoModifica) return EntraInModifica();
  LaFinestra().MostraCommand3d15(false);
  RiprendiGeometria();
  if (LatoCasella == 0) return;
  const Casella casella = CasellaSotto(x, y);
  const bool dentro = NelloSchema(casella);
  if (dentro && sinistro && puntatore == PuntatoreFreccia) return Colora(casella);
  if (!dentro || (!sinistro && !strumento)) {
    LaFinestra().TogliLabel1();  // the tool's name holds no longer
    return EntraInModifica();
  }
  if (strumento && tasto != TastoMouse::Altro) {
    TrasformaSeDiversa(casella, (puntatore == PuntatoreCasellaNera) == sinistro);
    return PassaSullaSuperficie(x, y);  // the tool may be the other one now
  }
  if (ModoGriglia == ModoModifica) ModificaParolaIndicata(puntatore);
}

}  // namespace telarium
