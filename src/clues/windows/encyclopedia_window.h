#pragma once

#include <QLabel>
#include <QPushButton>
#include <functional>

#include "clues/encyclopedia_rows.h"
#include "model/state.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

/// What the two browsers of the encyclopedia have in common: the rows, the buttons that move
/// through them and change them, the modes and the keys. While neither InModifica nor InAggiunta is
/// set Esc, End, Home and the arrow and page keys are those of the window, whatever control has the
/// focus; what is typed meanwhile is stored by the next button that leaves the row and by the end
/// of the window. In the two modes the user is asked at its end.
class FinestraEnciclopedia : public FinestraModale {
 public:
  QLabel* Label1;  // the note
  QWidget* picButtons;
  QPushButton* cmdUpdate;
  QPushButton* cmdCancel;
  QPushButton* cmdAdd;
  QPushButton* cmdEdit;
  QPushButton* cmdDelete;
  QPushButton* cmdRefresh;
  QPushButton* cmdClose;
  QWidget* picStatBox;
  QPushButton* cmdFirst;
  QPushButton* cmdPrevious;
  QLabel* lblStatus;
  QPushButton* cmdNext;
  QPushButton* cmdLast;

  RigheEnciclopedia adoPrimaryRS;
  Booleano16 InModifica = Falso;    // a row is being edited
  Booleano16 InAggiunta = Falso;    // a new row is being written
  Booleano16 DatiCambiati = Falso;  // nothing reads it
  NumeroRiga Segnalibro = 0;        // of the row that was current when a new one was begun

  void reject() override;

 protected:
  static constexpr int Margine = 11;  // pixels, around what the window holds

  FinestraEnciclopedia(const QString& nome, const QString& titolo, const QString& nota,
                       QWidget* genitore);

  /// Reads the encyclopedia, shows its first row and listens to the keys, once the controls of the
  /// window are there.
  void Carica();

  /// Shows the current row, or that there is none.
  virtual void MostraRiga() = 0;
  /// Hands what was typed to the rows.
  virtual void PrendiDatiScritti() = 0;
  /// Forgets what is being typed; the row is shown again afterwards.
  virtual void LasciaDatiScritti() {}
  /// Where typing begins.
  virtual QWidget& PrimoCampo() = 0;
  /// The click on cmdAdd.
  virtual void Aggiungi();

  /// Runs what a button does, with what was typed handed over. An error of the store ends it and
  /// shows its description; false then.
  bool InBottone(const std::function<void()>& azione);
  /// Behind each move.
  void adoPrimaryRS_MoveComplete();
  /// The buttons of browsing, or those of editing and adding.
  virtual void MostraBottoni(bool b);

  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  void CreaBottoni();
  void CreaStato();
  void DisponiStato();
  void Vai(bool (RigheEnciclopedia::*passo)());
  void Modifica();
  void Aggiorna();
  void Annulla();
  void TornaAScorrere();
  void Elimina();
  void Rileggi();
  bool LasciaModo();
  bool Anticipa(const QKeyEvent& tasto);

  bool perditaDetta_ = false;  // that what was typed could not be stored at the end
};

}  // namespace telarium
