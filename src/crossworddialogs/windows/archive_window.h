#pragma once

#include <QPushButton>

#include "crossworddialogs/windows/file_lists.h"
#include "platform/qt/qt_dialog.h"

class QHBoxLayout;

namespace telarium {

/// What the windows that open and save a crossword have in common: the lists of drives, folders and
/// files, which move together and begin in the archive, the file's name and the two buttons.
class FinestraArchivio : public FinestraModale {
 public:
  ListaUnita* Drive1;
  AlberoCartelle* Dir1;
  ListaFile* File1;
  CasellaDiNome* Text1;     // the file name
  QPushButton* Command3d1;  // opens or saves, as Enter and a double click in File1 do
  QPushButton* Command3d2;  // closes

 protected:
  FinestraArchivio(const QString& nome, const QString& titolo, const QString& conferma,
                   QWidget* genitore);

  virtual void Conferma() = 0;
  /// The user has gone to another folder; nothing is selected there.
  virtual void CambiataCartella() {}

  /// The row of the two buttons.
  QHBoxLayout* Pulsanti();

 private:
  void Vai(const Percorso& cartella);
  void MostraFile();
};

}  // namespace telarium
