#include "crossworddialogs/windows/FormModels.h"

namespace telarium {
namespace {

constexpr int ColonneIniziali = 26;
constexpr int RigheIniziali = 15;

}  // namespace

FormModels::FormModels(QWidget* genitore)
    : SceltaModello(QStringLiteral("FormModels"),
                    QStringLiteral("Modificare e salvare gli schemi di modello"), genitore) {
  Disponi(nullptr);
}

void FormModels::Attivata() {
  SceltaModello::Attivata();
  Command3d1->setFocus();
}

void FormModels::Crea() {
  if (NuovoVuoto(ColonneIniziali, RigheIniziali) == EsitoNuovo::Fatto) accept();
}

}  // namespace telarium
