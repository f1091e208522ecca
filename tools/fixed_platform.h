#pragma once

#include <chrono>
#include <cstdint>

#include "platform/common/random_source.h"
#include "platform/qt/qt_platform.h"

namespace telarium {

inline constexpr std::uint64_t Seed = 20240305;  // with it a fill of the sample has a dead end
inline constexpr std::chrono::year_month_day Today{std::chrono::year(2026), std::chrono::month(11),
                                                   std::chrono::day(23)};

// The user's machine without chance, time and network.
class FixedMachine : public MacchinaQt {
 public:
  std::chrono::year_month_day Oggi() override { return Today; }
  double Casuale() override { return random_.Prossimo(); }
  Prelevato Preleva(const std::string&, const LimitiDiPrelievo&, const ProseguePrelievo&) override {
    return {};
  }

 private:
  SorgenteCasuale random_{Seed};
};

class FixedPlatform : public PiattaformaQt {
 public:
  Macchina& Sistema() override { return machine_; }

 private:
  FixedMachine machine_;
};

}  // namespace telarium
