#include "clues/windows/clue_box.h"

#include <QSignalBlocker>
#include <algorithm>

#include "clues/clue_search.h"
#include "platform/qt/qt_text.h"
#include "platform/text.h"

namespace telarium {

CasellaDefinizione::CasellaDefinizione(QWidget* genitore) : QPlainTextEdit(genitore) {
  setTabChangesFocus(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  connect(this, &QPlainTextEdit::textChanged, this, [this] { Limita(); });
}

void CasellaDefinizione::Mostra(const std::string& definizione) {
  const QSignalBlocker senzaLimite(this);
  setPlainText(AQt(definizione));
  mostrata_ = definizione;
  testoMostrato_ = toPlainText();
}

std::optional<std::string> CasellaDefinizione::Definizione() const {
  const QString testo = toPlainText();
  if (testo == testoMostrato_) return mostrata_;
  const std::string definizione = DaQt(testo);
  if (AQt(definizione) != testo) return std::nullopt;
  return SenzaInterruzioni(definizione);
}

// Takes back, before the cursor, what the last change has typed or pasted beyond the limit.
void CasellaDefinizione::Limita() {
  const auto ammessa = std::max<qsizetype>(testoMostrato_.size(), MaxCaratteriDefinizione);
  const auto eccesso = static_cast<int>(toPlainText().size() - ammessa);
  if (eccesso <= 0) return;
  const QSignalBlocker senzaLimite(this);
  QTextCursor cursore = textCursor();
  cursore.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, eccesso);
  cursore.removeSelectedText();
}

}  // namespace telarium
