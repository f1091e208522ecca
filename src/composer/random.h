#pragma once

#include <cstdint>

namespace telarium {

/// Chance from a seed, the same on every machine (SplitMix64, Steele, Lea and Flood, 2014).
class Caso {
 public:
  explicit Caso(std::uint64_t seme) : stato_(seme) {}

  std::uint64_t Prossimo() {
    std::uint64_t z = (stato_ += 0x9e3779b97f4a7c15u);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
  }

  /// From 0 to quanti - 1.
  int Fino(int quanti) {
    return static_cast<int>((Prossimo() >> 32) * static_cast<std::uint64_t>(quanti) >> 32);
  }

 private:
  std::uint64_t stato_;
};

}  // namespace telarium
