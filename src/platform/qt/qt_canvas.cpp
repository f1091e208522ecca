#include "platform/qt/qt_canvas.h"

#include <QPaintEvent>
#include <QPainter>
#include <QTimer>

#include "platform/qt/qt_colour.h"

namespace telarium {

Tela::Tela(QWidget* genitore) : QWidget(genitore) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  superficie_.Sfondo(ColoreDaQt(palette().color(QPalette::Window)));
  superficie_.QuandoCambia([this] { update(); });
}

void Tela::AdattaSuperficie() {
  rapporto_ = devicePixelRatioF();
  superficie_.Ridimensiona(size(), rapporto_);
  if (cambiaMisura_) cambiaMisura_();
}

void Tela::resizeEvent(QResizeEvent* evento) {
  QWidget::resizeEvent(evento);
  AdattaSuperficie();
}

void Tela::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  superficie_.Copia(pittore);
  // The window has come to a display of another scale factor: no drawing while a paint goes on.
  if (rapporto_ != devicePixelRatioF()) QTimer::singleShot(0, this, [this] { AdattaSuperficie(); });
}

}  // namespace telarium
