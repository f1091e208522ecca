#include "composer_bench_severe.h"

#include "clues/coverage.h"
#include "clues/encyclopedia.h"
#include "composer_bench_measure.h"
#include "laboratory/composition.h"
#include "support/drawn_crossword.h"

namespace telarium {
namespace {

SceltaComposizione Choice() {
  SceltaComposizione choice;
  choice.parole.definizioni = UsoDefinizioni::Obbligatorie;
  return choice;
}

}  // namespace

const Copertura& Coverage() {
  static const std::shared_ptr<const Copertura> coverage = [] {
    std::string cause;
    auto read = CoperturaDa({.enciclopedia = Percorso(TELARIUM_DATA_DIR) / NomeEnciclopedia,
                             .corredo = {},
                             .cache = {}},
                            cause);
    Demand(read && cause.empty(), "no coverage: " + cause);
    return read;
  }();
  return *coverage;
}

Problema SevereProblem(const Pattern& pattern) {
  std::string message;
  static const auto lexicon =
      LessicoDi(Choice().parole,
                {.lessici = Percorso(TELARIUM_DATA_DIR) / "lexicon", .programma = {}}, message);
  Demand(lexicon.has_value(), "no lexicon: " + message);
  auto composition =
      PreparaComposizione(DrawnCrossword(pattern), Choice(), *lexicon, &Coverage(), message);
  Demand(composition.has_value(), "no problem: " + message);
  return std::move(composition->problema);
}

}  // namespace telarium
