#pragma once

#include <QTableView>

#include "clues/windows/encyclopedia_window.h"
#include "clues/windows/rows_table.h"

namespace telarium {

/// The browser of the encyclopedia that shows all rows in a table, with one for new entries.
class frmParole : public FinestraEnciclopedia {
 public:
  explicit frmParole(QWidget* genitore);
  ~frmParole() override;

  QTableView* grdDataGrid;

 protected:
  void MostraRiga() override;
  void PrendiDatiScritti() override { editor_->Conferma(); }
  void LasciaDatiScritti() override { editor_->Abbandona(); }
  QWidget& PrimoCampo() override { return *grdDataGrid; }
  void Aggiungi() override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void showEvent(QShowEvent* evento) override;

 private:
  void CreaTabella();
  void Disponi();
  void Seleziona(int riga, int colonna);
  void CambiataRiga(int riga);

  ModelloRighe* modello_;
  EditorDiCelle* editor_;
  bool mostrando_ = false;  // the table follows the rows, not they the table
};

}  // namespace telarium
