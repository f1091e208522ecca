#include "editor/windows/drawing_area.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <utility>

namespace telarium {

AreaDisegno::AreaDisegno(QWidget* genitore) : QWidget(genitore) {
  setObjectName(u"Area");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  superficie_.Sfondo(palette().color(QPalette::Window));
  superficie_.QuandoCambia([this] { update(); });
}

void AreaDisegno::AdattaSuperficie() {
  rapporto_ = devicePixelRatioF();
  superficie_.Ridimensiona(size(), rapporto_);
  if (cambiaMisura_) cambiaMisura_();
}

void AreaDisegno::resizeEvent(QResizeEvent* evento) {
  QWidget::resizeEvent(evento);
  AdattaSuperficie();
}

void AreaDisegno::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  superficie_.Copia(pittore);
  // The window has come to a display of another scale factor: no drawing while a paint goes on.
  if (rapporto_ != devicePixelRatioF()) QTimer::singleShot(0, this, [this] { AdattaSuperficie(); });
  if (dipinta_) QTimer::singleShot(0, this, std::exchange(dipinta_, {}));
}

void AreaDisegno::mouseMoveEvent(QMouseEvent*) {
  if (passaIlMouse_) passaIlMouse_();
}

RettangoloDiParola::RettangoloDiParola(QWidget* genitore) : QWidget(genitore) {
  setObjectName(u"Shape1");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void RettangoloDiParola::Tinta(const QColor& colore) {
  tinta_ = colore;
  update();
}

void RettangoloDiParola::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  QColor velo = tinta_;
  velo.setAlpha(60);
  pittore.fillRect(rect(), velo);
  pittore.setPen(QPen(tinta_, 2));
  pittore.drawRect(rect().adjusted(1, 1, -1, -1));
}

}  // namespace telarium
