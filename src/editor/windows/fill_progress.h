#pragma once

#include <QElapsedTimer>
#include <QFrame>
#include <QPushButton>

#include "fill/extraction.h"
#include "platform/pace.h"

namespace telarium {

/// The panel on the status bar's band while a fill runs: how far it has come, and a button to stop
/// it.
class PannelloEstrazione : public QFrame {
 public:
  explicit PannelloEstrazione(QWidget* genitore);

  /// A run begins: nothing has been asked or counted yet.
  void Inizia();

  /// Takes note of the progress and, 60 times a second, shows it and lets the window repaint and
  /// hear the user. False once the user wants the run to end.
  bool Segui(const AvanzamentoEstrazione& avanzamento, bool infinita);

  /// What the button and Esc do.
  void Interrompi() { interrotta_ = true; }

  /// What it tells of the progress now.
  QString Testo() const;

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  QPushButton* interrompi_;
  AvanzamentoEstrazione avanzamento_;
  bool infinita_ = false;
  QElapsedTimer daInizio_;
  Cadenza cadenza_;
  bool interrotta_ = false;
};

}  // namespace telarium
