#include "crossworddialogs/grid_preview.h"

#include <algorithm>

#include "editor/cell_drawing.h"
#include "platform/text.h"

namespace telarium {

AnteprimaDiSchema::AnteprimaDiSchema(Superficie& superficie, int colonne, int righe, double margine)
    : superficie_(superficie) {
  const double larghezza = superficie.LarghezzaSuperficie();
  const double altezza = superficie.AltezzaSuperficie();
  lato_ = std::max(0, std::min(ArrotondaPari((larghezza - margine) / colonne),
                               ArrotondaPari((altezza - margine) / righe)));
  sinistra_ = ArrotondaPari((larghezza - lato_ * colonne) / 2);
  cima_ = ArrotondaPari((altezza - lato_ * righe) / 2);
}

void AnteprimaDiSchema::Contorno(int colonna, int riga) const {
  const double x = Sinistra(colonna);
  const double y = Cima(riga);
  superficie_.Riquadro(x, y, x + lato_, y + lato_, ColoreNero);
}

void AnteprimaDiSchema::Nera(int colonna, int riga, Colore colore) const {
  const double x = Sinistra(colonna);
  const double y = Cima(riga);
  const double g = RientroCasellaNera(lato_);
  superficie_.RiquadroPieno(x + g, y + g, x + lato_ - g, y + lato_ - g, colore);
}

}  // namespace telarium
