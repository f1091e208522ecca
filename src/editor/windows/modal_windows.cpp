#include "editor/windows/modal_windows.h"

#include <QDialog>

namespace telarium {
namespace {

// Makes a window for one showing.
template <class Finestra>
void Mostra(QWidget& principale) {
  Finestra(&principale).exec();
}

struct VoceModale {
  Modale quale;
  void (*mostra)(QWidget& principale);
};

constexpr VoceModale finestre[] = {
    {Modale::TelarDef, nullptr},
};

}  // namespace

bool MostraFinestraModale(Modale quale, QWidget& principale) {
  for (const VoceModale& voce : finestre) {
    if (voce.quale != quale || !voce.mostra) continue;
    voce.mostra(principale);
    return true;
  }
  return false;
}

}  // namespace telarium
