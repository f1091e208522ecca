#include "auxiliary/windows/link_label.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "editor/windows/pictures.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

EtichettaCollegamento::EtichettaCollegamento(const QString& testo, QWidget* genitore)
    : QLabel(testo, genitore) {
  setTextFormat(Qt::PlainText);
  setFocusPolicy(Qt::StrongFocus);
  setMargin(2);
  setForegroundRole(QPalette::Link);
  QFont sottolineato = font();
  sottolineato.setUnderline(true);
  setFont(sottolineato);
  setCursor(PuntatoreDi("hand", PuntaDellaMano, devicePixelRatioF()));
}

void EtichettaCollegamento::mouseReleaseEvent(QMouseEvent* evento) {
  const bool sopra = rect().contains(evento->position().toPoint());
  if (evento->button() == Qt::LeftButton && sopra && azione_) azione_();
}

void EtichettaCollegamento::keyPressEvent(QKeyEvent* evento) {
  if (!Invio(*evento) && evento->key() != Qt::Key_Space) return QLabel::keyPressEvent(evento);
  if (azione_) azione_();
}

// A label does not show by itself that it has the focus.
void EtichettaCollegamento::paintEvent(QPaintEvent* evento) {
  QLabel::paintEvent(evento);
  if (!hasFocus()) return;
  QStyleOptionFocusRect fuoco;
  fuoco.initFrom(this);
  QPainter pittore(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &fuoco, &pittore, this);
}

}  // namespace telarium
