#include "composer_bench_plain.h"

#include <algorithm>
#include <bit>
#include <optional>
#include <random>
#include <set>

#include "composer_bench_measure.h"

namespace telarium {
namespace {

class PlainFiller {
 public:
  PlainFiller(const Problema& problem, std::uint64_t seed, double seconds)
      : problem_(problem),
        words_(*problem.vocabolario),
        random_(seed),
        milliseconds_(seconds * 1e3),
        letters_(GivenLetters(problem)) {
    for (const std::string& word : problem.altrove)
      Stand(word);
    ChooseOrder();
  }

  Riempimento Run() {
    const Esito outcome = FillFrom(0);
    Riempimento answer;
    answer.esito = outcome;
    answer.lettere = letters_;
    answer.passi = steps_;
    return answer;
  }

 private:
  void ChooseOrder() {
    std::vector<bool> met(letters_.size());
    for (std::size_t cell = 0; cell < letters_.size(); ++cell)
      met[cell] = letters_[cell] != SenzaLettera;
    std::vector<bool> taken(problem_.slot.size());
    const auto constraint = [&](int slot) {
      const auto& cells = problem_.slot[static_cast<std::size_t>(slot)].caselle;
      const auto known = std::count_if(cells.begin(), cells.end(), [&](int cell) {
        return met[static_cast<std::size_t>(cell)];
      });
      return std::pair(static_cast<double>(known) / static_cast<double>(cells.size()),
                       cells.size());
    };
    while (order_.size() < problem_.slot.size()) {
      int best = -1;
      for (int slot = 0; slot < problem_.Slot(); ++slot)
        if (!taken[static_cast<std::size_t>(slot)] &&
            (best < 0 || constraint(slot) > constraint(best)))
          best = slot;
      taken[static_cast<std::size_t>(best)] = true;
      order_.push_back(best);
      for (const int cell : problem_.slot[static_cast<std::size_t>(best)].caselle)
        met[static_cast<std::size_t>(cell)] = true;
    }
  }

  // The words that fit the letters of a slot, in an order by chance.
  std::vector<NumeroParola> Drawn(int slot) {
    std::vector<NumeroParola> words = FittingWords(problem_, slot, letters_);
    std::shuffle(words.begin(), words.end(), random_);
    return words;
  }

  bool MayStand(NumeroParola word) const {
    if (standing_.contains(words_.Parola(word))) return false;
    const Genie kinds = words_.Propria(word) ? Genie{0} : words_.GenieDi(word);
    for (std::size_t kind = 0; kind < NumGenie; ++kind)
      if ((kinds >> kind & 1) != 0 && problem_.alMassimo[kind] != SenzaLimite &&
          kinds_[kind] >= problem_.alMassimo[kind])
        return false;
    return problem_.ammetteForme || !akin_.contains(words_.Parola(word));
  }

  void Count(NumeroParola word, int by) {
    if (words_.Propria(word)) return;
    for (std::size_t kind = 0; kind < NumGenie; ++kind)
      if ((words_.GenieDi(word) >> kind & 1) != 0) kinds_[kind] += by;
  }

  void Stand(const std::string& word) {
    standing_.insert(word);
    if (problem_.ammetteForme) return;
    for (const NumeroParola kin : words_.Parenti(word))
      akin_.insert(std::string(words_.Parola(kin)));
  }

  void Leave(const std::string& word) {
    standing_.erase(word);
    if (problem_.ammetteForme) return;
    for (const NumeroParola kin : words_.Parenti(word))
      akin_.erase(akin_.find(words_.Parola(kin)));
  }

  void Write(const SlotDaRiempire& slot, std::string_view letters) {
    for (std::size_t place = 0; place < letters.size(); ++place)
      letters_[static_cast<std::size_t>(slot.caselle[place])] = letters[place];
  }

  Esito FillFrom(std::size_t place) {
    if (place == order_.size()) return Esito::Riempito;
    const SlotDaRiempire& slot = problem_.slot[static_cast<std::size_t>(order_[place])];
    std::string before;
    for (const int cell : slot.caselle)
      before += letters_[static_cast<std::size_t>(cell)];
    for (const NumeroParola number : Drawn(order_[place])) {
      if (!MayStand(number)) continue;
      if (watch_.ThreadMs() > milliseconds_) return Esito::Tempo;
      ++steps_;
      const std::string word(words_.Parola(number));
      Write(slot, word);
      Stand(word);
      Count(number, 1);
      const Esito outcome = FillFrom(place + 1);
      if (outcome != Esito::Impossibile) return outcome;
      Count(number, -1);
      Leave(word);
      Write(slot, before);
    }
    return Esito::Impossibile;
  }

  const Problema& problem_;
  const Vocabolario& words_;
  std::mt19937_64 random_;
  const Stopwatch watch_;
  const double milliseconds_;
  std::string letters_;
  std::vector<int> order_;
  std::set<std::string, std::less<>> standing_;
  std::multiset<std::string, std::less<>> akin_;  // to those that stand
  std::array<int, NumGenie> kinds_{};
  std::int64_t steps_ = 0;
};

}  // namespace

std::string GivenLetters(const Problema& problem) {
  std::string letters(problem.lettere.size(), SenzaLettera);
  for (std::size_t cell = 0; cell < letters.size(); ++cell)
    if (std::has_single_bit(problem.lettere[cell]))
      letters[cell] = static_cast<char>('A' + std::countr_zero(problem.lettere[cell]));
  return letters;
}

std::vector<NumeroParola> FittingWords(const Problema& problem, int slot,
                                       const std::string& letters) {
  const SlotDaRiempire& run = problem.slot[static_cast<std::size_t>(slot)];
  const auto length = static_cast<int>(run.caselle.size());
  std::vector<Blocco> fitting =
      problem.vocabolario->Ammesse(length, run.minimo, problem.soloDefinite);
  for (int place = 0; place < length; ++place) {
    const auto cell = static_cast<std::size_t>(run.caselle[static_cast<std::size_t>(place)]);
    if (letters[cell] == SenzaLettera) continue;
    const Blocco* with = problem.vocabolario->Insieme(length, place, letters[cell] - 'A');
    for (std::size_t block = 0; block < fitting.size(); ++block)
      fitting[block] &= with[block];
  }
  std::vector<NumeroParola> words;
  for (std::size_t block = 0; block < fitting.size(); ++block)
    for (Blocco rest = fitting[block]; rest != 0; rest &= rest - 1)
      words.push_back({length, static_cast<int>(block) * ParolePerBlocco + std::countr_zero(rest)});
  return words;
}

Riempimento FillPlainly(const Problema& problem, std::uint64_t seed, double seconds) {
  Riempimento answer = PlainFiller(problem, seed, seconds).Run();
  if (answer.esito == Esito::Riempito) DemandSound(problem, answer.lettere);
  return answer;
}

}  // namespace telarium
