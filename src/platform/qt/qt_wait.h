#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <chrono>

#include "platform/user.h"

namespace telarium {

/// A wait that shows itself, with a button to break it off, only once it has lasted a little. From
/// the start it keeps the windows painted and lets no command of theirs run; what the user does
/// before it shows has its effect behind a short wait, and none when it shows.
class AttesaQt : public QDialog, public Attesa {
 public:
  AttesaQt(const QString& testo, QWidget* genitore, std::chrono::milliseconds primaDiMostrarsi);

  bool Prosegue(std::size_t byte) override;
  bool ProsegueFino(double parte) override;

  /// The button, Escape and the close box.
  void reject() override;

 private:
  bool Mostra();

  QElapsedTimer trascorso_;
  std::chrono::milliseconds primaDiMostrarsi_;
  QProgressBar* barra_;
  QLabel* byte_;
  bool interrotta_ = false;
};

}  // namespace telarium
