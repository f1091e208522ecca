#include "model/pointer.h"

#include "model/state.h"

namespace telarium {

FormaDelPuntatore::FormaDelPuntatore(int forma) {
  ImpostaPuntatoreMouse(forma);
}

FormaDelPuntatore::~FormaDelPuntatore() {
  ImpostaPuntatoreMouse(PuntatoreFreccia);
}

Clessidra::Clessidra() : FormaDelPuntatore(PuntatoreClessidra) {}

}  // namespace telarium
