#include "composer_bench_words.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string>
#include <vector>

#include "composer_bench_measure.h"
#include "composer_bench_severe.h"
#include "lexicon/lexicon_file.h"

namespace telarium {
namespace {

constexpr std::size_t WordsOfTheList = 274'092;

// By length, the most common first.
using WordsByLength = std::array<std::vector<std::string>, MaxLunghezzaVoce + 1>;

const WordsByLength& List() {
  static const WordsByLength list = [] {
    WordsByLength words;
    std::size_t many = 0;
    std::ifstream in(COMPOSER_BENCH_WORDS);
    for (std::string word; std::getline(in, word); ++many) {
      Demand(LunghezzaDiVoce(word.size()), "a word of the list has no length of a word");
      words[word.size()].push_back(word);
    }
    Demand(many == WordsOfTheList, "the list of words is not the one of the figures");
    return words;
  }();
  return list;
}

// The most words of each length for which there are `cap` in all.
std::size_t EvenShare(const WordsByLength& words, int cap) {
  std::size_t share = 0;
  for (std::size_t total = 0; total < static_cast<std::size_t>(cap); ++share) {
    total = 0;
    for (const auto& some : words)
      total += std::min(some.size(), share + 1);
    Demand(share <= WordsOfTheList, "the cap is higher than the number of words");
  }
  return share;
}

ParolaDaUsare WordOfRank(const std::string& word, std::size_t rank, std::size_t many) {
  const auto worth = static_cast<int>(static_cast<std::size_t>(MaxPregio) * (many - rank) / many);
  return {.lettere = word,
          .pregio = worth,
          .punteggio = worth * MaxPunteggio / MaxPregio,
          .definita = Coverage().Ha(word, QualiDefinizioni::Tutte)};
}

void AddKit(std::vector<ParolaDaUsare>& words) {
  std::string cause;
  static const auto kit =
      FileLessico::Apri(Percorso(TELARIUM_DATA_DIR) / "lexicon" / "sigle.lexicon", "sigle", cause);
  Demand(kit != nullptr, "no kit: " + cause);
  for (int k = 0; k < kit->Conta(2); ++k) {
    const NumeroVoce number = kit->Prima(2) + static_cast<NumeroVoce>(k);
    words.push_back({.lettere = kit->Parola(number),
                     .pregio = kit->Punteggio(number) * MaxPregio / MaxPunteggio,
                     .punteggio = kit->Punteggio(number),
                     .definita = true});
  }
}

}  // namespace

std::shared_ptr<const Vocabolario> ListVocabulary(const WordChoice& choice) {
  const std::size_t share = choice.cap == 0 ? WordsOfTheList : EvenShare(List(), choice.cap);
  std::vector<ParolaDaUsare> words;
  for (const auto& some : List()) {
    for (std::size_t rank = 0; rank < std::min(some.size(), share); ++rank) {
      const ParolaDaUsare word = WordOfRank(some[rank], rank, some.size());
      if (word.definita || !choice.clued) words.push_back(word);
    }
  }
  if (choice.clued) AddKit(words);
  return std::make_shared<const Vocabolario>(words);
}

}  // namespace telarium
