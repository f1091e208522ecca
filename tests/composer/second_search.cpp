#include "composer/second_search.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace telarium {
namespace {

bool MayStand(const SmallCase& small, const Problema& problem, const SlotDaRiempire& slot,
              const std::string& letters) {
  const auto found = small.words.find(letters);
  if (found == small.words.end() || letters.size() != slot.caselle.size()) return false;
  const SmallCase::Word& word = found->second;
  const bool exempt = std::ranges::count(problem.volute, letters) > 0 ||
                      std::ranges::count(problem.esenti, letters) > 0;
  const bool good = word.score >= slot.minimo && (word.clued || exempt || !problem.soloDefinite);
  if (!good && !word.own) return false;
  return std::ranges::none_of(problem.altrove, [&](const std::string& other) {
    return other == letters || (!problem.ammetteForme && small.Akin(other, letters));
  });
}

// Whether words may stand together, whatever their slots are.
bool Together(const SmallCase& small, const Problema& problem,
              const std::vector<std::string>& words) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (words[i] == words[j]) return false;
      if (!problem.ammetteForme && small.Akin(words[i], words[j])) return false;
    }
  }
  for (std::size_t kind = 0; kind < NumGenie; ++kind) {
    const auto many = std::ranges::count_if(words, [&](const std::string& letters) {
      const SmallCase::Word& word = small.words.at(letters);
      return !word.own && (word.kinds >> kind & 1) != 0;
    });
    if (problem.alMassimo[kind] != SenzaLimite && many > problem.alMassimo[kind]) return false;
  }
  return true;
}

bool Fits(const std::string& word, const std::string& mask) {
  return std::equal(word.begin(), word.end(), mask.begin(), mask.end(),
                    [](char letter, char wished) { return wished == '.' || wished == letter; });
}

// Whether some word could still stand in each open slot, beside all that are placed.
bool LeavesWords(const SmallCase& small, const Problema& problem, const std::string& letters,
                 std::vector<std::string> placed) {
  placed.emplace_back();
  for (int slot = 0; slot < problem.Slot(); ++slot) {
    const SlotDaRiempire& one = problem.slot[static_cast<std::size_t>(slot)];
    const std::string mask = Maschera(problem, slot, letters);
    const bool left = !one.aperto || std::ranges::any_of(small.words, [&](const auto& word) {
      placed.back() = word.first;
      return Fits(word.first, mask) && MayStand(small, problem, one, word.first) &&
             Together(small, problem, placed);
    });
    if (!left) return false;
  }
  return true;
}

}  // namespace

SecondSearch::SecondSearch(const SmallCase& small, const Problema& problem)
    : small_(small),
      problem_(problem),
      slotsOfCell_(problem.lettere.size()),
      allowed_(problem.lettere),
      letters_(problem.lettere.size(), SenzaLettera) {
  for (int slot = 0; slot < problem.Slot(); ++slot) {
    const SlotDaRiempire& one = problem.slot[static_cast<std::size_t>(slot)];
    for (const int cell : one.caselle)
      slotsOfCell_[static_cast<std::size_t>(cell)].push_back(slot);
    auto& domain = domains_.emplace_back();
    for (const auto& [letters, word] : small.words) {
      if (MayStand(small, problem, one, letters)) domain.push_back(letters);
    }
  }
}

Esito SecondSearch::Decide(std::int64_t most) {
  most_ = most;
  for (int slot = 0; slot < problem_.Slot(); ++slot) {
    if (!SomeWordFits(slot, Maschera(problem_, slot, letters_))) return Esito::Impossibile;
  }
  if (PlaceWanted(0)) return Esito::Riempito;
  return tried_ > most_ ? Esito::Tempo : Esito::Impossibile;
}

