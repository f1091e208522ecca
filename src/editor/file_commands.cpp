#include "editor/file_commands.h"

#include "editor/commands.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "editor/startup.h"
#include "model/documento.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/digest.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

void ChiudiAnteprimaSeVisibile() {
  if (LaFinestra().Command3d15Visibile()) ChiudiAnteprima();
}

// What these commands do before a window or another crossword takes the grid's place.
void LasciaLoSchema() {
  LaFinestra().NascondiShape1();
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  ChiudiAnteprimaSeVisibile();
  LaFinestra().TogliLabel1();
}

void TogliPicture1() {
  if (!LaFinestra().Picture1Visibile()) return;
  LaFinestra().MostraPicture1(false);
  if (Superficie* superficie = FinestraPrincipale()) superficie->Pulisci();
}

// Without a crossword the splash picture comes back, also when the user gave up opening one.
void PrendiAltroCruciverba(Modale finestra) {
  TogliPicture1();
  LasciaLoSchema();
  ImpostaPuntatoreMouse(PuntatoreClessidra);
  if (SchemaModificato) ChiediSalvataggio();
  LaFinestra().MostraModale(finestra);
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  if (NomeCruciverba.empty()) {
    LaFinestra().MostraPicture1(true);
  } else {
    RidisegnaSchema();
  }
}

// Nothing has that name, or a folder.
void AvvisaInesistente(const Percorso& nome) {
  std::string nulla;
  std::error_code errore;
  static_cast<void>(LeggiFile(nome, 0, nulla, errore));
  Avvisa(ConCausa("Errore: file inesistente!", nome, errore));
}

// What a save under the current name would cost, behind the file's name; empty when nothing that
// the user does not know of.
std::string_view DannoDelSalvataggio() {
  const FileDelCruciverba& file = IlDocumento().Stato().file;
  std::string contenuto;
  if (LeggiFile(file.nome, MaxByteCruciverba, contenuto) != EsitoLettura::Letto) return {};
  if (!file.impronta) return "contiene un altro cruciverba";
  if (ImprontaDi(contenuto) != *file.impronta) return "è stato cambiato da un altro programma"_cp;
  return file.lettoInParte ? "non è stato letto per intero, e il resto andrebbe perduto"_cp : "";
}

// Asks where it would cost something.
bool SovrascrivereFile() {
  const std::string_view danno = DannoDelSalvataggio();
  if (danno.empty()) return true;
  const Messaggio domanda{.testo = Unisci("Il file ", TestoPercorso(NomeCruciverba), ' ', danno,
                                          ": si desidera sovrascriverlo?"),
                          .titolo = "Salvataggio file",
                          .pulsanti = Pulsanti::OkAnnulla};
  return ChiUsa().MostraMessaggio(domanda) == Risposta::Ok;
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

void GestisciModelli() {
  PrendiAltroCruciverba(Modale::FormModels);
}

void SalvaCruciverba() {
  LasciaLoSchema();
  RidisegnaSchema();
  if (MaiSalvato() || !SovrascrivereFile()) return SalvaConNome();
  static_cast<void>(SalvaComeFile(IlDocumento().Valore(), NomeCruciverba));
}

void SalvaConNome() {
  LasciaLoSchema();
  LaFinestra().MostraModale(Modale::TelarSav);
}

bool ChiediSalvataggio() {
  const Messaggio domanda{.testo = Unisci("Il file ", Maiuscole(TestoPercorso(NomeCruciverba)),
                                          " è cambiato, si desidera salvare"_cp),
                          .titolo = "Modifica del file corrente",
                          .pulsanti = Pulsanti::OkAnnulla};
  if (ChiUsa().MostraMessaggio(domanda) != Risposta::Ok) return true;
  SalvaCruciverba();
  return !SchemaModificato;
}

void EsciDalProgramma() {
  LaFinestra().TogliLabel1();
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  if (SchemaModificato && !ChiediSalvataggio()) return;
  AbbandonaIstantanea();
  TerminaProgramma(Fine::Regolare);
}

bool ApriFileDiCruciverba(const Percorso& nome) {
  const Apertura esito = ApriCruciverba(nome);
  if (esito == Apertura::Assente) AvvisaInesistente(nome);
  if (esito == Apertura::Assente || esito == Apertura::Rifiutata) return false;
  static_cast<void>(ScriviIstantanea());  // a failure has shown its message
  ModoGriglia = ModoModifica;
  return true;
}

void ApriDaFuori(const Percorso& nome) {
  LasciaLoSchema();
  if (SchemaModificato && !ChiediSalvataggio()) return;
  if (ApriFileDiCruciverba(nome)) LaFinestra().MostraPicture1(false);
}

}  // namespace telarium
