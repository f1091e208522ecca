#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "editor/windows/crossword_picture.h"
#include "history/line.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

/// The steps of the open crossword in words, the present one marked: each can be looked at in a
/// small picture, and gone to. There must be an open crossword with a history.
class StoriaDelleModifiche : public FinestraModale {
 public:
  explicit StoriaDelleModifiche(QWidget* genitore);

  QLabel* Titolo;
  QListWidget* Passi;
  FiguraDiCruciverba* Figura;
  QPushButton* Vai;
  QPushButton* Chiudi;

  void accept() override;

 private:
  void Riempi();
  void Disponi();
  void Guarda(int posto);

  Linea linea_;
};

}  // namespace telarium
