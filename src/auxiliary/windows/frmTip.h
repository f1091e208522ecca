#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "auxiliary/tips.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

/// The tip of the day. Who opens it has asked whether the user wants tips.
class frmTip : public FinestraModale {
 public:
  explicit frmTip(QWidget* genitore);

  QLabel* Picture1;            // a lamp
  QLabel* Label1;              // the heading
  QPlainTextEdit* lblTipText;  // the tip, which can be of any length
  QCheckBox* chkLoadTipsAtStartup;
  QPushButton* cmdOK;
  QPushButton* cmdNextTip;

 private:
  QWidget* CreaFoglio();
  void Disponi(QWidget* foglio);
  void MostraTesto();

  Suggerimenti suggerimenti_;
};

}  // namespace telarium
