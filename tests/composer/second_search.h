#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "composer/composer.h"
#include "composer/small_case.h"

// A search of another kind than the composer's, and a reader of answers: both plain and slow, for
// small cases.
namespace telarium {

/// Letters go into the cells in reading order, each as long as some word begins so. Nothing is
/// known of what lies ahead. A wanted word is put into each slot of its length in turn.
class SecondSearch {
 public:
  /// Looks at `problem` with the words of `small`, which must outlive it.
  SecondSearch(const SmallCase& small, const Problema& problem);

  /// Tempo when it would try more letters than that.
  Esito Decide(std::int64_t most);
  /// The fill, by cell.
  const std::string& Letters() const { return letters_; }
  std::int64_t Tried() const { return tried_; }

 private:
  bool PlaceWanted(std::size_t which);
  bool FillFrom(std::size_t place);
  bool Try(int cell, char letter, std::size_t place);
  bool Stands(int slot, int cell);
  bool SomeWordFits(int slot, const std::string& mask) const;

  const SmallCase& small_;
  const Problema& problem_;
  std::vector<std::vector<std::string>> domains_;  // by slot, sorted
  std::vector<std::vector<int>> slotsOfCell_;
  std::vector<Lettere> allowed_;  // by cell
  std::string letters_;
  std::vector<std::string> placed_;  // in whole slots
  std::int64_t tried_ = 0, most_ = 0;
};

/// What is wrong with an answer. With `part` it may be unfinished: what is whole must be sound.
std::vector<std::string> FaultsOf(const SmallCase& small, const Problema& problem,
                                  const std::string& letters, bool part = false);

}  // namespace telarium
