#pragma once

#include <QPlainTextEdit>
#include <optional>
#include <string>

namespace telarium {

/// A box of several lines for one clue of a grid. No more is typed into it than a grid's clue may
/// have; a longer one that is put there stays whole. Tab leaves it.
class CasellaDefinizione : public QPlainTextEdit {
 public:
  explicit CasellaDefinizione(QWidget* genitore);

  /// Puts a clue into the box.
  void Mostra(const std::string& definizione);

  /// The clue in the box: exactly the one put there if it was not touched, else what was typed,
  /// line breaks as blanks. None when the code page cannot write it.
  std::optional<std::string> Definizione() const;

 private:
  void Limita();

  std::string mostrata_;
  QString testoMostrato_;  // as the box gives it back
};

}  // namespace telarium
