#pragma once

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/layer.h"
#include "platform/check.h"

namespace telarium {

/// A layer of a few entries, each a line "WORD SCORE" with, behind it, any number of readings
/// "ANALYSIS LEMMA" and marks as "+sigla"; a "=SPELLING" has "_" for a blank.
class SmallLayer final : public Strato {
 public:
  explicit SmallLayer(const std::vector<std::string>& lines) : Strato("prova") {
    for (const std::string& line : lines)
      entries_.push_back(Parse(line));
    std::stable_sort(entries_.begin(), entries_.end(), [](const Entry& one, const Entry& other) {
      return one.word.size() != other.word.size() ? one.word.size() < other.word.size()
                                                  : one.score > other.score;
    });
  }

  int Conta(int length) const override {
    return static_cast<int>(std::count_if(entries_.begin(), entries_.end(), [&](const Entry& one) {
      return one.word.size() == static_cast<std::size_t>(length);
    }));
  }
  NumeroVoce Prima(int length) const override {
    return static_cast<NumeroVoce>(std::count_if(
        entries_.begin(), entries_.end(),
        [&](const Entry& one) { return one.word.size() < static_cast<std::size_t>(length); }));
  }
  std::optional<NumeroVoce> Cerca(std::string_view word) const override {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& one) { return one.word == word; });
    if (found == entries_.end()) return std::nullopt;
    return static_cast<NumeroVoce>(found - entries_.begin());
  }
  std::string_view Parola(NumeroVoce number) const override { return entries_.at(number).word; }
  int Punteggio(NumeroVoce number) const override { return entries_.at(number).score; }
  Voce Leggi(NumeroVoce number) const override {
    const Entry& entry = entries_.at(number);
    Voce voce{entry.word, entry.spelling, entry.score, entry.marks, {}};
    for (const auto& [code, lemma] : entry.readings)
      voce.letture.push_back({lemma, InterpretaAnalisi(code).value()});
    return voce;
  }

 private:
  struct Entry {
    std::string word, spelling;
    int score = 0;
    Segni marks;
    std::vector<std::pair<std::string, std::string>> readings;
  };

  static Entry Parse(const std::string& line) {
    std::istringstream fields(line);
    Entry entry;
    fields >> entry.word >> entry.score;
    for (std::string field; fields >> field;) {
      if (field[0] == '+') {
        entry.marks.Metti(SegnoDiNome(field.substr(1)).value());
      } else if (field[0] == '=') {
        entry.spelling = field.substr(1);
        std::replace(entry.spelling.begin(), entry.spelling.end(), '_', ' ');
      } else {
        std::string lemma;
        fields >> lemma;
        entry.readings.emplace_back(field, lemma);
      }
    }
    return entry;
  }

  std::vector<Entry> entries_;
};

}  // namespace telarium
