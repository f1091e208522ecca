#include "output/printing.h"

#include <memory>
#include <string>

#include "editor/commands.h"
#include "editor/main_window.h"
#include "model/pointer.h"
#include "model/state.h"
#include "output/sheet.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr double LimiteDestro = 200;
// The height of the paper for a window's: as wide as that, and nearly of the proportion of A4.
constexpr double AltezzaPerFinestra = 8.0 / 6 * 297 / 210 * 111.5 / 103.5;
constexpr int ParteDelMargine = 12;  // of the width

// The crossword's name without folder and extension.
std::string NomeDelLavoro() {
  const Percorso nome = NomeCruciverba.filename();
  const bool nostra = Maiuscole(nome.extension().string()) == ".TLRM";
  return TestoPercorso(nostra ? nome.stem() : nome);
}

Foglio FoglioDiCarta(const Superficie& carta) {
  const double w = carta.LarghezzaSuperficie();
  const double h = carta.AltezzaSuperficie();
  return {.larghezza = w,
          .altezza = h,
          .latoMinimo = 0,
          .altezzaPerCentrare = h + LaFinestra().AltezzaToolbar1(),
          .riduzioneCorpi = 1.5,
          .distanzaCornice = 3,
          .posto = {.misureIntere = false,
                    .letteraADestra = 1,
                    .riduzioneCentro = 1.3,
                    .numeroADestra = 1},
          .corpoDefinizioni = 8.25,
          .margine = ArrotondaPari(w / ParteDelMargine),
          .spaziInFondo = 1,
          .definizione = StampaDefinizione,
          .aCapoPrimaDellaData = 2};
}

}  // namespace

void StampaSchema() {
  const Superficie* finestra = FinestraPrincipale();
  Stampante* stampante = LaStampante();
  if (NumColonne == 0 || !finestra || !stampante) return;
  const std::unique_ptr<LavoroDiStampa> lavoro = stampante->IniziaLavoro(NomeDelLavoro());
  if (!lavoro) return;
  const Clessidra clessidra;
  lavoro->ScalaSuperficie(finestra->LarghezzaSuperficie(),
                          finestra->AltezzaSuperficie() * AltezzaPerFinestra);
  DisegnaFoglio(*lavoro, FoglioDiCarta(*lavoro));
  lavoro->FineStampa();
  stampante->Grassetto(false);
}

void StampaDaMenu() {
  if (LaFinestra().Command3d15Visibile()) ChiudiAnteprima();
  LaFinestra().TogliLabel1();
  StampaSchema();
}

void StampaDefinizione(Superficie& superficie, std::string_view voce, int margine) {
  ScriviDefinizione(superficie, voce, margine, LimiteDestro);
}

}  // namespace telarium
