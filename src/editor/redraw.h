#pragma once

namespace telarium {

/// Brings the derived tables into line with Schema. With NumColonne 0 nothing happens.
void RidisegnaSchema();

}  // namespace telarium
