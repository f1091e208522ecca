#include "editor/windows/fill_progress.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <algorithm>

namespace telarium {
namespace {

constexpr int MillisecondiPerFotogramma = 1000 / 60;

}  // namespace

PannelloEstrazione::PannelloEstrazione(QWidget* genitore) : QFrame(genitore) {
  setObjectName(u"PannelloEstrazione");
  setAutoFillBackground(true);
  setFrameStyle(QFrame::Panel | QFrame::Raised);
  stato_ = new QLabel(this);
  stato_->setObjectName(u"StatoEstrazione");
  interrompi_ = new QPushButton(QStringLiteral("Interrompi"), this);
  interrompi_->setObjectName(u"Interrompi");
  connect(interrompi_, &QPushButton::clicked, this, [this] { Interrompi(); });
  auto* riga = new QHBoxLayout(this);
  riga->setContentsMargins(6, 0, 2, 0);
  riga->addWidget(stato_, 1);
  riga->addWidget(interrompi_);
  hide();
}

void PannelloEstrazione::Inizia() {
  interrotta_ = false;
  daInizio_.start();
  daFotogramma_.start();
}

bool PannelloEstrazione::Segui(const AvanzamentoEstrazione& avanzamento, bool infinita) {
  if (daFotogramma_.elapsed() < MillisecondiPerFotogramma) return !interrotta_;
  stato_->setText(Testo(avanzamento, infinita));
  QCoreApplication::processEvents();
  daFotogramma_.restart();
  return !interrotta_;
}

QString PannelloEstrazione::Testo(const AvanzamentoEstrazione& avanzamento, bool infinita) const {
  const QString parole =
      QStringLiteral("Parole: %1 di %2").arg(avanzamento.slotPresi).arg(avanzamento.slotTotali);
  if (!infinita) return parole;
  const qint64 trascorsi = std::max<qint64>(daInizio_.elapsed(), 1);
  return QStringLiteral("Tentativo %1 (%2 al secondo)   %3")
      .arg(avanzamento.tentativo)
      .arg(avanzamento.tentativo * 1000 / trascorsi)
      .arg(parole);
}

}  // namespace telarium
