#pragma once

#include "model/cruciverba.h"
#include "platform/qt/qt_canvas.h"

namespace telarium {

/// A small picture of a crossword, which a screen reader tells by its size.
class FiguraDiCruciverba : public Tela {
 public:
  FiguraDiCruciverba(const QString& nome, QWidget* genitore);

  void Mostra(const Cruciverba& cruciverba);

 private:
  Cruciverba mostrato_;
};

/// When a change was made, for a list: the time alone today, else the day before it.
QString MomentoDi(std::chrono::sys_seconds quando);

}  // namespace telarium
