#include "composer/small_case.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

namespace telarium {
namespace {

int Below(int bound, std::mt19937_64& chance) {
  return static_cast<int>(chance() % static_cast<std::uint64_t>(bound));
}

bool OneIn(int times, std::mt19937_64& chance) {
  return Below(times, chance) == 0;
}

template <class Values>
const auto& OneOf(const Values& values, std::mt19937_64& chance) {
  return *std::next(values.begin(), Below(static_cast<int>(values.size()), chance));
}

class Drawing {
 public:
  Drawing(const CaseShape& shape, std::mt19937_64& chance) : shape_(shape), chance_(chance) {}

  SmallCase Draw() {
    DrawGrid();
    NumberCells();
    DrawWords();
    if (shape_.demands) DrawDemands();
    MakeVocabulary();
    return std::move(drawn_);
  }

 private:
  using Run = std::vector<int>;  // places row by row

  void DrawGrid() {
    const int places = shape_.columns * shape_.rows;
    white_.resize(static_cast<std::size_t>(places));
    for (std::size_t place = 0; place < white_.size(); ++place)
      white_[place] = Below(100, chance_) >= shape_.black;
    inRegion_.assign(white_.size(), true);
    if (!shape_.demands || !OneIn(6, chance_)) return;
    const int column = Below(shape_.columns, chance_), row = Below(shape_.rows, chance_);
    for (int place = 0; place < places; ++place) {
      inRegion_[static_cast<std::size_t>(place)] =
          place % shape_.columns <= column && place / shape_.columns <= row;
    }
  }

  // Runs with a cell in the region, in reading order of their first cells.
  std::vector<Run> Runs() const {
    std::vector<Run> runs;
    for (int place = 0; place < shape_.columns * shape_.rows; ++place) {
      for (const bool across : {true, false}) {
        const int step = across ? 1 : shape_.columns;
        if (White(place, 0, across) && !White(place, -1, across)) {
          Run run;
          for (int i = 0; White(place, i, across); ++i)
            run.push_back(place + i * step);
          if (run.size() > 1 && std::ranges::any_of(run, [&](int one) { return InRegion(one); }))
            runs.push_back(run);
        }
      }
    }
    return runs;
  }

  bool InRegion(int place) const { return inRegion_[static_cast<std::size_t>(place)]; }

  bool White(int place, int away, bool across) const {
    const int column = place % shape_.columns + (across ? away : 0);
    const int row = place / shape_.columns + (across ? 0 : away);
    return column >= 0 && column < shape_.columns && row >= 0 && row < shape_.rows &&
           white_[static_cast<std::size_t>(row * shape_.columns + column)];
  }

  // The composer may not rely on any order of the cells: they have numbers by lot.
  void NumberCells() {
    const std::vector<Run> runs = Runs();
    std::set<int> places;
    for (const Run& run : runs)
      places.insert(run.begin(), run.end());
    drawn_.readingOrder.resize(places.size());
    std::iota(drawn_.readingOrder.begin(), drawn_.readingOrder.end(), 0);
    for (std::size_t i = places.size(); i > 1; --i)
      std::swap(drawn_.readingOrder[i - 1],
                drawn_.readingOrder[static_cast<std::size_t>(Below(static_cast<int>(i), chance_))]);
    std::map<int, int> numbers;
    Problema& problem = drawn_.problem;
    problem.lettere.assign(places.size(), TutteLeLettere);
    problem.lasciate.assign(places.size(), false);
    for (const int place : places) {
      const int number = drawn_.readingOrder[numbers.size()];
      problem.lasciate[static_cast<std::size_t>(number)] = !InRegion(place);
      numbers[place] = number;
    }
    for (const Run& run : runs) {
      SlotDaRiempire slot;
      for (const int place : run) {
        slot.caselle.push_back(numbers[place]);
        slot.aperto |= !InRegion(place);
      }
      problem.slot.push_back(slot);
    }
  }

  // As many of a length that the grid is near the edge between possible and not.
  void DrawWords() {
    const Problema& problem = drawn_.problem;
    const double cellsOfASlot =
        static_cast<double>(problem.Caselle()) / std::max(1, problem.Slot());
    std::set<std::size_t> lengths;
    for (const SlotDaRiempire& slot : problem.slot)
      lengths.insert(slot.caselle.size());
    for (const std::size_t length : lengths) {
      const double all = std::pow(shape_.letters, length);
      const double wished =
          shape_.plenty * all / std::pow(shape_.letters, cellsOfASlot) + Below(2, chance_);
      const auto tries = static_cast<int>(std::clamp(wished, 2.0, 1000.0));
      for (int i = 0; i < tries; ++i)
        drawn_.words[DrawLetters(length)] = DrawWord();
    }
  }

