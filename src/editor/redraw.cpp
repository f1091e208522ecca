#include "editor/redraw.h"

#include <algorithm>

#include "editor/main_window.h"
#include "editor/settings.h"
#include "model/crossword_file.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr int MargineProvvisorio = 6;  // pixels on each side, for the size of a cell
constexpr int DistanzaCornice = 2;     // white ground between the cells and the frame
constexpr double MinCorpoLettere = 6;  // points
constexpr int RientroCasellaBianca = 2;

void DisegnaFondoECornice(Superficie& superficie) {
  const double x1 = OrigineX - DistanzaCornice;
  const double y1 = OrigineY - DistanzaCornice;
  const double x2 = OrigineX + LatoCasella * NumColonne + DistanzaCornice;
  const double y2 = OrigineY + LatoCasella * NumRighe + DistanzaCornice;
  superficie.RiquadroPieno(x1, y1, x2, y2, ColoreBianco);
  // Beyond the surface's edges no line can be seen.
  const double massimo = std::max(superficie.LarghezzaSuperficie(), superficie.AltezzaSuperficie());
  for (int i = 1; i <= SpessoreBordo && i <= massimo; ++i)
    superficie.Riquadro(x1 - i, y1 - i, x2 + i, y2 + i, ColoreCornice);
}

// Of LatoCasella, OrigineX and OrigineY.
bool geometriaCeduta = false;
const AzzeramentoDiSottosistema azzeramento([] { geometriaCeduta = false; });

void CalcolaGeometriaDellaFinestra(const Superficie& superficie) {
  CalcolaGeometria(superficie, LaFinestra().AltezzaToolbar1(), LaFinestra().AltezzaStatusBar1());
  geometriaCeduta = false;
}

void DisegnaSchema(Superficie& superficie) {
  superficie.Pulisci();
  LaFinestra().MostraCommand3d15(false);
  LaFinestra().Titolo(
      Unisci("Telarium - ", NumColonne, 'x', NumRighe, "  ", TestoPercorso(NomeCruciverba)));
  CalcolaGeometriaDellaFinestra(superficie);
  if (LatoCasella > 0) {  // in a tiny window no cell has room
    DisegnaFondoECornice(superficie);
    superficie.CorpoCarattere(CorpoLettere(LatoCasella, MinCorpoLettere));
    superficie.Carattere(FontDelleLettere());
    DisegnaCaselle(superficie, !NascondiSoluzioni);
    superficie.CorpoCarattere(CorpoNumeri(LatoCasella));
    DisegnaNumeri(superficie);
  }
  LaFinestra().RinfrescaToolbar1();
}

}  // namespace

void RidisegnaSchema() {
  RidisegnaSenzaIstantanea();
  if (FinestraPrincipale() && SchemaColorato()) AggiornaIstantanea();
}

void RidisegnaSenzaIstantanea() {
  if (NumColonne == 0) return;
  RicalcolaCaselle();
  if (Superficie* superficie = FinestraPrincipale()) DisegnaSchema(*superficie);
}

void CalcolaGeometria(const Superficie& superficie, double cima, double fondo) {
  const double w = superficie.LarghezzaSuperficie();
  const double h = superficie.AltezzaSuperficie();
  const int a = ArrotondaPari((w - 2 * MargineProvvisorio - 4) / NumColonne);
  const int b = ArrotondaPari((h - cima - fondo - 2 - 2 * MargineProvvisorio - 4) / NumRighe);
  LatoCasella = static_cast<std::int16_t>(std::max(std::min(a, b), 0));
  OrigineX = static_cast<std::int16_t>(ArrotondaPari((w - LatoCasella * NumColonne) / 2));
  OrigineY =
      static_cast<std::int16_t>(ArrotondaPari((cima + h - 2 - fondo - LatoCasella * NumRighe) / 2));
}

Zona ZonaDelloSchema() {
  const int intorno = DistanzaCornice + std::max<int>(SpessoreBordo, 0);
  // Both edges of the frame belong to it.
  return {.sinistra = static_cast<double>(OrigineX - intorno),
          .cima = static_cast<double>(OrigineY - intorno),
          .larghezza = LatoCasella * NumColonne + 2.0 * intorno + 1,
          .altezza = LatoCasella * NumRighe + 2.0 * intorno + 1};
}

void CediGeometria() {
  geometriaCeduta = true;
}

void RiprendiGeometria() {
  const Superficie* superficie = FinestraPrincipale();
  if (geometriaCeduta && NumColonne > 0 && superficie) CalcolaGeometriaDellaFinestra(*superficie);
}

void DisegnaCaselle(Superficie& superficie, bool conLettere, const PostoInCasella& posto) {
  const double meta = LatoCasella / 2.0;
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c) {
      const double x = BordoSinistro(c);
      const double y = BordoAlto(r);
      DisegnaContorno(superficie, x, y, LatoCasella);
      const char lettera = LetteraCasella(c, r);
      if (lettera == CellaNera) {
        DisegnaCasellaNera(superficie, x, y, LatoCasella, ColoreCasella(c, r));
      } else if (lettera != CellaVuota && conLettere) {
        ScriviLettera(superficie, x + meta, y + meta, LatoCasella, lettera, posto);
      }
    }
  }
}

void DisegnaNumeri(Superficie& superficie, const PostoInCasella& posto) {
  const double distanza = LatoCasella / 100.0 * DistanzaDaSpigolo;
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c) {
      if (NumeroCasella(c, r) == 0) continue;
      ScriviNumero(superficie, BordoSinistro(c), BordoAlto(r), distanza, NumeroCasella(c, r),
                   posto);
    }
  }
}

bool SchemaColorato() {
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c) {
      if (LetteraCasella(c, r) == CellaNera && ColoreCasella(c, r) != ColoreNero) return true;
    }
  }
  return false;
}

double BordoSinistro(int colonna) {
  return (colonna - 1) * LatoCasella + OrigineX;
}

double BordoAlto(int riga) {
  return (riga - 1) * LatoCasella + OrigineY;
}

void AnticipaCasella(Casella casella, bool nera) {
  Superficie* superficie = FinestraPrincipale();
  if (!superficie) return;
  const double x = BordoSinistro(casella.colonna);
  const double y = BordoAlto(casella.riga);
  if (nera) {
    DisegnaCasellaNera(*superficie, x, y, LatoCasella,
                       ColoreCasella(casella.colonna, casella.riga));
  } else {
    const int g = RientroCasellaBianca;
    superficie->RiquadroPieno(x + g, y + g, x + LatoCasella - g, y + LatoCasella - g, ColoreBianco);
  }
  LaFinestra().MostraSubito();
}

}  // namespace telarium
