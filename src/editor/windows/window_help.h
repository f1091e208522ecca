#pragma once

#include <QObject>

namespace telarium {

/// F1 in each of the program's modal windows, whatever control has the focus: opens the guide at
/// the chapter about that window. It is installed on the application.
class AiutoNelleFinestre : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
};

}  // namespace telarium
