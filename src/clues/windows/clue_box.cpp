#include "clues/windows/clue_box.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <algorithm>

#include "clues/clue_search.h"
#include "platform/qt/qt_dialog.h"
#include "platform/qt/qt_text.h"
#include "platform/text.h"

namespace telarium {
namespace {

// A file can hold a clue of any length, which would keep a line of text busy for seconds.
constexpr std::size_t MaxCaratteriMostrati = 4000;

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
  const auto definizione = DaQtEsatto(testo);
  if (!definizione) return std::nullopt;
  return SenzaInterruzioni(*definizione);
}

CasellaDefinizione::CasellaDefinizione(QWidget* genitore) : QPlainTextEdit(genitore) {
  setTabChangesFocus(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void CasellaDefinizione::Mostra(const std::string& definizione) {
  telarium::Mostra(*this, AQt(definizione));
  mostrata_.Ricorda(definizione, TestoDi(*this));
}

std::optional<std::string> CasellaDefinizione::Definizione() const {
  return mostrata_.Letta(TestoDi(*this));
}

// How many characters may still come in, in place of the marked ones.
int CasellaDefinizione::Posto() const {
  const auto marcati = textCursor().selectedText().size();
  const auto altri = document()->characterCount() - 1 - marcati;  // Qt counts one for the end
  return std::max(mostrata_.MaxCaratteri() - static_cast<int>(altri), 0);
}

void CasellaDefinizione::keyPressEvent(QKeyEvent* evento) {
  const bool scrive = !evento->text().isEmpty() && evento->text().front().isPrint();
  if (scrive && Posto() == 0) return;
  QPlainTextEdit::keyPressEvent(evento);
}

void CasellaDefinizione::inputMethodEvent(QInputMethodEvent* evento) {
  evento->setCommitString(evento->commitString().left(Posto()), evento->replacementStart(),
                          evento->replacementLength());
  QPlainTextEdit::inputMethodEvent(evento);
}

void CasellaDefinizione::insertFromMimeData(const QMimeData* dati) {
  insertPlainText(dati->text().left(Posto()));
}

void RigaDefinizione::Mostra(const std::string& definizione) {
  const QString testo = AQt(std::string_view(definizione).substr(0, MaxCaratteriMostrati));
  mostrata_.Ricorda(definizione, testo);
  setMaxLength(mostrata_.MaxCaratteri());
  setReadOnly(testo.size() < static_cast<qsizetype>(definizione.size()));
  setText(testo);
  setCursorPosition(0);
}

}  // namespace telarium
