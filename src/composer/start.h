#pragma once

#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "composer/lattice.h"
#include "composer/problem.h"

namespace telarium {

/// The words that slots of one length and one least score may have before anything stands in them.
struct Base {
  std::vector<Blocco> parole;
  std::vector<Lettere> lettere;         // that they have, by place
  std::vector<std::uint16_t> sostegni;  // by place and letter, a block in which some word has it
  int conta = 0;
};

/// What each search of a problem begins with. Never changes, so that lanes share it. The problem
/// must outlive it.
class Partenza {
 public:
  explicit Partenza(const Problema& problema);

  const Problema& Di() const { return problema_; }
  const Vocabolario& Parole() const { return *problema_.vocabolario; }
  const Reticolo& Griglia() const { return reticolo_; }
  const Base& BaseDi(int slot) const { return *basi_[static_cast<std::size_t>(slot)]; }

 private:
  void AmmettiEsenti(int lunghezza, int minimo, Base& base) const;
  void TogliAltrove(int lunghezza, Base& base) const;

  const Problema& problema_;
  Reticolo reticolo_;
  std::vector<NumeroParola> altrove_;  // words that stand elsewhere, and those akin to them
  std::map<std::pair<int, int>, Base> perMinimo_;
  std::vector<const Base*> basi_;
};

}  // namespace telarium
