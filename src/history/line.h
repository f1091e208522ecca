#pragma once

#include <cstddef>
#include <vector>

#include "history/step.h"

namespace telarium {

/// The steps of one crossword: the state it began with and one for each change, of which one is
/// where the crossword stands. The steps behind that one have been undone; a new change takes their
/// place. There is no limit but that of memory: past it the oldest go.
class Linea {
 public:
  static constexpr std::size_t MaxByte = 64u << 20;

  explicit Linea(Passo inizio, std::size_t massimo = MaxByte);

  /// From 0, the oldest first.
  const std::vector<Passo>& Passi() const { return passi_; }
  std::size_t Posto() const { return posto_; }
  const Cruciverba& Attuale() const { return passi_[posto_].cruciverba; }

  /// Puts a change behind the place where the crossword stands, in place of what was undone.
  void Aggiungi(Passo passo);

  /// Goes to a step. One that there is not is a programming error.
  void VaiA(std::size_t posto);

  /// About how many bytes the steps take that they do not share.
  std::size_t Byte() const { return byte_; }

 private:
  std::vector<Passo> passi_;
  std::size_t posto_ = 0;
  std::size_t byte_ = 0;
  std::size_t massimo_;
};

}  // namespace telarium
