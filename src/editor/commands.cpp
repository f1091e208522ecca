#include "editor/commands.h"

#include "auxiliary/guide.h"
#include "auxiliary/tips.h"
#include "dictionary/maintenance.h"
#include "dictionary/open_dictionary.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr const char* ProgrammaLudarium = "Ludarium.EXE";
// The buttons that a print preview disables.
constexpr int PrimoPulsanteSenzaAnteprima = 8;
constexpr int UltimoPulsanteSenzaAnteprima = 20;

constexpr const char* VociDiLingua[NumLingue] = {"MenuL1", "MenuL2", "MenuL3", "MenuL4"};

// The commands that a print preview forbids.
void AbilitaComandiSulloSchema(bool abilitati) {
  FinestraEditor& finestra = LaFinestra();
  for (int numero = PrimoPulsanteSenzaAnteprima; numero <= UltimoPulsanteSenzaAnteprima; ++numero)
    finestra.AbilitaPulsante(numero, abilitati);
  finestra.AbilitaVoce("MenuUtiliti", abilitati);
  finestra.AbilitaVoce("MenuEdit", abilitati);
}

// What a command that leads out of the grid does first.
void PrendiCongedo() {
  LaFinestra().TogliLabel1();
  ImpostaPuntatoreMouse(PuntatoreFreccia);
}

}  // namespace

void CambiaModoEdit() {
  // The redraw ends the look of a preview: what that forbade shall not stay forbidden.
  if (LaFinestra().Command3d15Visibile()) AbilitaComandiSulloSchema(true);
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  ModoGriglia = LaFinestra().EditPremuto() ? ModoModifica : ModoNeutro;
  RidisegnaSchema();
}

void EntraInModifica() {
  LaFinestra().PremiEdit(true);
  CambiaModoEdit();
}

void IniziaAnteprima() {
  LaFinestra().NascondiShape1();
  AbilitaComandiSulloSchema(false);
  LaFinestra().MostraCommand3d15(true);
  LaFinestra().TogliLabel1();
  ModoGriglia = ModoAnteprima;
}

void ChiudiAnteprima() {
  FinestraEditor& finestra = LaFinestra();
  PrendiCongedo();
  // Giving up the open window puts the grid into the mode of a preview without a crossword too.
  AbilitaComandiSulloSchema(!NomeCruciverba.empty());
  finestra.MostraCommand3d15(false);
  RidisegnaSchema();
  finestra.MettiGraficaAiMenu();
  EntraInModifica();
}

void LasciaAnteprima() {
  if (ModoGriglia == ModoAnteprima) ChiudiAnteprima();
}

void CambiaLingua(int lingua) {
  Dizionario& dizionario = IlDizionario();
  if (lingua == dizionario.LinguaDizionario()) return;
  dizionario.Nomina(DizionariDiSistema[lingua - 1], static_cast<std::int16_t>(lingua));
  AggiornaSpunte();
  ApriDizionario(dizionario);
}

void GestisciDizionari() {
  LaFinestra().MostraModale(Modale::Form4);
  AggiornaSpunte();
}

void CommutaStampaSoluzioni() {
  StampaSoluzioni = StampaSoluzioni ? Falso : Vero;
  AggiornaSpunte();
  ScriviImpostazioni();
}

void CommutaRettangoloParola() {
  RettangoloParola = RettangoloParola ? Falso : Vero;
  AggiornaSpunte();
  LaFinestra().NascondiShape1();
  ScriviImpostazioni();
}

void LanciaLudarium() {
  PrendiCongedo();
  const Percorso programma = PercorsoNellaCartella(CartellaProgramma, ProgrammaLudarium);
  if (const std::error_code errore = Sistema().EseguiComando(programma, {})) {
    Avvisa(
        Unisci("Errore ", errore.value(), " - Non trovato Ludarium.exe controllare installazione."),
        {}, Icona::Domanda);
    return;
  }
  LasciaAnteprima();
}

void ApriAiuto() {
  PrendiCongedo();
  ApriGuida();
  LasciaAnteprima();
}

void ApriSuggerimenti() {
  LeggiMostraSuggerimenti();
  if (!MostraSuggerimenti) return;
  LaFinestra().TogliLabel1();
  LasciaAnteprima();
  LaFinestra().MostraModale(Modale::frmTip);
}

void MostraInformazioni() {
  LasciaAnteprima();
  PrendiCongedo();
  LaFinestra().MostraModale(Modale::Form3);
}

void ScegliCarattere() {
  ModoGriglia = ModoNeutro;
  LaFinestra().TogliLabel1();
  LaFinestra().MostraModale(Modale::fONTEN);
}

void RegolaSchema() {
  LaFinestra().MostraModale(Modale::Settaggi);
  if (ModoGriglia == ModoAnteprima) {
    ChiudiAnteprima();
  } else {
    RidisegnaSchema();
  }
}

void AggiornaSpunte() {
  FinestraEditor& finestra = LaFinestra();
  finestra.SpuntaVoce("MenuVis", StampaSoluzioni);
  finestra.SpuntaVoce("Menurett", RettangoloParola);
  const auto lingua = LinguaDelDizionario(IlDizionario().NomeDizionario());
  for (int i = 0; i < NumLingue; ++i)
    finestra.SpuntaVoce(VociDiLingua[i], lingua == i + 1);
}

}  // namespace telarium
