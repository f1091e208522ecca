#include "editor/geometry.h"

#include "model/state.h"

namespace telarium {
namespace {

Geometria dellaFinestra;
const AzzeramentoDiSottosistema azzeramento([] { dellaFinestra = {}; });

}  // namespace

const Geometria& GeometriaDelloSchema() {
  return dellaFinestra;
}

const std::int16_t& LatoCasella = dellaFinestra.lato;
const std::int16_t& OrigineX = dellaFinestra.x;
const std::int16_t& OrigineY = dellaFinestra.y;

void ImpostaGeometria(const Geometria& geometria) {
  dellaFinestra = geometria;
}

}  // namespace telarium
