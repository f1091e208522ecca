#pragma once

#include <functional>

namespace telarium {

/// Runs an operation on the encyclopedia. An error of the store ends it, shows Form6 and then the
/// error's description, and gives false; what was written until then stays.
bool ConEnciclopedia(const std::function<void()>& operazione);

/// The pointer is the hourglass for as long as one of these lives, then the arrow.
class Clessidra {
 public:
  Clessidra();
  ~Clessidra();
  Clessidra(const Clessidra&) = delete;
  Clessidra& operator=(const Clessidra&) = delete;
};

}  // namespace telarium
