#pragma once

#include <random>

namespace telarium {

/// Uniform random numbers in [0, 1), seeded once per run from the system's source of randomness.
/// (Seeding from the clock before each draw would repeat itself within a second.)
class SorgenteCasuale {
 public:
  SorgenteCasuale() : SorgenteCasuale(std::random_device{}()) {}
  explicit SorgenteCasuale(std::uint64_t seme) : generatore_(seme) {}

  double Prossimo() {
    // 53 random bits are all that a double can tell apart below 1.
    return static_cast<double>(generatore_() >> 11) * 0x1.0p-53;
  }

 private:
  std::mt19937_64 generatore_;
};

}  // namespace telarium
