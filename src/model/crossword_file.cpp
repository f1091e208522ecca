#include "model/crossword_file.h"

#include <utility>

#include "model/crossword_reader.h"
#include "model/crossword_writer.h"
#include "model/current_crossword.h"
#include "platform/platform.h"

namespace telarium {
namespace {

constexpr std::string_view MessaggioLettura = "Errore di lettura del file!";
constexpr std::string_view MessaggioScrittura = "Errore di scrittura del file!";
constexpr std::string_view NonUnCruciverba =
    "il contenuto non è quello di un cruciverba, o è incompleto"_cp;

// Tells what is wrong with the contents. `nome` is empty when they are not those of a file.
void AvvisaGuasto(const GuastoDelFile& guasto, const Percorso& nome) {
  if (guasto.parte == ParteDelFile::Dimensioni)
    return Avvisa("Formato del file non valido! Esecuzione terminata");
  const std::string_view causa =
      guasto.parte == ParteDelFile::Laboratorio ? guasto.motivo : NonUnCruciverba;
  Avvisa(ConCausa(MessaggioLettura, nome, nome.empty() ? std::string_view() : causa));
}

// True when nothing is wrong that is told.
bool Riferisci(const LetturaDelFile& lettura, const Percorso& nome) {
  const bool grave = lettura.guasto && lettura.guasto->Grave();
  if (grave) AvvisaGuasto(*lettura.guasto, nome);
  return !grave;
}

// Makes what was read the current crossword, in place of the one that is there.
Apertura Apri(const LetturaDelFile& lettura, const Percorso& nome) {
  if (lettura.cruciverba.colonne > 0) {
    SvuotaCruciverba();
    PrendiCruciverba(lettura.cruciverba);
  }
  if (Riferisci(lettura, nome)) return Apertura::Intera;
  return lettura.cruciverba.colonne > 0 ? Apertura::Parziale : Apertura::Rifiutata;
}

// Reads a file; what fails is told, but for a missing one.
EsitoLettura LeggiOAvvisa(const Percorso& nome, std::string& contenuto) {
  std::error_code errore;
  const EsitoLettura esito = LeggiFile(nome, MaxByteCruciverba, contenuto, errore);
  if (esito != EsitoLettura::Letto && esito != EsitoLettura::Assente)
    Avvisa(ConCausa(MessaggioLettura, nome, errore));
  return esito;
}

bool LeggiDa(const Percorso& percorso, const Percorso& nomeMostrato) {
  std::string contenuto;
  const EsitoLettura esito = LeggiOAvvisa(percorso, contenuto);
  if (esito == EsitoLettura::Assente) TerminaSenzaCruciverba(nomeMostrato);
  return esito == EsitoLettura::Letto && InterpretaCruciverba(contenuto, percorso);
}

// Writes the crossword; why that was not possible, empty when it was.
std::string Scrivi(const Percorso& percorso, Permanenza permanenza) {
  const auto testo = TestoDelCruciverba();
  if (!testo) return std::string(CruciverbaNonScrivibile);
  const auto errore = ScriviFile(percorso, *testo, permanenza);
  return errore ? DescrizioneErrore(errore) : std::string();
}

// True when nothing has failed, else it has been told.
bool Riferisci(const Percorso& percorso, const std::string& causa) {
  if (!causa.empty()) Avvisa(ConCausa(MessaggioScrittura, percorso, causa));
  return causa.empty();
}

bool istantaneaSuperata = false;

// Writes the snapshot; why that was not possible, empty when it was.
std::string FallimentoDellIstantanea() {
  std::string causa = Scrivi(PercorsoIstantanea(), Permanenza::Provvisoria);
  istantaneaSuperata = !causa.empty();
  return causa;
}

const AzzeramentoDiSottosistema azzeramento([] { istantaneaSuperata = false; });

}  // namespace

std::optional<std::string> TestoDelCruciverba() {
  return ContenutoDelFile(CruciverbaCorrente());
}

std::optional<std::string> TestoDaPubblicare() {
  Cruciverba cruciverba = CruciverbaCorrente();
  cruciverba.laboratorio = Laboratorio{};
  return ContenutoDelFile(cruciverba);
}

bool InterpretaCruciverba(std::string_view contenuto, const Percorso& nome) {
  const LetturaDelFile lettura = LeggiContenuto(contenuto, CruciverbaCorrente());
  PrendiCruciverba(lettura.cruciverba);
  return Riferisci(lettura, nome);
}

bool LeggiCruciverba(const Percorso& nome) {
  return LeggiDa(CartellaProgramma / nome, nome);
}

void TerminaSenzaCruciverba(const Percorso& nome) {
  Avvisa(
      Unisci("Errore: Cruciverba  ", TestoPercorso(nome), "  Non trovato! Esecuzione terminata."),
      "Telarium", Icona::Informazione);
  TerminaProgramma();
}

Apertura ApriCruciverba(const Percorso& nome) {
  std::string contenuto;
  const EsitoLettura esito = LeggiOAvvisa(nome, contenuto);
  if (esito == EsitoLettura::Assente) return Apertura::Assente;
  if (esito != EsitoLettura::Letto) return Apertura::Rifiutata;
  return Apri(LeggiContenuto(contenuto), nome);
}

Apertura ApriTestoDiCruciverba(std::string_view contenuto) {
  return Apri(LeggiContenuto(contenuto, {}, Coda::Estranea), {});
}

bool ScriviCruciverba(const Percorso& nome) {
  return Riferisci(nome, Scrivi(nome, Permanenza::SulDisco));
}

bool LeggiIstantanea() {
  return LeggiDa(PercorsoIstantanea(), NomeIstantanea);
}

bool ScriviIstantanea() {
  return Riferisci(PercorsoIstantanea(), FallimentoDellIstantanea());
}

bool IstantaneaSuperata() {
  return istantaneaSuperata;
}

void EliminaIstantanea() {
  std::error_code ignorato;
  std::filesystem::remove(PercorsoIstantanea(), ignorato);
}

bool AggiornaIstantanea() {
  return FallimentoDellIstantanea().empty();
}

void ScriviDimensioni(int colonne, int righe) {
  Schema(RigheIntestazione) = ConDimensioni(std::move(Schema(RigheIntestazione)), {colonne, righe});
}

}  // namespace telarium
