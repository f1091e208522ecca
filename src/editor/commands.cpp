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
// The buttons that a print preview disables.
constexpr int PrimoPulsanteSenzaAnteprima = 8;
constexpr int UltimoPulsanteSenzaAnteprima = 20;

constexpr const char* VociDiLingua[NumLingue] = {"MenuL1", "MenuL2", "MenuL3", "MenuL4"};

// What a command that leads out of the grid does first.
void PrendiCongedo() {
  LaFinestra().TogliLabel1();
  ImpostaPuntatoreMouse(PuntatoreFreccia);
}

}  // namespace

void CambiaModoEdit() {
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  ModoGriglia = LaFinestra().EditPremuto() ? ModoModifica : ModoNeutro;
  RidisegnaSchema();
}

void EntraInModifica() {
  LaFinestra().PremiEdit(true);
  CambiaModoEdit();
}

void ChiudiAnteprima() {
  FinestraEditor& finestra = LaFinestra();
  PrendiCongedo();
  for (int numero = PrimoPulsanteSenzaAnteprima; numero <= UltimoPulsanteSenzaAnteprima; ++numero)
    finestra.AbilitaPulsante(numero, true);
  finestra.AbilitaVoce("MenuUtiliti", true);
  finestra.AbilitaVoce("MenuEdit", true);
  finestra.MostraCommand3d15(false);
  RidisegnaSchema();
  finestra.MettiGraficaAiMenu();
  EntraInModifica();
}

void LasciaAnteprima() {
  if (ModoGriglia == ModoAnteprima) ChiudiAnteprima();
}

void SalvaCruciverba() {
  LaFinestra().NascondiShape1();
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  if (LaFinestra().Command3d15Visibile()) ChiudiAnteprima();
  RidisegnaSchema();
  LaFinestra().TogliLabel1();
  if (NumColonne == 0 || NomeCruciverba.empty() || NomeCruciverba == NomeMaiSalvato) {
    Avvisa("Il cruciverba non ha ancora uno schema o un nome: non è possibile salvarlo."_cp, {},
           Icona::Avviso);
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
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  LaFinestra().NascondiShape1();
  if (LaFinestra().Command3d15Visibile()) ChiudiAnteprima();
  LaFinestra().TogliLabel1();
  if (SchemaModificato) ChiediSalvataggio();
  std::error_code ignorato;
  if (!std::filesystem::is_regular_file(nome, ignorato)) {
    Avvisa("Errore: file inesistente!");
    return;
  }
  if (ApriCruciverba(nome) == Apertura::Rifiutata) return;
  RicalcolaCaselle();                     // the writer wants the words of the grid
  static_cast<void>(ScriviIstantanea());  // a failure has shown its message
  NomeCruciverba = nome;
  SchemaModificato = Falso;
  ModoGriglia = ModoModifica;
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
