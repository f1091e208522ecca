#pragma once

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <optional>

#include "crossworddialogs/crossword_preview.h"
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
  CasellaDiNome* Text1;  // the file name
  QGroupBox* Frame1;
  Tela* Picture1;  // the preview
  QLabel* StatusBar1;
  QPushButton* Command3d1;  // opens
  QPushButton* Command3d2;  // closes

  void reject() override;

 protected:
  void Attivata() override;

 private:
  void CreaControlli();
  void Disponi();
  void Collega();
  void Leggi(const Percorso& nome);
  void CambiataCartella();
  void Mostra(std::optional<AnteprimaCruciverba> anteprima);
  void Ridisegna();
  void Apri();

  std::optional<ElenchiDiFile> elenchi_;
  std::optional<AnteprimaCruciverba> anteprima_;  // none: the picture is empty
};

}  // namespace telarium
