#include "editor/cell_editing.h"

#include "editor/commands.h"
#include "editor/commit.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "editor/word_pointing.h"
#include "model/crossword_file.h"
#include "platform/platform.h"

namespace telarium {

std::int16_t CursoreX = 0;
std::int16_t CursoreY = 0;
std::int16_t Direzione = 0;
Colore ColoreScelto = 0;

namespace {

const AzzeramentoDiSottosistema azzeramento([] {
  CursoreX = CursoreY = Direzione = 0;
  ColoreScelto = 0;
});

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
  Colore& colore = ColoreCasella(casella.colonna, casella.riga);
  ColoreScelto = ChiUsa().ScegliColore(colore);
  if (ColoreScelto < 0) return;
  colore = ColoreScelto;
  // Else the redraw does it. No older colour shall come back.
  if (!SchemaColorato()) AggiornaIstantanea();
  RidisegnaSchema();
}

// Hands the characters from the cell to the end of their run on to the clue editor, which works on
// the two entries themselves, and takes what it changed back into the grid.
void ModificaParola(Casella casella, int direzione) {
  Direzione = static_cast<std::int16_t>(direzione);
  std::string& definizione = Definizione(casella.colonna, casella.riga, direzione);
  std::string& parola = ParolaCasella(casella.colonna, casella.riga, direzione);
  if (parola.empty()) return;  // the pointer keeps its shape over cells without a word that way
  const std::string definizionePrima = definizione;
  const std::string parolaPrima = parola;
  const Slot slot = SlotDa(casella, direzione);
  LaFinestra().MostraModale(Modale::TelarDef);
  if (definizione == definizionePrima && parola == parolaPrima) return;
  SchemaModificato = Vero;
  ScriviInSchema(slot, parola);
  ConsolidaSchema();
}

// The word that the last movement settled on.
void ModificaParolaIndicata(int puntatore) {
  LaFinestra().TogliLabel1();
  CursoreX = static_cast<std::int16_t>(MouseCol);
  CursoreY = static_cast<std::int16_t>(MouseRiga);
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
