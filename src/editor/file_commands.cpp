#include "editor/file_commands.h"

#include "editor/commands.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "editor/startup.h"
#include "model/crossword_file.h"
#include "model/words.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

// What each of these commands does first.
void LasciaLoSchema(int puntatore) {
  LaFinestra().NascondiShape1();
  ImpostaPuntatoreMouse(puntatore);
}

void ChiudiAnteprimaSeVisibile() {
  if (LaFinestra().Command3d15Visibile()) ChiudiAnteprima();
}

// Clears the way for another crossword.
void LasciaIlCruciverba() {
  if (LaFinestra().Picture1Visibile()) {
    LaFinestra().MostraPicture1(false);
    if (Superficie* superficie = FinestraPrincipale()) superficie->Pulisci();
  }
  ChiudiAnteprimaSeVisibile();
  LaFinestra().TogliLabel1();
  if (SchemaModificato) ChiediSalvataggio();
}

void PrendiAltroCruciverba(Modale finestra) {
  LasciaLoSchema(PuntatoreClessidra);
  LasciaIlCruciverba();
  LaFinestra().MostraModale(finestra);
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  if (NomeCruciverba.empty()) {
    LaFinestra().MostraPicture1(true);
  } else {
    RidisegnaSchema();
  }
}

bool MaiSalvato() {
  return NumColonne == 0 || NomeCruciverba.empty() || NomeCruciverba == NomeMaiSalvato;
}

}  // namespace

void NuovoCruciverba() {
  PrendiAltroCruciverba(Modale::FormNew);
}

void ApriConFinestra() {
  PrendiAltroCruciverba(Modale::Form2);
}

void SalvaCruciverba() {
  LasciaLoSchema(PuntatoreFreccia);
  ChiudiAnteprimaSeVisibile();
  RidisegnaSchema();
  LaFinestra().TogliLabel1();
  if (MaiSalvato()) return SalvaConNome();
  if (ScriviCruciverba(NomeCruciverba)) SchemaModificato = Falso;
}

void SalvaConNome() {
  LasciaLoSchema(PuntatoreFreccia);
  ChiudiAnteprimaSeVisibile();
  LaFinestra().TogliLabel1();
  LaFinestra().MostraModale(Modale::TelarSav);
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
  LaFinestra().TogliLabel1();
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  if (SchemaModificato) ChiediSalvataggio();
  AbbandonaIstantanea();  // a save may have written it again
  TerminaProgramma();
}

bool ApriFileDiCruciverba(const Percorso& nome) {
  std::error_code ignorato;
  if (!std::filesystem::is_regular_file(nome, ignorato)) {
    Avvisa("Errore: file inesistente!");
    return false;
  }
  if (ApriCruciverba(nome) == Apertura::Rifiutata) return false;
  RicalcolaCaselle();                     // the writer wants the words of the grid
  static_cast<void>(ScriviIstantanea());  // a failure has shown its message
  NomeCruciverba = nome;
  SchemaModificato = Falso;
  ModoGriglia = ModoModifica;
  return true;
}

void ApriDaFuori(const Percorso& nome) {
  LasciaLoSchema(PuntatoreFreccia);
  ChiudiAnteprimaSeVisibile();
  LaFinestra().TogliLabel1();
  if (SchemaModificato) ChiediSalvataggio();
  if (ApriFileDiCruciverba(nome)) LaFinestra().MostraPicture1(false);
}

}  // namespace telarium
