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

void DisegnaSchema(Superficie& superficie) {
  superficie.Pulisci();
  LaFinestra().MostraCommand3d15(false);
  LaFinestra().Titolo(
      Unisci("Telarium - ", NumColonne, 'x', NumRighe, "  ", TestoPercorso(NomeCruciverba)));
  const Geometria geometria = CalcolaGeometria(superficie, LaFinestra().AltezzaToolbar1(),
                                               LaFinestra().AltezzaStatusBar1());
  ImpostaGeometria(geometria);
  if (LatoCasella > 0) {  // in a tiny window no cell has room
    DisegnaFondoECornice(superficie);
    superficie.CorpoCarattere(CorpoLettere(LatoCasella, MinCorpoLettere));
    superficie.Carattere(FontDelleLettere());
    DisegnaCaselle(superficie, geometria, !NascondiSoluzioni);
    superficie.CorpoCarattere(CorpoNumeri(LatoCasella));
    DisegnaNumeri(superficie, geometria);
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
  if (Superficie* superficie = FinestraPrincipale()) DisegnaSchema(*superficie);
}

Geometria CalcolaGeometria(const Superficie& superficie, double cima, double fondo) {
  const double w = superficie.LarghezzaSuperficie();
  const double h = superficie.AltezzaSuperficie();
  const int a = ArrotondaPari((w - 2 * MargineProvvisorio - 4) / NumColonne);
  const int b = ArrotondaPari((h - cima - fondo - 2 - 2 * MargineProvvisorio - 4) / NumRighe);
  const auto lato = static_cast<std::int16_t>(std::max(std::min(a, b), 0));
  return {
      .lato = lato,
      .x = static_cast<std::int16_t>(ArrotondaPari((w - lato * NumColonne) / 2)),
      .y = static_cast<std::int16_t>(ArrotondaPari((cima + h - 2 - fondo - lato * NumRighe) / 2))};
}

Zona ZonaDelloSchema() {
  const int intorno = DistanzaCornice + std::max<int>(SpessoreBordo, 0);
  // Both edges of the frame belong to it.
  return {.sinistra = static_cast<double>(OrigineX - intorno),
          .cima = static_cast<double>(OrigineY - intorno),
          .larghezza = LatoCasella * NumColonne + 2.0 * intorno + 1,
          .altezza = LatoCasella * NumRighe + 2.0 * intorno + 1};
}

void DisegnaCaselle(Superficie& superficie, const Geometria& geometria, bool conLettere,
                    const PostoInCasella& posto) {
  const int lato = geometria.lato;
  const double meta = lato / 2.0;
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c) {
      const double x = geometria.BordoSinistro(c);
      const double y = geometria.BordoAlto(r);
      DisegnaContorno(superficie, x, y, lato);
      const char lettera = LetteraCasella(c, r);
      if (lettera == CellaNera) {
        DisegnaCasellaNera(superficie, x, y, lato, ColoreCasella(c, r));
      } else if (lettera != CellaVuota && conLettere) {
        ScriviLettera(superficie, x + meta, y + meta, lato, lettera, posto);
      }
    }
  }
}

void DisegnaNumeri(Superficie& superficie, const Geometria& geometria,
                   const PostoInCasella& posto) {
  const double distanza = geometria.lato / 100.0 * DistanzaDaSpigolo;
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c) {
      if (NumeroCasella(c, r) == 0) continue;
      ScriviNumero(superficie, geometria.BordoSinistro(c), geometria.BordoAlto(r), distanza,
                   NumeroCasella(c, r), posto);
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

void AnticipaCasella(Casella casella, bool nera) {
  Superficie* superficie = FinestraPrincipale();
  if (!superficie) return;
  const double x = GeometriaDelloSchema().BordoSinistro(casella.colonna);
  const double y = GeometriaDelloSchema().BordoAlto(casella.riga);
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
