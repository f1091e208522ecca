#pragma once

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <optional>

#include "crossworddialogs/windows/file_lists.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

/// The window that opens a crossword file, with a preview of the one that is selected.
class Form2 : public FinestraModale {
 public:
  explicit Form2(QWidget* genitore);

  ListaUnita* Drive1;
  QGroupBox* Frame2;
  AlberoCartelle* Dir1;
  QLabel* Label4;
  ListaFile* File1;
  QGroupBox* Frame3;
  CasellaDiTesto* Text1;  // the file name
  QGroupBox* Frame1;
  Tela* Picture1;  // the preview
  QLabel* StatusBar1;
  QPushButton* Command3d1;  // opens
  QPushButton* Command3d2;  // closes

  /// Reads the selected file and shows it; nothing selected is told.
  void MostraScelto();

  void reject() override;

 protected:
  void Attivata() override;

 private:
  void CreaControlli();
  void Disponi();
  void Collega();
  void Apri();
  Percorso FileScritto() const;

  std::optional<ElenchiDiFile> elenchi_;
};

}  // namespace telarium
