#include "editor/windows/status_bar.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>

#include "platform/qt/lock_keys.h"

namespace telarium {
namespace {

constexpr int IntervalloOrologio = 1000;  // milliseconds

QString TestoIniziale(int pannello) {
  static const QString testi[] = {
      QStringLiteral("Telarium"), QStringLiteral("SCORR"), QStringLiteral("INS"),
      QStringLiteral("MAIUSC"),   QStringLiteral("NUM"),   QStringLiteral("00/00/0000"),
      QStringLiteral("00:00"),
  };
  return testi[pannello];
}

}  // namespace

BarraDiStato::BarraDiStato(QWidget* genitore) : QFrame(genitore) {
  setObjectName(u"StatusBar1");
  setAutoFillBackground(true);
  auto* riga = new QHBoxLayout(this);
  riga->setContentsMargins(2, 2, 2, 2);
  riga->setSpacing(2);
  for (int i = 0; i < NumPannelli; ++i) {
    auto* pannello = new QLabel(TestoIniziale(i), this);
    pannello->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    pannello->setAlignment(i == Testo ? Qt::AlignVCenter | Qt::AlignLeft : Qt::AlignCenter);
    pannello->setMargin(2);
    // Each panel keeps the width of its widest text, so that the others stand still.
    pannello->setMinimumWidth(pannello->sizeHint().width() + 12);
    riga->addWidget(pannello, i == Testo ? 1 : 0);
    pannelli_[static_cast<std::size_t>(i)] = pannello;
  }
  connect(&orologio_, &QTimer::timeout, this, [this] { Aggiorna(); });
  orologio_.start(IntervalloOrologio);
  QCoreApplication::instance()->installEventFilter(this);
  Aggiorna();
}

void BarraDiStato::Aggiorna() {
  const TastiDiBlocco tasti = LeggiTastiDiBlocco();
  Accendi(Scorrimento, tasti.scorrimento.value_or(false));
  Accendi(Inserimento, inserimento_);
  Accendi(Maiuscole, tasti.maiuscole.value_or(false));
  Accendi(Numeri, tasti.numeri.value_or(false));
  const QDateTime adesso = QDateTime::currentDateTime();
  pannelli_[Data]->setText(adesso.toString(QStringLiteral("dd/MM/yyyy")));
  pannelli_[Ora]->setText(adesso.toString(QStringLiteral("HH:mm")));
}

void BarraDiStato::Accendi(Pannello quale, bool acceso) {
  pannelli_[static_cast<std::size_t>(quale)]->setEnabled(acceso);
}

void BarraDiStato::mousePressEvent(QMouseEvent* evento) {
  if (premuta_ && evento->button() == Qt::LeftButton) premuta_();
}

bool BarraDiStato::eventFilter(QObject* oggetto, QEvent* evento) {
  const bool tasto = evento->type() == QEvent::KeyPress || evento->type() == QEvent::KeyRelease;
  if (tasto && oggetto->isWindowType()) {  // once for each key, before any widget has it
    const auto* premuto = static_cast<QKeyEvent*>(evento);
    const auto modificatori = premuto->modifiers() & ~Qt::KeypadModifier;
    const bool inserisci = premuto->key() == Qt::Key_Insert && modificatori == Qt::NoModifier;
    if (evento->type() == QEvent::KeyPress && inserisci && !premuto->isAutoRepeat()) {
      inserimento_ = !inserimento_;
    }
    Aggiorna();
  }
  return QFrame::eventFilter(oggetto, evento);
}

}  // namespace telarium
