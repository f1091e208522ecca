#pragma once

#include <chrono>

namespace telarium {

/// Joins what could be shown at every step of a run to what a screen can show.
class Cadenza {
 public:
  /// Whether it is time to show something again: at first, and then 60 times a second.
  bool Scaduta() {
    const auto adesso = std::chrono::steady_clock::now();
    if (adesso < prossima_) return false;
    prossima_ = adesso + std::chrono::milliseconds(16);
    return true;
  }

 private:
  std::chrono::steady_clock::time_point prossima_;
};

}  // namespace telarium
