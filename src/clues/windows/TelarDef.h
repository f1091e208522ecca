#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "clues/clue_editor.h"
#include "clues/windows/clue_box.h"
#include "dictionary/dictionary.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

/// The clue editor: writes the clue of one word and may change the word, with the help of the
/// encyclopedia and of a masked search in the dictionaries. It opens beside the word. What was
/// accepted is in Esame when it has closed.
class TelarDef : public FinestraModale {
 public:
  TelarDef(ParolaInEsame parola, QWidget* genitore);

  const EsameDiParola& Esame() const { return esame_; }

  QLabel* Label1;  // number and direction
  QLabel* Label3;
  QLineEdit* Text2;  // the word; what is no letter is refused when it is accepted
  QGroupBox* Frame5;
  CasellaDefinizione* Text1;
  QPushButton* Command1;  // search in the encyclopedia
  QPushButton* Command2;  // word processor
  QPushButton* Command3;  // online dictionaries
  QGroupBox* Frame4;
  QLabel* Label6;
  QListWidget* List1;  // easy clues found
  QLabel* Label7;
  QListWidget* List2;  // hard ones
  // The mask: one box and the letter kept for each place.
  std::array<QCheckBox*, MaxLunghezza> Check3d1;
  std::array<QLabel*, MaxLunghezza> Label2;
  QPushButton* Command3D4;  // masked search in the open dictionary
  QPushButton* Command4;    // and in another one
  QComboBox* Combo1;        // words found
  QLabel* Label5;           // and their number
  QLabel* Label8;
  Tela* Picture1;  // how far the search has come
  QPushButton* Command3d1;
  QPushButton* Command3d2;
  QPushButton* Command3D3;

  QMenu* menudizionari;
  std::vector<QAction*> menubrdiz;
  /// Index of the popup's last entry that its last opening has loaded; entry 0 is fixed.
  std::int16_t NumVociDizionari = 0;

 public slots:
  void done(int esito) override;

 protected:
  void Colloca(const QRect& schermo) override;
  void Attivata() override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void CreaParola();
  void CreaDefinizione();
  void CreaTrovate();
  QListWidget* CreaElenco(const QString& nome);
  void CopiaScelta(const QListWidget& elenco);
  void CreaMaschera();
  void CreaRicerca();
  void Disponi();
  void Collega();

  void PreparaMaschera();
  std::string Maschera() const;
  void CercaDefinizioni();
  void CercaMaschera(const Dizionario& dizionario);
  void DipingiBarra(double parte, Colore colore);
  void ApriMenuDizionari();
  void AccettaDefinizione();

  EsameDiParola esame_;
};

}  // namespace telarium
