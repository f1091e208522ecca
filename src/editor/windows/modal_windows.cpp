#include "editor/windows/modal_windows.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <iterator>

#include "auxiliary/windows/Form3.h"
#include "auxiliary/windows/Form6.h"
#include "auxiliary/windows/fONTEN.h"
#include "auxiliary/windows/frmTip.h"
#include "clues/windows/TelarBro.h"
#include "clues/windows/TelarDef.h"
#include "clues/windows/telariummdb.h"
#include "crossworddialogs/windows/Form2.h"
#include "crossworddialogs/windows/FormModels.h"
#include "crossworddialogs/windows/FormNew.h"
#include "crossworddialogs/windows/TelarSav.h"
#include "dictionary/windows/Form4.h"
#include "editor/windows/LavoroNonSalvato.h"
#include "editor/windows/Settaggi.h"
#include "editor/windows/StoriaDelleModifiche.h"
#include "platform/check.h"

namespace telarium {
namespace {

// The window to which one that is shown now belongs: the modal one that is open, if there is one.
QWidget* Genitore(QWidget& principale) {
  QWidget* modale = QApplication::activeModalWidget();
  return modale ? modale : &principale;
}

// Makes a window for one showing.
template <class Finestra>
void Mostra(QWidget& principale) {
  Finestra(Genitore(principale)).exec();
}

// Makes a window at its first showing and keeps it, as the user left it, with the main window.
template <class Finestra>
void MostraConservata(QWidget& principale) {
  const QObjectList& figli = principale.children();
  const auto trovata = std::find_if(figli.begin(), figli.end(), [](QObject* figlio) {
    return dynamic_cast<Finestra*>(figlio) != nullptr;
  });
  auto* finestra =
      trovata == figli.end() ? new Finestra(&principale) : static_cast<Finestra*>(*trovata);
  finestra->exec();
}

struct VoceModale {
  Modale quale;
  void (*mostra)(QWidget& principale);
};

constexpr VoceModale finestre[] = {
    {Modale::Settaggi, Mostra<Settaggi>},
    {Modale::fONTEN, MostraConservata<fONTEN>},
    {Modale::FormNew, Mostra<FormNew>},
    {Modale::FormModels, Mostra<FormModels>},
    {Modale::Form2, Mostra<Form2>},
    {Modale::TelarSav, Mostra<TelarSav>},
    {Modale::TelarBro, Mostra<TelarBro>},
    {Modale::telariummdb, Mostra<telariummdb>},
    {Modale::Form4, Mostra<Form4>},
    {Modale::Form6, Mostra<Form6>},
    {Modale::frmTip, Mostra<frmTip>},
    {Modale::Form3, Mostra<Form3>},
    {Modale::StoriaDelleModifiche, Mostra<StoriaDelleModifiche>},
    {Modale::LavoroNonSalvato, Mostra<LavoroNonSalvato>},
};

}  // namespace

void MostraFinestraModale(Modale quale, QWidget& principale) {
  const auto voce = std::find_if(std::begin(finestre), std::end(finestre),
                                 [quale](const VoceModale& una) { return una.quale == quale; });
  Verifica(voce != std::end(finestre), "MostraFinestraModale: finestra senza classe");
  voce->mostra(principale);
}

std::optional<ParolaDefinita> MostraTelarDef(const ParolaInEsame& parola, QWidget& principale) {
  TelarDef finestra(parola, Genitore(principale));
  finestra.exec();
  return finestra.Esame().Accettata();
}

}  // namespace telarium
