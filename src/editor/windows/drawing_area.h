#pragma once

#include <functional>

#include "platform/qt/qt_canvas.h"

namespace telarium {

/// The whole client area of Form1 under the menu bar, the surface on which the grid is drawn. The
/// bars lie over its top and bottom.
class AreaDisegno : public Tela {
 public:
  explicit AreaDisegno(QWidget* genitore);

  /// What the first painting on the screen calls, once.
  void QuandoDipinta(std::function<void()> chiama) { dipinta_ = std::move(chiama); }
  /// What a pointer movement over the surface calls, with the place in logical pixels.
  void QuandoPassaIlMouse(std::function<void(QPointF)> chiama) { passa_ = std::move(chiama); }
  /// What the press of a mouse button on the surface calls.
  void QuandoPremuta(std::function<void(Qt::MouseButton, QPointF)> chiama) {
    premuta_ = std::move(chiama);
  }

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent*) override {}  // its first press has done all

 private:
  std::function<void()> dipinta_;
  std::function<void(QPointF)> passa_;
  std::function<void(Qt::MouseButton, QPointF)> premuta_;
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
