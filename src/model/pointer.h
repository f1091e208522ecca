#pragma once

namespace telarium {

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
