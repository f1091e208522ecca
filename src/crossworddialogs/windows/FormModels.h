#pragma once

#include "crossworddialogs/windows/model_choice.h"

namespace telarium {

/// The window of the model files: a crossword begins with one of the models, or with an empty grid
/// of a fixed size.
class FormModels : public SceltaModello {
 public:
  explicit FormModels(QWidget* genitore);

 protected:
  void Crea() override;
  void Attivata() override;
};

}  // namespace telarium
