#pragma once

#include <chrono>

namespace telarium {

/// Today's date by the clock on the wall.
std::chrono::year_month_day OggiLocale();

}  // namespace telarium
