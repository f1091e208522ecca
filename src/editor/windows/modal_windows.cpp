#include "editor/windows/modal_windows.h"

#include "crossworddialogs/windows/Form2.h"
#include "crossworddialogs/windows/FormModels.h"
#include "crossworddialogs/windows/FormNew.h"
#include "crossworddialogs/windows/TelarSav.h"

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
    {Modale::FormNew, Mostra<FormNew>},
    {Modale::FormModels, Mostra<FormModels>},
    {Modale::Form2, Mostra<Form2>},
    {Modale::TelarSav, Mostra<TelarSav>},
};

}  // namespace

bool MostraFinestraModale(Modale quale, QWidget& principale) {
  for (const VoceModale& voce : finestre) {
    if (voce.quale != quale) continue;
    voce.mostra(principale);
    return true;
  }
  return false;
}

}  // namespace telarium
