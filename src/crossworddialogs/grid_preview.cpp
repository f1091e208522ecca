#include "crossworddialogs/grid_preview.h"

#include <algorithm>

#include "platform/text.h"

namespace telarium {

AnteprimaDiSchema::AnteprimaDiSchema(Superficie& superficie, int colonne, int righe, double margine)
    : superficie_(superficie) {
  const double larghezza = superficie.LarghezzaSuperficie();
  const double altezza = superficie.AltezzaSuperficie();
  lato_ = std::max(0, std::min(ArrotondaPari((larghezza - margine) / colonne),
                               ArrotondaPari((altezza - margine) / righe)));
  // Half a unit more for each of many cells can come to more than the margin.
  if (lato_ * colonne > larghezza || lato_ * righe > altezza) lato_ = std::max(0, lato_ - 1);
  sinistra_ = ArrotondaPari((larghezza - lato_ * colonne) / 2);
  cima_ = ArrotondaPari((altezza - lato_ * righe) / 2);
}

}  // namespace telarium
