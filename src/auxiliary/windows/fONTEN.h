#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "platform/qt/qt_dialog.h"

namespace telarium {

/// Chooses the typeface of all that is drawn and printed. One instance lasts for the whole run, so
/// that list and boxes stay as the user left them.
class fONTEN : public FinestraModale {
 public:
  explicit fONTEN(QWidget* genitore);

  QGroupBox* Frame3;
  QListWidget* LstFonts;
  QCheckBox* Check3d1;  // italic
  QCheckBox* Check3d2;  // bold
  QGroupBox* Frame1;
  QLineEdit* TxtFontPreview;
  QPushButton* cmdOK;
  QPushButton* cmdCancel;

 protected:
  void Attivata() override;

 private:
  void CreaElenco();
  void CreaEsempio();
  void Disponi();

  /// The name selected in the list; empty when there is none.
  QString Scelto() const;
  void MostraEsempio();
  void Conferma();
};

}  // namespace telarium
