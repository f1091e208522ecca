#pragma once

#include <QColor>

#include "platform/surface.h"

namespace telarium {

/// A colour of the core as Qt has it, and back.
inline QColor ColoreQt(Colore colore) {
  return QColor(colore & 0xFF, (colore >> 8) & 0xFF, (colore >> 16) & 0xFF);
}
inline Colore ColoreDaQt(const QColor& colore) {
  return colore.red() | colore.green() << 8 | colore.blue() << 16;
}

}  // namespace telarium
