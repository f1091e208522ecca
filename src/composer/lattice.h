#pragma once

#include <span>
#include <vector>

#include "composer/problem.h"

namespace telarium {

/// A place of a slot, from 0; slot -1 for none.
struct PostoDiSlot {
  int slot = -1;
  int posto = 0;
};

/// How the slots of a problem hang together. Slots and cells keep their numbers.
class Reticolo {
 public:
  Reticolo() = default;
  explicit Reticolo(const Problema& problema);
  /// The same of runs of cells, one behind the other: slot s has `lunghezze[s]` of them.
  Reticolo(std::span<const int> caselle, std::span<const int> lunghezze, int quanteCaselle);

  int Slot() const { return static_cast<int>(inizi_.size()) - 1; }
  int Caselle() const { return static_cast<int>(perCasella_.size()); }
  int Lunghezza(int slot) const { return inizi_[S(slot) + 1] - inizi_[S(slot)]; }

  std::span<const int> CaselleDi(int slot) const {
    return {caselle_.data() + inizi_[S(slot)], static_cast<std::size_t>(Lunghezza(slot))};
  }
  /// For each place of a slot where the other slot through its cell has it.
  std::span<const PostoDiSlot> IncrociDi(int slot) const {
    return {incroci_.data() + inizi_[S(slot)], static_cast<std::size_t>(Lunghezza(slot))};
  }
  /// The one or two slots of a cell; the second is missing where there is one.
  const std::array<PostoDiSlot, 2>& SlotDi(int casella) const { return perCasella_[S(casella)]; }
  /// The slots of a length, rising.
  std::span<const int> DiLunghezza(int lunghezza) const {
    return perLunghezza_[static_cast<std::size_t>(lunghezza)];
  }

 private:
  static constexpr std::size_t S(int numero) { return static_cast<std::size_t>(numero); }
  void Collega();

  std::vector<int> inizi_ = {0};  // of the cells of each slot, and the end of the last one
  std::vector<int> caselle_;
  std::vector<PostoDiSlot> incroci_;
  std::vector<std::array<PostoDiSlot, 2>> perCasella_;
  std::array<std::vector<int>, MaxLunghezzaVoce + 1> perLunghezza_;
};

}  // namespace telarium
