#pragma once

#include "model/current_crossword.h"
#include "model/words.h"

namespace telarium {

/// The crossword as it was, put back at the end of this object's life unless another one has taken
/// its place for good.
class CruciverbaDiPrima {
 public:
  CruciverbaDiPrima() = default;
  CruciverbaDiPrima(const CruciverbaDiPrima&) = delete;
  CruciverbaDiPrima& operator=(const CruciverbaDiPrima&) = delete;
  ~CruciverbaDiPrima() {
    if (sostituito_) return;
    PrendiCruciverba(prima_);
    RicalcolaCaselle();
  }

  void Sostituito() { sostituito_ = true; }

 private:
  Cruciverba prima_ = CruciverbaCorrente();
  bool sostituito_ = false;
};

}  // namespace telarium
