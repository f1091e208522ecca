#pragma once

#include <functional>

// What must not outlive the process, as a lock or a temporary folder, also where its end destroys
// no objects.
namespace telarium {

/// Something that is to be given back: when this object dies, or before that when the program ends.
class Impegno {
 public:
  explicit Impegno(std::function<void()> assolve);
  ~Impegno();
  Impegno(const Impegno&) = delete;
  Impegno& operator=(const Impegno&) = delete;

 private:
  friend void AssolviImpegni();

  std::function<void()> assolve_;
};

/// Gives back all that is left, the youngest first. Called by the end of the program alone, in the
/// main thread, where all of them are made.
void AssolviImpegni();

}  // namespace telarium
