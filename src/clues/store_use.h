#pragma once

#include <functional>

namespace telarium {

/// Runs an operation on the encyclopedia. An error of the store ends it, shows Form6 and then the
/// error's description, and gives false; what was written until then stays.
bool ConEnciclopedia(const std::function<void()>& operazione);

/// The pointer has a shape of platform/user.h for as long as one of these lives, then it is the
/// arrow.
class FormaDelPuntatore {
 public:
  explicit FormaDelPuntatore(int forma);
  ~FormaDelPuntatore();
  FormaDelPuntatore(const FormaDelPuntatore&) = delete;
  FormaDelPuntatore& operator=(const FormaDelPuntatore&) = delete;
};

/// The hourglass, likewise.
class Clessidra : public FormaDelPuntatore {
 public:
  Clessidra();
};

}  // namespace telarium
