#pragma once

#include <QGroupBox>
#include <QLabel>

#include "crossworddialogs/windows/archive_window.h"

namespace telarium {

/// The window that saves the crossword under a name, with its author's data.
class TelarSav : public FinestraArchivio {
 public:
  explicit TelarSav(QWidget* genitore);

  QLabel* Label3;
  QGroupBox* Frame1;
  QLabel* Label1;
  QGroupBox* Frame2;
  QLabel* Label2;
  CasellaDiTesto* Text2;  // the author's data

 protected:
  void Attivata() override;
  void CambiataCartella() override;
  void Conferma() override;

 private:
  void CreaControlli();
  void Disponi();
};

}  // namespace telarium
