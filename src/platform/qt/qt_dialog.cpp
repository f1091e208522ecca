#include "platform/qt/qt_dialog.h"

#include <QApplication>
#include <QFocusEvent>
#include <QScreen>
#include <QTextDocument>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace telarium {

QWidget* GenitoreDiScatola(QWidget* principale) {
  QWidget* modale = QApplication::activeModalWidget();
  return modale ? modale : principale;
}

void TogliFigure(const QDialog& scatola) {
  for (auto* pulsante : scatola.findChildren<QPushButton*>())
    pulsante->setIcon({});
}

namespace {

constexpr qsizetype MaxSenzaSpazi = 1000;  // characters of a word that is broken as others are
constexpr QSize Cornice(10, 40);  // of a window, roughly: it is not known before the first showing

class BottoneDaInvio : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void keyPressEvent(QKeyEvent* evento) override {
    if (!Invio(*evento)) return QPushButton::keyPressEvent(evento);
    if (!evento->isAutoRepeat()) click();
  }
};

}  // namespace

QPushButton* Pulsante(const QString& nome, const QString& testo, const QString& suggerimento,
                      QWidget* genitore) {
  auto* pulsante = Chiamato(nome, new BottoneDaInvio(testo, genitore));
  pulsante->setToolTip(suggerimento);
  pulsante->setAutoDefault(false);
  return pulsante;
}

void Mostra(QPlainTextEdit& casella, const QString& testo) {
  qsizetype senzaSpazi = 0, massimo = 0;
  for (const QChar carattere : testo) {
    senzaSpazi = carattere.isSpace() ? 0 : senzaSpazi + 1;
    massimo = std::max(massimo, senzaSpazi);
  }
  // To look for the best break takes the square of the length.
  casella.setWordWrapMode(massimo > MaxSenzaSpazi ? QTextOption::WrapAnywhere
                                                  : QTextOption::WrapAtWordBoundaryOrAnywhere);
  casella.setPlainText(testo);
}

QString TestoDi(const QPlainTextEdit& casella) {
  // The plain text that Qt gives has blanks for the hard ones.
  return casella.document()
      ->toRawText()
      .replace(QChar::ParagraphSeparator, u'\n')
      .replace(QChar::LineSeparator, u'\n');
}

FinestraModale::FinestraModale(const QString& nome, const QString& titolo, QWidget* genitore)
    : QDialog(genitore) {
  setObjectName(nome);
  setWindowTitle(titolo);
  setModal(true);
}

void FinestraModale::showEvent(QShowEvent* evento) {
  QDialog::showEvent(evento);
  if (evento->spontaneous()) return;  // only comes back from an icon
  const QRect schermo = screen()->availableGeometry();
  resize(size().boundedTo(schermo.size() - Cornice));
  Colloca(schermo);
  pronta_ = false;
  // Behind the show, for it may bring up a message.
  QTimer::singleShot(0, this, [this] {
    Attivata();
    pronta_ = true;
  });
}

void FinestraModale::Colloca(const QRect& schermo) {
  QRect dove = frameGeometry();
  dove.moveCenter(schermo.center());
  move(dove.topLeft());
}

void CasellaDiTesto::focusInEvent(QFocusEvent* evento) {
  QLineEdit::focusInEvent(evento);
  const Qt::FocusReason motivo = evento->reason();
  appenaRaggiunta_ = motivo == Qt::MouseFocusReason;
  // It only comes back from its own menu or from another window.
  const bool tornata = motivo == Qt::PopupFocusReason || motivo == Qt::ActiveWindowFocusReason;
  if (!tornata) selectAll();
}

void CasellaDiTesto::mousePressEvent(QMouseEvent* evento) {
  QLineEdit::mousePressEvent(evento);
  if (std::exchange(appenaRaggiunta_, false)) selectAll();
}

QString NomeInSerie(const char* nome, int indice) {
  return QStringLiteral("%1_%2").arg(QLatin1StringView(nome)).arg(indice);
}

}  // namespace telarium
