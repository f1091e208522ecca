#include "platform/qt/qt_dialog.h"

#include <QFocusEvent>
#include <QScreen>
#include <QTimer>
#include <utility>

namespace telarium {
namespace {

constexpr QSize Cornice(10, 40);  // of a window, roughly: it is not known before the first showing

}  // namespace

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
