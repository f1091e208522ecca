#pragma once

#include <QWidget>
#include <functional>

#include "platform/qt/qt_surface.h"

namespace telarium {

/// The whole client area of Form1 under the menu bar, as a drawing surface that keeps what was
/// drawn on it. The bars lie over its top and bottom.
class AreaDisegno : public QWidget {
 public:
  explicit AreaDisegno(QWidget* genitore);

  SuperficieQt& Superficie() { return superficie_; }

  /// What a change of the size, or of the display's scale factor, calls once the surface has it.
  void QuandoCambiaMisura(std::function<void()> chiama) { cambiaMisura_ = std::move(chiama); }
  /// What the first painting on the screen calls, once.
  void QuandoDipinta(std::function<void()> chiama) { dipinta_ = std::move(chiama); }
  /// What a pointer movement over the surface calls.
  void QuandoPassaIlMouse(std::function<void()> chiama) { passaIlMouse_ = std::move(chiama); }

 protected:
  void resizeEvent(QResizeEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;

 private:
  void AdattaSuperficie();

  SuperficieQt superficie_;
  double rapporto_ = 0;
  std::function<void()> cambiaMisura_;
  std::function<void()> dipinta_;
  std::function<void()> passaIlMouse_;
};

/// The word rectangle Shape1: a tinted frame over a word, through which the mouse passes.
class RettangoloDiParola : public QWidget {
 public:
  explicit RettangoloDiParola(QWidget* genitore);

  /// The colour of its frame and, lightly, of its area.
  void Tinta(const QColor& colore);

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  QColor tinta_ = Qt::yellow;
};

}  // namespace telarium
