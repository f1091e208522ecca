#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <optional>

#include "crossworddialogs/windows/file_lists.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

/// The window that saves the crossword under a name, with its author's data.
class TelarSav : public FinestraModale {
 public:
  explicit TelarSav(QWidget* genitore);

  ListaUnita* Drive1;
  QLabel* Label3;
  AlberoCartelle* Dir1;
  ListaFile* File1;
  QGroupBox* Frame1;
  QLabel* Label1;
  CasellaDiNome* Text1;  // the file name
  QGroupBox* Frame2;
  QLabel* Label2;
  CasellaDiTesto* Text2;    // the author's data
  QPushButton* Command3d1;  // saves
  QPushButton* Command3d2;  // closes

 protected:
  void Attivata() override;

 private:
  void CreaControlli();
  void Disponi();
  void Salva();

  std::optional<ElenchiDiFile> elenchi_;
};

}  // namespace telarium
