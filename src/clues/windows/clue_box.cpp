#include "clues/windows/clue_box.h"

#include <QSignalBlocker>
#include <algorithm>

#include "clues/clue_search.h"
#include "platform/qt/qt_text.h"
#include "platform/text.h"

namespace telarium {
namespace {

// A file can hold a clue of any length, which would keep a line of text busy for seconds.
constexpr std::size_t MaxCaratteriInUnaRiga = 4000;

}  // namespace

void DefinizioneMostrata::Ricorda(const std::string& definizione, const QString& testo) {
  definizione_ = definizione;
  testo_ = testo;
}

int DefinizioneMostrata::MaxCaratteri() const {
  return std::max(static_cast<int>(testo_.size()), MaxCaratteriDefinizione);
}

std::optional<std::string> DefinizioneMostrata::Letta(const QString& testo) const {
  if (testo == testo_) return definizione_;
  const std::string definizione = DaQt(testo);
  if (AQt(definizione) != testo) return std::nullopt;
  return SenzaInterruzioni(definizione);
}

CasellaDefinizione::CasellaDefinizione(QWidget* genitore) : QPlainTextEdit(genitore) {
  setTabChangesFocus(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  connect(this, &QPlainTextEdit::textChanged, this, [this] { Limita(); });
}

void CasellaDefinizione::Mostra(const std::string& definizione) {
  const QSignalBlocker senzaLimite(this);
  setPlainText(AQt(definizione));
  mostrata_.Ricorda(definizione, toPlainText());
}

// Takes back, before the cursor, what the last change has typed or pasted beyond the limit.
void CasellaDefinizione::Limita() {
  const auto eccesso = static_cast<int>(toPlainText().size() - mostrata_.MaxCaratteri());
  if (eccesso <= 0) return;
  const QSignalBlocker senzaLimite(this);
  QTextCursor cursore = textCursor();
  cursore.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, eccesso);
  cursore.removeSelectedText();
}

void RigaDefinizione::Mostra(const std::string& definizione) {
  const QString testo = AQt(std::string_view(definizione).substr(0, MaxCaratteriInUnaRiga));
  mostrata_.Ricorda(definizione, testo);
  setMaxLength(mostrata_.MaxCaratteri());
  setText(testo);
  setCursorPosition(0);
}

}  // namespace telarium
