#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "history/step.h"

namespace telarium {

/// The steps of one crossword: the state it began with and one for each change, of which one is
/// where the crossword stands. The steps behind that one have been undone; a new change takes their
/// place. There is no limit but that of memory: past it the oldest go. Copies share their steps.
class Linea {
 public:
  static constexpr std::size_t MaxByte = 64u << 20;

  /// `caduti`: how many older ones have gone before.
  explicit Linea(Passo inizio, std::size_t massimo = MaxByte, std::size_t caduti = 0);

  /// From 0, the oldest first. One that there is not is a programming error.
  std::size_t Quanti() const { return passi_.size(); }
  const Passo& operator[](std::size_t posto) const;

  std::size_t Posto() const { return posto_; }
  const Cruciverba& Attuale() const { return (*this)[posto_].cruciverba; }

  /// Puts a change behind the place where the crossword stands, in place of what was undone.
  void Aggiungi(Passo passo);

  /// Goes to a step. One that there is not is a programming error.
  void VaiA(std::size_t posto);

  /// Gives the step where the crossword stands another value, as what its file really holds.
  void Correggi(Cruciverba cruciverba);

  /// The step that the file of the crossword holds; none when that one has gone, or never was one.
  std::optional<std::size_t> PostoDelFile() const { return postoDelFile_; }
  void PostoDelFile(std::optional<std::size_t> posto) { postoDelFile_ = posto; }

  /// How many of the oldest steps have gone: with it a place keeps its number for ever.
  std::size_t Caduti() const { return caduti_; }

  /// About how many bytes the steps take; what they share counts once.
  std::size_t Byte() const { return byte_; }

 private:
  struct Elemento {
    std::shared_ptr<const Passo> passo;
    std::size_t byte;  // that it does not share with the one before
  };

  void TogliDietro(std::size_t posto);
  void TogliIlPrimo();

  std::vector<Elemento> passi_;
  std::size_t posto_ = 0;
  std::optional<std::size_t> postoDelFile_;
  std::size_t byte_ = 0;
  std::size_t massimo_;
  std::size_t caduti_;
};

}  // namespace telarium
