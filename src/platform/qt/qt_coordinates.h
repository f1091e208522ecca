#pragma once

#include <algorithm>
#include <cmath>

namespace telarium {

/// A coordinate that every picture and page can be given: in place of one that is no number 0, in
/// place of one far outside of them one that is still safe in 32 bits, whatever the scale factor.
inline double CoordinataSicura(double coordinata) {
  constexpr double Massima = 100'000;
  return std::isnan(coordinata) ? 0 : std::clamp(coordinata, -Massima, Massima);
}

}  // namespace telarium
