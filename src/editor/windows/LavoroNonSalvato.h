#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <vector>

#include "editor/windows/crossword_picture.h"
#include "history/archive.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

/// What earlier runs have left that is in no file, the youngest first: each can be opened or given
/// up; what stays in the list is offered again at the next start. There must be a history.
class LavoroNonSalvato : public FinestraModale {
 public:
  explicit LavoroNonSalvato(QWidget* genitore);

  QLabel* Spiegazione;
  QListWidget* Lavori;
  FiguraDiCruciverba* Figura;
  QLabel* Dove;  // the whole path of the one that is selected
  QPushButton* Recupera;
  QPushButton* Elimina;
  QPushButton* DecidiDopo;

  void accept() override;

 private:
  void CreaControlli();
  void Disponi();
  void Guarda(int posto);
  void EliminaScelto();
  void TogliScelto();
  const LavoroPerso& Scelto() const;

  std::vector<LavoroPerso> lavori_;
};

}  // namespace telarium
