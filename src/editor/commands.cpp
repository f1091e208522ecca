#include "editor/commands.h"

#include "dictionary/dictionary.h"
#include "editor/commit.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "editor/startup.h"
#include "model/crossword_file.h"
#include "model/words.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr const char* FileAiuto = "TELARIUM7.mht";
constexpr const char* ProgrammaLudarium = "Ludarium.EXE";
constexpr int AnteprimaDiStampa = -1;  // of ModoGriglia
constexpr int Modifica = 1;

constexpr const char* VociDiLingua[NumLingue] = {"MenuL1", "MenuL2", "MenuL3", "MenuL4"};

// What a command that leads out of the grid does first.
void PrendiCongedo() {
  LaFinestra().TogliLabel1();
  ImpostaPuntatoreMouse(0);
}

// Puts a file into the state and into the snapshot; false, told, when it is no crossword. The
// writer wants the words of the grid.
bool PrendiCruciverba(const Percorso& nome) {
  if (!ApriCruciverba(nome) && NumColonne == 0) return false;
  RicalcolaCaselle();
  return ScriviIstantanea();
}

}  // namespace

void CambiaModoEdit() {
  ImpostaPuntatoreMouse(0);
  ModoGriglia = LaFinestra().EditPremuto() ? Modifica : 0;
  RidisegnaSchema();
}

void ChiudiAnteprima() {
  FinestraEditor& finestra = LaFinestra();
  PrendiCongedo();
  for (int numero = 9; numero <= 20; ++numero)
    finestra.AbilitaPulsante(numero, true);
  finestra.AbilitaPulsante(8, true);
  finestra.AbilitaVoce("MenuUtiliti", true);
  finestra.AbilitaVoce("MenuEdit", true);
  finestra.MostraCommand3d15(false);
  RidisegnaSchema();
  finestra.MettiGraficaAiMenu();
  finestra.PremiEdit(true);
  CambiaModoEdit();
}

void LasciaAnteprima() {
  if (ModoGriglia == AnteprimaDiStampa) ChiudiAnteprima();
}

void SalvaCruciverba() {
  LaFinestra().NascondiShape1();
  ImpostaPuntatoreMouse(0);
  if (LaFinestra().Command3d15Visibile()) ChiudiAnteprima();
  RidisegnaSchema();
  LaFinestra().TogliLabel1();
  if (NomeCruciverba.empty() || NomeCruciverba == NomeMaiSalvato) {
    Avvisa("Il cruciverba non ha ancora un nome: non è possibile salvarlo."_cp, {}, Icona::Avviso);
  } else if (ScriviCruciverba(NomeCruciverba)) {
    SchemaModificato = Falso;
  }
}

void ChiediSalvataggio() {
  const Messaggio domanda{.testo = Unisci("Il file ", Maiuscole(TestoPercorso(NomeCruciverba)),
                                          " è cambiato, si desidera salvare"_cp),
                          .titolo = "Modifica del file corrente",
                          .pulsanti = Pulsanti::OkAnnulla};
  if (ChiUsa().MostraMessaggio(domanda) == Risposta::Ok) SalvaCruciverba();
}

void EsciDalProgramma() {
  EliminaIstantanea();
  PrendiCongedo();
  if (SchemaModificato) ChiediSalvataggio();
  AbbandonaIstantanea();  // the redraw of a save may have written it again
  TerminaProgramma();
}

void CambiaLingua(int lingua) {
  if (lingua == LinguaDizionario) return;
  LinguaDizionario = static_cast<std::int16_t>(lingua);
  NomeDizionario = DizionariDiSistema[lingua - 1];
  AggiornaSpunte();
  ApriDizionario();
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
  if (!Sistema().ApriFile(PercorsoNellaCartella(CartellaProgramma, FileAiuto))) {
    Avvisa(Unisci("Non è possibile aprire il file della guida "_cp, FileAiuto,
                  ": manca il file o un programma adatto."),
           {}, Icona::Avviso);
  }
  LasciaAnteprima();
}

void ApriDaFuori(const Percorso& nome) {
  ImpostaPuntatoreMouse(0);
  LaFinestra().NascondiShape1();
  if (LaFinestra().Command3d15Visibile()) ChiudiAnteprima();
  LaFinestra().TogliLabel1();
  if (SchemaModificato) ChiediSalvataggio();
  std::error_code ignorato;
  if (!std::filesystem::exists(nome, ignorato)) {
    Avvisa("Errore: file inesistente!");
    return;
  }
  // Opening empties the state before it reads: the snapshot brings it back when that fails.
  if (!NomeCruciverba.empty() && !ScriviIstantanea()) return;
  if (!PrendiCruciverba(nome)) {
    if (!NomeCruciverba.empty()) LeggiIstantanea();
    return;
  }
  NomeCruciverba = nome;
  SchemaModificato = Falso;
  ModoGriglia = Modifica;
  LaFinestra().MostraPicture1(false);
}

void AggiornaSpunte() {
  FinestraEditor& finestra = LaFinestra();
  finestra.SpuntaVoce("MenuVis", StampaSoluzioni);
  finestra.SpuntaVoce("Menurett", RettangoloParola);
  for (int i = 0; i < NumLingue; ++i)
    finestra.SpuntaVoce(VociDiLingua[i], LinguaDizionario == i + 1);
}

}  // namespace telarium
