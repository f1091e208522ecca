#include "editor/windows/fill_progress.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <algorithm>

namespace telarium {
namespace {

constexpr int Margine = 6;  // pixels

}  // namespace

PannelloEstrazione::PannelloEstrazione(QWidget* genitore) : QFrame(genitore) {
  setObjectName(u"PannelloEstrazione");
  setAutoFillBackground(true);
  setFrameStyle(QFrame::Panel | QFrame::Raised);
  interrompi_ = new QPushButton(QStringLiteral("Interrompi"), this);
  interrompi_->setObjectName(u"Interrompi");
  connect(interrompi_, &QPushButton::clicked, this, [this] { Interrompi(); });
  auto* riga = new QHBoxLayout(this);
  riga->setContentsMargins(Margine, 0, 2, 0);
  riga->addStretch(1);
  riga->addWidget(interrompi_);
  hide();
}

void PannelloEstrazione::Inizia() {
  interrotta_ = false;
  avanzamento_ = {};
  daInizio_.start();
  cadenza_ = {};
}

bool PannelloEstrazione::Segui(const AvanzamentoEstrazione& avanzamento, bool infinita) {
  avanzamento_ = avanzamento;
  infinita_ = infinita;
  update();  // also behind a question, which may come before it is time again
  if (!cadenza_.Scaduta()) return !interrotta_;
  QCoreApplication::processEvents();
  return !interrotta_;
}

// Painted and not put into a label: only a frame that is shown pays for its text, and so does the
// one behind a question.
void PannelloEstrazione::paintEvent(QPaintEvent* evento) {
  QFrame::paintEvent(evento);
  QPainter(this).drawText(rect().adjusted(Margine, 0, -Margine, 0),
                          Qt::AlignVCenter | Qt::AlignLeft, Testo());
}

QString PannelloEstrazione::Testo() const {
  const QString parole = QStringLiteral("Parole: %1 di %2")
                             .arg(avanzamento_.slotCollocati)
                             .arg(avanzamento_.slotTotali);
  if (!infinita_) return parole;
  const qint64 trascorsi = std::max<qint64>(daInizio_.elapsed(), 1);
  return QStringLiteral("Tentativo %L1 (%L2 al secondo)   %3")
      .arg(avanzamento_.tentativo)
      .arg(avanzamento_.tentativo * 1000 / trascorsi)
      .arg(parole);
}

}  // namespace telarium