bool SecondSearch::PlaceWanted(std::size_t which) {
  if (which == problem_.volute.size()) return FillFrom(0);
  const std::string& word = problem_.volute[which];
  for (int slot = 0; slot < problem_.Slot(); ++slot) {
    const auto& [cells, least, open] = problem_.slot[static_cast<std::size_t>(slot)];
    if (open || cells.size() != word.size()) continue;
    const auto before = std::pair(allowed_, letters_);
    bool possible = true;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const auto cell = static_cast<std::size_t>(cells[i]);
      possible &= (allowed_[cell] &= SolaLettera(word[i])) != 0;
      letters_[cell] = word[i];
    }
    if (possible && PlaceWanted(which + 1)) return true;
    std::tie(allowed_, letters_) = before;
  }
  return false;
}

bool SecondSearch::FillFrom(std::size_t place) {
  if (tried_ > most_) return false;
  if (place == small_.readingOrder.size()) return LeavesWords(small_, problem_, letters_, placed_);
  const int cell = small_.readingOrder[place];
  // A part of the problem may be without some cells.
  if (problem_.Lasciata(cell) || slotsOfCell_[static_cast<std::size_t>(cell)].empty())
    return FillFrom(place + 1);
  const char before = letters_[static_cast<std::size_t>(cell)];
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const bool allowed = (allowed_[static_cast<std::size_t>(cell)] & SolaLettera(letter)) != 0;
    if (allowed && Try(cell, letter, place)) return true;
  }
  letters_[static_cast<std::size_t>(cell)] = before;
  return false;
}

bool SecondSearch::Try(int cell, char letter, std::size_t place) {
  ++tried_;
  letters_[static_cast<std::size_t>(cell)] = letter;
  const std::size_t before = placed_.size();
  const bool sound = std::ranges::all_of(slotsOfCell_[static_cast<std::size_t>(cell)],
                                         [&](int slot) { return Stands(slot, cell); });
  if (sound && FillFrom(place + 1)) return true;
  placed_.resize(before);
  return false;
}

bool SecondSearch::Stands(int slot, int cell) {
  const std::string mask = Maschera(problem_, slot, letters_);
  if (!SomeWordFits(slot, mask)) return false;
  const auto& [cells, least, open] = problem_.slot[static_cast<std::size_t>(slot)];
  if (open || cell != cells.back()) return true;
  placed_.push_back(mask);
  return Together(small_, problem_, placed_);
}

bool SecondSearch::SomeWordFits(int slot, const std::string& mask) const {
  const auto& domain = domains_[static_cast<std::size_t>(slot)];
  const std::string beginning = mask.substr(0, mask.find('.'));
  for (auto word = std::ranges::lower_bound(domain, beginning);
       word != domain.end() && word->starts_with(beginning); ++word) {
    if (Fits(*word, mask)) return true;
  }
  return false;
}

std::vector<std::string> FaultsOf(const SmallCase& small, const Problema& problem,
                                  const std::string& letters, bool part) {
  if (letters.size() != problem.lettere.size()) return {"another number of cells"};
  std::vector<std::string> faults, words;
  for (std::size_t cell = 0; cell < letters.size(); ++cell) {
    const char letter = letters[cell];
    const bool left = problem.Lasciata(static_cast<int>(cell));
    const bool none = letter == SenzaLettera;
    if (none && !left && !part) faults.push_back("an empty cell");
    if (!none && (left || letter < 'A' || letter > 'Z' ||
                  (problem.lettere[cell] & SolaLettera(letter)) == 0))
      faults.push_back("a cell with another letter");
  }
  for (int slot = 0; slot < problem.Slot(); ++slot) {
    const SlotDaRiempire& one = problem.slot[static_cast<std::size_t>(slot)];
    const std::string mask = Maschera(problem, slot, letters);
    if (mask.find('.') == std::string::npos) {
      words.push_back(mask);
      if (!MayStand(small, problem, one, mask)) faults.push_back(mask + " may not stand");
    }
  }
  if (faults.empty() && !Together(small, problem, words)) faults.push_back("not together");
  if (faults.empty() && !part && !LeavesWords(small, problem, letters, words))
    faults.push_back("no word is left for an open slot");
  for (const std::string& word : problem.volute) {
    if (!part && std::ranges::find(words, word) == words.end())
      faults.push_back(word + " is wanted");
  }
  return faults;
}

}  // namespace telarium
