#include "editor/small_picture.h"

#include "editor/grid_preview.h"

namespace telarium {
namespace {

constexpr double Margine = 10;  // both sides together

}  // namespace

void DisegnaInPiccolo(Superficie& superficie, const Cruciverba& cruciverba) {
  superficie.Pulisci();
  if (cruciverba.colonne == 0) return;
  const AnteprimaDiSchema schema(superficie, cruciverba.colonne, cruciverba.righe, Margine,
                                 AnteprimaDiSchema::Misura::Troncata);
  superficie.Carattere(CarattereIniziale);
  superficie.CorpoCarattere(CorpoLettereIntero(schema.Lato()));
  for (int r = 1; r <= cruciverba.righe; ++r) {
    for (int c = 1; c <= cruciverba.colonne; ++c) {
      const char carattere = CarattereDi(cruciverba, {c, r});
      schema.Casella(c, r, carattere, cruciverba.colori(c, r), [&](double x, double y) {
        ScriviLettera(superficie, x, y, schema.Lato(), carattere);
      });
    }
  }
}

}  // namespace telarium
