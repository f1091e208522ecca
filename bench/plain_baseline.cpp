#include "plain_baseline.h"

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

namespace telarium::plain {
namespace {

// Calls `visit` with the number and the text of each word of a section until it gives false.
template <class Visit>
void ForEachWord(const Dizionario& dictionary, int length, Visit visit) {
  const int file = ::open(dictionary.PercorsoDizionario().c_str(), O_RDONLY);
  const off_t start = dictionary.OffsetLunghezza(length - MinLunghezza) - 1;
  const int count = dictionary.ContaLunghezza(length - MinLunghezza);
  std::string word(static_cast<std::size_t>(length), ' ');
  for (int n = 1; n <= count; ++n) {
    ::lseek(file, start + off_t{n - 1} * length, SEEK_SET);
    if (::read(file, word.data(), word.size()) != length || !visit(n, word)) break;
  }
  ::close(file);
}

bool Fits(std::string_view word, std::string_view pattern) {
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] != ' ' && pattern[i] != word[i]) return false;
  }
  return true;
}

bool IsBlank(std::string_view pattern) {
  return pattern.find_first_not_of(' ') == std::string_view::npos;
}

// A run of at least two white cells, by the places of its cells in a row-major grid.
struct Run {
  std::vector<std::size_t> cells;
};

class PlainFill {
 public:
  PlainFill(const Dizionario& dictionary, std::vector<std::string> rows,
            const std::function<double()>& random)
      : dictionary_(dictionary), random_(random), width_(rows.front().size()) {
    for (const std::string& row : rows)
      grid_ += row;
    std::replace(grid_.begin(), grid_.end(), '.', ' ');
    across_ = FindRuns(1);
    down_ = FindRuns(width_);
  }

  std::vector<std::string> Rows() {
    for (std::size_t length = 15; length >= 3; --length) {
      for (std::size_t cell = 0; cell < grid_.size(); ++cell) {
        TakeRunAt(across_, down_, cell, length);
        TakeRunAt(down_, across_, cell, length);
      }
    }
    constexpr std::string_view letters = "ABCDEFGHILMNOPQRSTUVZ";
    for (char& cell : grid_) {
      if (cell == ' ') cell = letters[static_cast<std::size_t>(21 * random_())];
    }
    std::vector<std::string> rows;
    for (std::size_t i = 0; i < grid_.size(); i += width_)
      rows.push_back(grid_.substr(i, width_));
    return rows;
  }

 private:
  bool White(std::size_t cell) const { return grid_[cell] != '*'; }

  // Runs along a step of 1 (across) or of the width (down), each at the place of its first cell.
  std::vector<Run> FindRuns(std::size_t step) const {
    std::vector<Run> runs(grid_.size());
    for (std::size_t cell = 0; cell < grid_.size(); ++cell) {
      const bool edge = step == 1 ? cell % width_ == 0 : cell < width_;
      if (!White(cell) || (!edge && White(cell - step))) continue;
      Run run;
      for (std::size_t at = cell; at < grid_.size() && White(at); at += step) {
        if (step == 1 && at / width_ != cell / width_) break;
        run.cells.push_back(at);
      }
      if (run.cells.size() >= 2) runs[cell] = std::move(run);
    }
    return runs;
  }

  std::string Letters(const Run& run) const {
    std::string letters;
    for (const std::size_t cell : run.cells)
      letters += grid_[cell];
    return letters;
  }

  static const Run* Through(const std::vector<Run>& runs, std::size_t cell) {
    for (const Run& run : runs) {
      if (std::find(run.cells.begin(), run.cells.end(), cell) != run.cells.end()) return &run;
    }
    return nullptr;
  }

  void TakeRunAt(const std::vector<Run>& runs, const std::vector<Run>& crossing, std::size_t cell,
                 std::size_t length) {
    const Run& run = runs[cell];
    if (run.cells.size() != length) return;
    const std::vector<int> fitting = FittingWords(dictionary_, Letters(run));
    if (fitting.empty()) return;
    const auto drawn = static_cast<std::size_t>(static_cast<double>(fitting.size()) * random_());
    const std::string word = ReadWord(dictionary_, fitting[drawn], static_cast<int>(length));
    TestCrossings(run, crossing);
    for (std::size_t k = 0; k < length; ++k)
      grid_[run.cells[k]] = word[k];
  }

  // The outcome of the test does not matter here, where every dead end is accepted; its work does.
  void TestCrossings(const Run& run, const std::vector<Run>& crossing) const {
    for (const std::size_t cell : run.cells) {
      const Run* other = Through(crossing, cell);
      const std::string letters = other ? Letters(*other) : std::string();
      if (letters.size() < 3 || letters.find(' ') != std::string::npos) continue;
      if (!WordExists(dictionary_, letters)) return;
    }
  }

  const Dizionario& dictionary_;
  const std::function<double()>& random_;
  std::size_t width_;
  std::string grid_;
  std::vector<Run> across_;
  std::vector<Run> down_;
};

}  // namespace

std::vector<int> FittingWords(const Dizionario& dictionary, std::string_view pattern) {
  std::vector<int> numbers;
  const bool blank = IsBlank(pattern);
  ForEachWord(dictionary, static_cast<int>(pattern.size()), [&](int n, const std::string& word) {
    const bool fits = blank ? word.find_first_of("QH") == std::string::npos : Fits(word, pattern);
    if (fits) numbers.push_back(n);
    return true;
  });
  return numbers;
}

bool WordExists(const Dizionario& dictionary, std::string_view pattern) {
  if (!LunghezzaAmmessa(static_cast<int>(pattern.size()))) return false;
  bool found = false;
  ForEachWord(dictionary, static_cast<int>(pattern.size()), [&](int, const std::string& word) {
    found = Fits(word, pattern);
    return !found;
  });
  return found;
}

std::string ReadWord(const Dizionario& dictionary, int number, int length) {
  const int file = ::open(dictionary.PercorsoDizionario().c_str(), O_RDONLY);
  std::string word(static_cast<std::size_t>(length), ' ');
  ::lseek(file, dictionary.OffsetLunghezza(length - MinLunghezza) - 1 + off_t{number - 1} * length,
          SEEK_SET);
  const bool read = ::read(file, word.data(), word.size()) == length;
  ::close(file);
  return read ? word : std::string();
}

std::vector<std::string> Fill(const Dizionario& dictionary, std::vector<std::string> rows,
                              const std::function<double()>& random) {
  return PlainFill(dictionary, std::move(rows), random).Rows();
}

}  // namespace telarium::plain
