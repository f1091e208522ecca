#include "editor/grid_preview.h"

#include <algorithm>

#include "platform/text.h"

namespace telarium {

AnteprimaDiSchema::AnteprimaDiSchema(Superficie& superficie, int colonne, int righe, double margine,
                                     Misura misura)
    : superficie_(superficie) {
  const double larghezza = superficie.LarghezzaSuperficie();
  const double altezza = superficie.AltezzaSuperficie();
  const double lato = std::min((larghezza - margine) / colonne, (altezza - margine) / righe);
  lato_ = std::max(0, misura == Misura::Arrotondata ? ArrotondaPari(lato) : static_cast<int>(lato));
  // Half a unit more for each of many cells can come to more than the margin.
  if (lato_ * colonne > larghezza || lato_ * righe > altezza) lato_ = std::max(0, lato_ - 1);
  sinistra_ = ArrotondaPari((larghezza - lato_ * colonne) / 2);
  cima_ = ArrotondaPari((altezza - lato_ * righe) / 2);
}

}  // namespace telarium
