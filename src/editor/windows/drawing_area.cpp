#include "editor/windows/drawing_area.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <utility>

namespace telarium {

AreaDisegno::AreaDisegno(QWidget* genitore) : Tela(genitore) {
  setObjectName(u"Area");
  setMouseTracking(true);
}

void AreaDisegno::paintEvent(QPaintEvent* evento) {
  Tela::paintEvent(evento);
  if (dipinta_) QTimer::singleShot(0, this, std::exchange(dipinta_, {}));
}

void AreaDisegno::mouseMoveEvent(QMouseEvent* evento) {
  if (passa_) passa_(evento->position());
}

void AreaDisegno::mousePressEvent(QMouseEvent* evento) {
  if (premuta_) premuta_(evento->button(), evento->position());
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
