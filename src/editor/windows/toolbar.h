#pragma once

#include <QAction>
#include <QToolBar>
#include <array>
#include <functional>

#include "editor/main_window.h"
#include "model/pointer.h"

namespace telarium {

/// The toolbar Toolbar1 of Form1: 22 buttons, numbered from 1, separators included. Each button is
/// an action whose objectName is its key.
class BarraStrumenti : public QToolBar {
 public:
  explicit BarraStrumenti(QWidget* genitore);

  /// Button 1 to NumPulsanti.
  QAction& Pulsante(int numero) const;

  /// Below a button, where its menu pops up.
  QPoint SottoIlPulsante(int numero) const;

  /// Presses the button of the tool that the shape of the pointer stands for, and no other tool's.
  void MostraStrumento(Strumento strumento);

  /// What a pointer movement over the bar calls.
  void QuandoPassaIlMouse(std::function<void()> chiama) { passaIlMouse_ = std::move(chiama); }

 protected:
  void mouseMoveEvent(QMouseEvent* evento) override;

 private:
  std::array<QAction*, NumPulsanti> pulsanti_{};
  std::function<void()> passaIlMouse_;
};

}  // namespace telarium
