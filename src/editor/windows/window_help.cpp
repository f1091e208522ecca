#include "editor/windows/window_help.h"

#include <QEvent>
#include <QKeyEvent>

#include "auxiliary/guide.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

bool AiutoNelleFinestre::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress || !oggetto->isWidgetType()) return false;
  const auto& tasto = static_cast<const QKeyEvent&>(*evento);
  if (tasto.key() != Qt::Key_F1 || tasto.modifiers() != Qt::NoModifier) return false;
  const auto* finestra =
      dynamic_cast<const FinestraModale*>(static_cast<QWidget*>(oggetto)->window());
  if (!finestra) return false;  // the main window has a menu entry for it
  if (!tasto.isAutoRepeat()) ApriGuida(CapitoloDellaFinestra(finestra->objectName().toStdString()));
  return true;
}

}  // namespace telarium
