#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <optional>
#include <string>

namespace telarium {

/// What a box of any kind was given to show. A clue that nobody has touched comes back as it was,
/// whatever the box can show of it.
class DefinizioneMostrata {
 public:
  /// Notes a clue that was put into a box, and the text that the box then has.
  void Ricorda(const std::string& definizione, const QString& testo);

  /// How many characters the box takes: those of a grid's clue, or as many as it was given.
  int MaxCaratteri() const;

  /// The clue that a text of the box stands for: line breaks that were typed become blanks. None
  /// when the code page cannot write it.
  std::optional<std::string> Letta(const QString& testo) const;

 private:
  std::string definizione_;
  QString testo_;
};

/// A box of several lines for one clue of a grid. No more is typed into it than a grid's clue may
/// have; a longer one that is put there stays whole. Tab leaves it.
class CasellaDefinizione : public QPlainTextEdit {
 public:
  explicit CasellaDefinizione(QWidget* genitore);

  /// Puts a clue into the box.
  void Mostra(const std::string& definizione);

  /// The clue in the box, by DefinizioneMostrata.
  std::optional<std::string> Definizione() const;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void inputMethodEvent(QInputMethodEvent* evento) override;
  void insertFromMimeData(const QMimeData* dati) override;

 private:
  int Posto() const;

  DefinizioneMostrata mostrata_;
};

/// A box of one line, likewise. Of a clue that is far too long it shows the beginning, and takes no
/// changes.
class RigaDefinizione : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

  void Mostra(const std::string& definizione);
  std::optional<std::string> Definizione() const { return mostrata_.Letta(text()); }

 private:
  DefinizioneMostrata mostrata_;
};

}  // namespace telarium
