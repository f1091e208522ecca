#pragma once

#include <cstdint>

namespace telarium {

/// Where a grid lies on a surface: side of its cells, left and top edge, in the surface's units. A
/// side of 0: it has no room there, or nothing was drawn yet.
struct Geometria {
  std::int16_t lato = 0;
  std::int16_t x = 0;
  std::int16_t y = 0;

  /// Left and top edge of a column or row of cells, which count from 1.
  double BordoSinistro(int colonna) const { return (colonna - 1) * lato + x; }
  double BordoAlto(int riga) const { return (riga - 1) * lato + y; }
};

/// Where the grid lies on the main window as last drawn, in pixels; the given names read it.
const Geometria& GeometriaDelloSchema();
extern const std::int16_t& LatoCasella;
extern const std::int16_t& OrigineX;
extern const std::int16_t& OrigineY;

/// Says where it lies, until the next redraw.
void ImpostaGeometria(const Geometria& geometria);

}  // namespace telarium
