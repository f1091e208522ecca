#include "platform/qt/word_line.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>

#include "platform/codepage.h"
#include "platform/qt/qt_text.h"

namespace telarium {

CasellaMaiuscola::CasellaMaiuscola(QWidget* genitore, Lettere lettere)
    : CasellaDiTesto(genitore), lettere_(lettere) {
  connect(this, &QLineEdit::textEdited, this, &CasellaMaiuscola::RimediaAlTesto);
}

QString CasellaMaiuscola::InMaiuscole(QString testo) const {
  if (lettere_ == Lettere::Tutte) {
    const auto esatto = DaQtEsatto(testo);
    return esatto ? AQt(Maiuscole(*esatto)) : testo;
  }
  for (QChar& carattere : testo)
    if (carattere >= u'a' && carattere <= u'z') carattere = carattere.toUpper();
  return testo;
}

// A line forgets all that could be undone when its text is set, so the letters change before they
// are in it.
void CasellaMaiuscola::keyPressEvent(QKeyEvent* evento) {
  if (evento->matches(QKeySequence::Paste)) return Incolla();
  QKeyEvent maiuscolo(evento->type(), evento->key(), evento->modifiers(), evento->nativeScanCode(),
                      evento->nativeVirtualKey(), evento->nativeModifiers(),
                      InMaiuscole(evento->text()), evento->isAutoRepeat(),
                      static_cast<quint16>(evento->count()));
  CasellaDiTesto::keyPressEvent(&maiuscolo);
  evento->setAccepted(maiuscolo.isAccepted());
}

void CasellaMaiuscola::inputMethodEvent(QInputMethodEvent* evento) {
  evento->setCommitString(InMaiuscole(evento->commitString()), evento->replacementStart(),
                          evento->replacementLength());
  CasellaDiTesto::inputMethodEvent(evento);
}

void CasellaMaiuscola::contextMenuEvent(QContextMenuEvent* evento) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (auto* incolla = menu->findChild<QAction*>(QStringLiteral("edit-paste"))) {
    incolla->disconnect();
    connect(incolla, &QAction::triggered, this, [this] { Incolla(); });
  }
  menu->popup(evento->globalPos());
}

void CasellaMaiuscola::Incolla() {
  if (!isReadOnly()) insert(InMaiuscole(QApplication::clipboard()->text()));
}

// What is dropped with the mouse, or brought by its middle button, is in the text already.
void CasellaMaiuscola::RimediaAlTesto(const QString& testo) {
  const QString capitali = InMaiuscole(testo);
  if (capitali == testo) return;
  const int cursore = cursorPosition();
  setText(capitali);
  setCursorPosition(cursore);
}

}  // namespace telarium
