#pragma once

#include <cstdint>

namespace telarium {

/// Flags of the given names: 0 and -1, tested for not 0.
using Booleano16 = std::int16_t;
inline constexpr Booleano16 Falso = 0;
inline constexpr Booleano16 Vero = -1;

}  // namespace telarium
