#pragma once

#include <QWidget>
#include <functional>

#include "platform/qt/qt_surface.h"

namespace telarium {

/// A control that is a drawing surface as large as itself and keeps what was drawn on it.
class Tela : public QWidget {
 public:
  explicit Tela(QWidget* genitore);

  SuperficieQt& Superficie() { return superficie_; }

  /// What a change of the size, or of the display's scale factor, calls once the surface has it.
  void QuandoCambiaMisura(std::function<void()> chiama) { cambiaMisura_ = std::move(chiama); }

 protected:
  void resizeEvent(QResizeEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  void AdattaSuperficie();

  SuperficieQt superficie_;
  double rapporto_ = 0;
  std::function<void()> cambiaMisura_;
};

}  // namespace telarium
