#pragma once

#include <QLabel>
#include <QPushButton>

#include "auxiliary/windows/link_label.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

/// What the program is, with the ways to its maker.
class Form3 : public FinestraModale {
 public:
  explicit Form3(QWidget* genitore);

  QLabel* Picture3;                 // holds the hand pointer, never shown
  EtichettaCollegamento* Picture5;  // the logo: to the product's site
  EtichettaCollegamento* Picture7;  // to the page of its friends
  QLabel* Label4;                   // title and version
  QLabel* Label5;
  QLabel* Label9;                  // thanks
  EtichettaCollegamento* Label10;  // to the page of the large dictionary
  EtichettaCollegamento* Label8;   // a mail to the author
  QPushButton* Command1;           // about the system
  QPushButton* Command3d1;         // closes

 protected:
  void Attivata() override;

 private:
  QLabel* Etichetta(const char* nome);
  EtichettaCollegamento* Collegamento(const char* nome, const QString& testo,
                                      const QString& suggerimento, void (*apre)());
  void CreaCollegamenti();
  void Disponi();
};

}  // namespace telarium
