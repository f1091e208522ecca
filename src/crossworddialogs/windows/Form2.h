#pragma once

#include <QGroupBox>
#include <QLabel>
#include <optional>

#include "crossworddialogs/crossword_preview.h"
#include "crossworddialogs/windows/archive_window.h"
#include "platform/qt/qt_canvas.h"

namespace telarium {

/// The window that opens a crossword file, with a preview of the one that is selected.
class Form2 : public FinestraArchivio {
 public:
  explicit Form2(QWidget* genitore);

  QGroupBox* Frame2;  // the folders
  QLabel* Label4;
  QGroupBox* Frame3;  // the name
  QGroupBox* Frame1;
  Tela* Picture1;  // the preview
  QLabel* StatusBar1;

  void reject() override;

 protected:
  void Attivata() override;
  void Conferma() override;
  void CambiataCartella() override;

 private:
  void CreaControlli();
  void Disponi();
  void Leggi(const Percorso& nome);
  void Mostra(std::optional<AnteprimaCruciverba> anteprima);
  void Ridisegna();

  std::optional<AnteprimaCruciverba> anteprima_;  // none: the picture is empty
};

}  // namespace telarium
