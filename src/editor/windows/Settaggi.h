#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <array>

#include "editor/windows/settings_sample_view.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

/// The six settings of drawing, each by a scroll bar, with a sample that follows them. They reach
/// the real settings, and the settings file, by Command1 alone, but for a SpessoreBordo below 1,
/// which the opening raises to 1.
class Settaggi : public FinestraModale {
 public:
  explicit Settaggi(QWidget* genitore);

  QLabel* Label16;  // what to do here
  QGroupBox* Frame1;
  QScrollBar *HScroll1, *HScroll2, *HScroll3, *HScroll4, *HScroll5, *HScroll6;
  QLabel *Label4, *Label8, *Label6, *Label10, *Label14, *Label12;  // captions of the bars
  QLabel *Label2, *Label9, *Label5, *Label11, *Label15, *Label13;  // their values
  CampioneSchema* Campione;
  LineaGuida *Line1, *Line2, *Line3, *Line4, *Line7, *Line8, *Line9, *Line10;
  QPushButton* Command1;  // saves
  QPushButton* Command2;  // cancels

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void CreaBarre();
  void CreaLinee();
  void CreaBottoni();
  void Disponi();
  void DisponiBarre();
  int LarghezzaValori() const;
  int LarghezzaDidascalie() const;
  void LeggiImpostazioniCorrenti();
  void MostraValori();
  void TracciaLinee();
  void Salva();

  QWidget* campo_;  // inside Frame1: the bars, the sample and the lines over both
};

}  // namespace telarium
