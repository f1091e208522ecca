#pragma once

#include "platform/qt/qt_dialog.h"

namespace telarium {

/// A line for a word, in which small letters become capitals as they come in by keyboard, input
/// method or paste. What was written can be undone.
class CasellaMaiuscola : public CasellaDiTesto {
 public:
  /// Which letters: those of the alphabet alone, or all that the code page has a capital for.
  enum class Lettere { DaAaZ, Tutte };

  explicit CasellaMaiuscola(QWidget* genitore, Lettere lettere = Lettere::DaAaZ);

  /// A text as it would stand in the line.
  QString InMaiuscole(QString testo) const;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void inputMethodEvent(QInputMethodEvent* evento) override;
  void contextMenuEvent(QContextMenuEvent* evento) override;

 private:
  void Incolla();
  void RimediaAlTesto(const QString& testo);

  Lettere lettere_;
};

}  // namespace telarium
