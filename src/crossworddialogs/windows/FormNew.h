#pragma once

#include "crossworddialogs/windows/model_choice.h"

namespace telarium {

/// The window that begins a crossword: an empty grid of a size, or a model.
class FormNew : public SceltaModello {
 public:
  explicit FormNew(QWidget* genitore);

  QLabel* Label1;
  CasellaDiTesto* Text1;  // columns
  QLabel* Label4;
  CasellaDiTesto* Text2;                   // rows
  std::array<QLabel*, MaxModelli> Label3;  // under the previews

 protected:
  QVBoxLayout* PostoDi(int numero) override;
  void MostraNome(int numero, const std::string& nome) override;
  void Crea() override;
  void Attivata() override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
};

}  // namespace telarium
