#include "editor/commit.h"

#include "editor/main_window.h"
#include "editor/redraw.h"
#include "model/crossword_file.h"

namespace telarium {
namespace {

constexpr int PrimoPulsanteDelCruciverba = 4;
constexpr std::string_view VociDelCruciverba[] = {
    "menuSalva",     "MenuSalvaCN", "MenuEdit", "MenuUtiliti", "MenuStampa",
    "MenuAnteprima", "menurl",      "Meno3",    "Menuhtml",    "menujava"};

// The commands that need a crossword.
void AbilitaComandi(bool abilitati) {
  for (int numero = PrimoPulsanteDelCruciverba; numero <= NumPulsanti; ++numero)
    LaFinestra().AbilitaPulsante(numero, abilitati);
  for (const std::string_view voce : VociDelCruciverba)
    LaFinestra().AbilitaVoce(voce, abilitati);
}

}  // namespace

bool ConsolidaSchema() {
  const bool scritta = ScriviIstantanea();
  RidisegnaSchema();
  return scritta;
}

void RiprendiSchema() {
  AbilitaComandi(!NomeCruciverba.empty());
  if (NomeCruciverba.empty()) return;
  LaFinestra().MettiGraficaAiMenu();
  RivediIstantanea();
  RidisegnaSchema();
}

}  // namespace telarium
