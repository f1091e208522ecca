#pragma once

#include <QFrame>
#include <QLabel>
#include <QTimer>
#include <array>
#include <functional>

namespace telarium {

/// The status bar StatusBar1 of Form1: seven panels that keep themselves up to date, the name of
/// the program, the keys Scroll Lock, Insert, Caps Lock and Num Lock (grey while off or unknown),
/// the date and the time.
class BarraDiStato : public QFrame {
 public:
  explicit BarraDiStato(QWidget* genitore);

  /// What a click on the bar calls.
  void QuandoPremuta(std::function<void()> chiama) { premuta_ = std::move(chiama); }

  /// Brings all panels up to date now.
  void Aggiorna();

 protected:
  void mousePressEvent(QMouseEvent* evento) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  enum Pannello { Testo, Scorrimento, Inserimento, Maiuscole, Numeri, Data, Ora, NumPannelli };

  void Accendi(Pannello quale, bool acceso);

  std::array<QLabel*, NumPannelli> pannelli_{};
  QTimer orologio_;
  bool inserimento_ = false;  // no system tells it: turned over by the key
  std::function<void()> premuta_;
};

}  // namespace telarium
