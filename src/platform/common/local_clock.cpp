#include "platform/common/local_clock.h"

#include <ctime>

namespace telarium {

std::chrono::year_month_day OggiLocale() {
  const std::time_t adesso = std::time(nullptr);
  std::tm locale{};
  ::localtime_r(&adesso, &locale);
  return std::chrono::year(locale.tm_year + 1900) /
         std::chrono::month(static_cast<unsigned>(locale.tm_mon) + 1) /
         std::chrono::day(static_cast<unsigned>(locale.tm_mday));
}

}  // namespace telarium
