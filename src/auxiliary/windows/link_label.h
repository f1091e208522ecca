#pragma once

#include <QLabel>
#include <functional>

namespace telarium {

/// A label that opens something at a click, or at Enter or the space bar while it has the focus. It
/// looks like a link, and the pointer over it is the hand.
class EtichettaCollegamento : public QLabel {
 public:
  EtichettaCollegamento(const QString& testo, QWidget* genitore);

  void QuandoPremuta(std::function<void()> azione) { azione_ = std::move(azione); }

 protected:
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  std::function<void()> azione_;
};

}  // namespace telarium
