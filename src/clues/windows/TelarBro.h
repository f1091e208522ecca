#pragma once

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <string>
#include <vector>

#include "clues/table_view.h"
#include "clues/windows/clue_box.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_dialog.h"

class QKeyEvent;
class QMenuBar;

namespace telarium {

/// All words of the crossword with their clues. A double click, Enter or F2 opens a row for editing
/// in boxes laid over it. A confirmed row changes a draft; the OK button makes that the crossword,
/// any other way out drops it. A grid with a cell that cannot be drawn ends the program at the
/// construction.
class TelarBro : public FinestraModale {
 public:
  explicit TelarBro(QWidget* genitore);

  QMenu* Menufil;
  QAction* menutorna;
  Tela* Picture1;          // the small grid
  QTableWidget* Gitter1;   // row n of the table is word n of RiferimentoRiga, both from 0
  QLabel* Label3;          // number and direction of the word opened last
  QLineEdit* Text1;        // its word
  RigaDefinizione* Text2;  // its clue
  QPushButton* Command1;   // confirms the row
  QPushButton* Command2;   // looks for clues in the encyclopedia
  QPushButton* Command3d1;
  QPushButton* Command3d2;
  QMenu* Menudef;                // the clues found
  std::vector<QAction*> Menud1;  // its entries

  const BozzaDiTabella& Bozza() const { return bozza_; }

 protected:
  void Colloca(const QRect& schermo) override;
  void Attivata() override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  QMenuBar* CreaMenu();
  void CreaTabella();
  void CreaCaselle();
  void CreaBottoni();
  QPushButton* Bottone(const QString& nome, const QString& testo, const QString& consiglio);

  void Disponi();
  void DisponiModifica();
  void ImpostaColonne();
  int LarghezzaNumero() const;
  void Griglia();
  void DisegnaSchema();

  int RigaCorrente() const;  // -1 when there is no word
  bool InModifica() const { return !Text1->isHidden(); }
  void ApriModificaRiga();
  void CliccaGitter();
  void MostraModifica(bool visibile);
  bool RigaApertaCambiata() const;
  bool ConfermaRigaAperta();
  bool DefinizioneScrivibile();
  void Varia();
  void Cerca();
  void MostraVoci(const std::vector<VoceDefinizione>& voci);

  bool TastoInGitter1(const QKeyEvent& evento);
  bool TastoInText1(const QKeyEvent& evento);
  bool TastoInText2(const QKeyEvent& evento);

  BozzaDiTabella bozza_;
  const std::vector<Slot> RiferimentoRiga;
  QWidget* campo_;                  // all below the menu bar
  const Slot* evidente_ = nullptr;  // the word marked on the small grid
};

}  // namespace telarium