  std::string DrawLetters(std::size_t length) {
    std::string letters(length, 'A');
    for (char& letter : letters)
      letter = static_cast<char>('A' + 5 * Below(shape_.letters, chance_));
    return letters;
  }

  SmallCase::Word DrawWord() {
    SmallCase::Word word{
        .score = Below(101, chance_), .clued = !OneIn(8, chance_), .own = OneIn(30, chance_)};
    for (int kind = 0; kind < NumGenie; ++kind) {
      if (OneIn(8, chance_)) word.kinds |= SolaGenia(static_cast<Genia>(kind));
    }
    return word;
  }

  void DrawDemands() {
    Problema& problem = drawn_.problem;
    if (problem.slot.empty()) return;
    if (OneIn(3, chance_)) GiveLetters();
    if (OneIn(3, chance_)) DemandScores();
    problem.soloDefinite = OneIn(6, chance_);
    if (OneIn(4, chance_)) LimitKinds();
    problem.ammetteForme = OneIn(3, chance_);
    DrawKinship();
    for (int i = OneIn(4, chance_) ? 1 + Below(3, chance_) : 0; i > 0; --i)
      problem.altrove.push_back(SomeWord());
    for (int i = OneIn(4, chance_) ? 1 + Below(2, chance_) : 0; i > 0; --i)
      problem.volute.push_back(OneOf(drawn_.words, chance_).first);
  }

  // A word of the case or another one.
  std::string SomeWord() {
    const std::string& word = OneOf(drawn_.words, chance_).first;
    return OneIn(3, chance_) ? DrawLetters(word.size()) : word;
  }

  void GiveLetters() {
    for (int i = 1 + Below(3, chance_); i > 0; --i) {
      const SlotDaRiempire& slot = OneOf(drawn_.problem.slot, chance_);
      const auto cell = static_cast<std::size_t>(OneOf(slot.caselle, chance_));
      if (drawn_.problem.lasciate[cell]) continue;
      drawn_.problem.lettere[cell] = SolaLettera(DrawLetters(1)[0]);
      if (OneIn(4, chance_)) drawn_.problem.lettere[cell] |= SolaLettera(DrawLetters(1)[0]);
      if (OneIn(40, chance_)) drawn_.problem.lettere[cell] = 0;
    }
  }

  void DemandScores() {
    const int least = Below(25, chance_);
    for (SlotDaRiempire& slot : drawn_.problem.slot)
      slot.minimo = OneIn(5, chance_) ? Below(60, chance_) : least;
  }

  void LimitKinds() {
    for (int& most : drawn_.problem.alMassimo) {
      if (OneIn(2, chance_)) most = Below(3, chance_);
    }
  }

  // No words of a family, since it need not be that the kin of kin are akin.
  void DrawKinship() {
    for (int i = Below(static_cast<int>(drawn_.words.size()), chance_); i > 0; --i) {
      const std::string one = SomeWord(), other = SomeWord();
      drawn_.kinship.insert({one, other});
      drawn_.kinship.insert({other, one});
    }
  }

  void MakeVocabulary() {
    std::vector<ParolaDaUsare> words;
    for (const auto& [letters, word] : drawn_.words)
      words.push_back(
          {letters, Below(MaxPregio + 1, chance_), word.score, word.clued, word.own, word.kinds});
    Vocabolario::Parentela kin;
    if (!drawn_.kinship.empty()) {
      kin = [kinship = drawn_.kinship](std::string_view word) {
        std::vector<std::string> found;
        for (auto pair = kinship.lower_bound({std::string(word), ""});
             pair != kinship.end() && pair->first == word; ++pair)
          found.push_back(pair->second);
        return found;
      };
    }
    drawn_.problem.vocabolario = std::make_shared<const Vocabolario>(words, kin);
  }

  const CaseShape& shape_;
  std::mt19937_64& chance_;
  std::vector<bool> white_, inRegion_;
  SmallCase drawn_;
};

}  // namespace

CaseShape DrawShape(std::mt19937_64& chance) {
  CaseShape shape;
  shape.columns = 2 + Below(5, chance);
  shape.rows = 2 + Below(5, chance);
  shape.black = Below(30, chance);
  shape.letters = 2 + Below(shape.columns * shape.rows > 24 ? 2 : 4, chance);
  shape.plenty = 1 + Below(400, chance) / 100.0;
  shape.demands = !OneIn(4, chance);
  return shape;
}

SmallCase DrawCase(const CaseShape& shape, std::mt19937_64& chance) {
  return Drawing(shape, chance).Draw();
}

SmallCase DrawCase(std::uint64_t seed) {
  std::mt19937_64 chance(seed);
  const CaseShape shape = DrawShape(chance);
  return DrawCase(shape, chance);
}

}  // namespace telarium
