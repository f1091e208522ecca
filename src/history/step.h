#pragma once

#include <chrono>
#include <string>

#include "model/cruciverba.h"

namespace telarium {

/// One state of a crossword, and the change that led to it.
struct Passo {
  std::string motivo;  // the change in words, of the code page: "Casella nera 4,7"
  Cruciverba cruciverba;
  std::chrono::sys_seconds quando{};

  bool operator==(const Passo&) const = default;
};

}  // namespace telarium
