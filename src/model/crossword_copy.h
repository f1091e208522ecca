#pragma once

#include "model/words.h"

namespace telarium {

/// The crossword as it was, grid, clues and colours, put back at the end of this object's life
/// unless another one has taken its place for good.
class CruciverbaDiPrima {
 public:
  CruciverbaDiPrima() = default;
  CruciverbaDiPrima(const CruciverbaDiPrima&) = delete;
  CruciverbaDiPrima& operator=(const CruciverbaDiPrima&) = delete;
  ~CruciverbaDiPrima() {
    if (sostituito_) return;
    Schema = schema_;
    Definizione = definizione_;
    ColoreCasella = colori_;
    NumColonne = colonne_;
    NumRighe = righe_;
    RicalcolaCaselle();
  }

  void Sostituito() { sostituito_ = true; }

 private:
  decltype(Schema) schema_ = Schema;
  decltype(Definizione) definizione_ = Definizione;
  decltype(ColoreCasella) colori_ = ColoreCasella;
  std::int16_t colonne_ = NumColonne;
  std::int16_t righe_ = NumRighe;
  bool sostituito_ = false;
};

}  // namespace telarium
