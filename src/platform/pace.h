#pragma once

#include <chrono>

namespace telarium {

/// The pace at which long work shows how far it is and looks at the message loop: as often as the
/// screen can show it, 60 times a second.
class Cadenza {
 public:
  /// Whether it is time again; the first time at once.
  bool Scaduta() {
    const auto adesso = std::chrono::steady_clock::now();
    if (adesso < prossima_) return false;
    prossima_ = adesso + Intervallo;
    return true;
  }

 private:
  static constexpr std::chrono::milliseconds Intervallo{16};

  std::chrono::steady_clock::time_point prossima_;
};

}  // namespace telarium
