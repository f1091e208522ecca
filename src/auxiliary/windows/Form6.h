#pragma once

#include <QPushButton>

#include "auxiliary/windows/link_label.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

/// The notice on the data-access software, before each error of the encyclopedia.
class Form6 : public FinestraModale {
 public:
  explicit Form6(QWidget* genitore);

  QLabel* Label1;
  EtichettaCollegamento* Label2;  // to the page from which that software comes
  QPushButton* Command1;          // closes
};

}  // namespace telarium
