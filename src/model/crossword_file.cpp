#include "model/crossword_file.h"

#include <utility>

#include "model/crossword_reader.h"
#include "model/crossword_writer.h"
#include "model/documento.h"
#include "platform/digest.h"
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

// Reads a file; what fails is told, but for a missing one.
EsitoLettura LeggiOAvvisa(const Percorso& nome, std::string& contenuto) {
  std::error_code errore;
  const EsitoLettura esito = LeggiFile(nome, MaxByteCruciverba, contenuto, errore);
  if (esito != EsitoLettura::Letto && esito != EsitoLettura::Assente)
    Avvisa(ConCausa(MessaggioLettura, nome, errore));
  return esito;
}

// What came of a reading, after its faults have been told.
Apertura EsitoDella(const LetturaDelFile& lettura, const Percorso& nome) {
  if (Riferisci(lettura, nome)) return Apertura::Intera;
  return lettura.cruciverba.colonne > 0 ? Apertura::Parziale : Apertura::Rifiutata;
}

// The bytes of a crossword, for a file; else why there are none.
std::optional<std::string> Testo(const Cruciverba& cruciverba, std::string& causa) {
  auto testo = ContenutoDelFile(cruciverba);
  if (!testo) causa = CruciverbaNonScrivibile;
  return testo;
}

// Writes bytes; why that was not possible, empty when it was.
std::string Scrivi(const Percorso& percorso, std::string_view testo, Permanenza permanenza) {
  const auto errore = ScriviFile(percorso, testo, permanenza);
  return errore ? DescrizioneErrore(errore) : std::string();
}

// True when nothing has failed, else it has been told.
bool Riferisci(const Percorso& percorso, const std::string& causa) {
  if (!causa.empty()) Avvisa(ConCausa(MessaggioScrittura, percorso, causa));
  return causa.empty();
}

// Writes the snapshot; why that was not possible, empty when it was.
std::string FallimentoDellIstantanea(const Cruciverba& cruciverba) {
  std::string causa;
  const auto testo = Testo(cruciverba, causa);
  if (testo) causa = Scrivi(PercorsoIstantanea(), *testo, Permanenza::Provvisoria);
  StatoIstantanea stato = IlDocumento().Istantanea();
  stato.superata = !causa.empty();
  if (causa.empty()) stato.impronta = ImprontaDi(*testo);
  IlDocumento().NotaIstantanea(stato);
  return causa;
}

// Takes over what another program has left in the snapshot, as a change of the crossword.
void PrendiIstantanea(const std::string& contenuto) {
  Documento& documento = IlDocumento();
  documento.NotaIstantanea({ImprontaDi(contenuto)});
  LetturaDelFile lettura = LeggiContenuto(contenuto, documento.Valore());
  documento.Modifica("Cruciverba cambiato da un altro programma",
                     [&](Cruciverba& cruciverba) { cruciverba = std::move(lettura.cruciverba); });
  Riferisci(lettura, PercorsoIstantanea());
}

}  // namespace

std::optional<std::string> TestoDelCruciverba() {
  return ContenutoDelFile(IlDocumento().Valore());
}

std::optional<std::string> TestoDaPubblicare() {
  Cruciverba cruciverba = IlDocumento().Valore();
  cruciverba.laboratorio = Laboratorio{};
  return ContenutoDelFile(cruciverba);
}

void TerminaSenzaCruciverba(const Percorso& nome) {
  Avvisa(
      Unisci("Errore: Cruciverba  ", TestoPercorso(nome), "  Non trovato! Esecuzione terminata."),
      "Telarium", Icona::Informazione);
  TerminaProgramma();
}

Apertura ApriCruciverba(const Percorso& nome) {
  std::string contenuto;
  const EsitoLettura letto = LeggiOAvvisa(nome, contenuto);
  if (letto == EsitoLettura::Assente) return Apertura::Assente;
  if (letto != EsitoLettura::Letto) return Apertura::Rifiutata;
  LetturaDelFile lettura = LeggiContenuto(contenuto);
  const bool rifiutata = lettura.cruciverba.colonne == 0;
  if (!rifiutata) {
    ComeNelFile(lettura.cruciverba);
    const bool inParte = lettura.guasto && lettura.guasto->Grave();
    IlDocumento().Sostituisci(
        "Apertura",
        {lettura.cruciverba, {nome, lettura.cruciverba, ImprontaDi(contenuto), inParte}, false});
  }
  return EsitoDella(lettura, nome);
}

bool ApriTestoDiCruciverba(std::string_view contenuto) {
  LetturaDelFile lettura = LeggiContenuto(contenuto, {}, Coda::Estranea);
  if (EsitoDella(lettura, {}) != Apertura::Intera) return false;
  ComeNelFile(lettura.cruciverba);
  Documento& documento = IlDocumento();
  const Percorso nome = NomeCruciverba.empty() ? Percorso(NomeMaiSalvato) : NomeCruciverba;
  documento.Sostituisci("Apertura da Internet", {std::move(lettura.cruciverba), SoloNome(nome),
                                                 documento.Stato().modificato});
  return true;
}

bool ScriviCruciverba(const Cruciverba& cruciverba, const Percorso& nome) {
  std::string causa;
  const auto testo = Testo(cruciverba, causa);
  if (testo) causa = Scrivi(nome, *testo, Permanenza::SulDisco);
  return Riferisci(nome, causa);
}

bool ScriviCruciverba(const Percorso& nome) {
  return ScriviCruciverba(IlDocumento().Valore(), nome);
}

bool SalvaComeFile(Cruciverba cruciverba, const Percorso& nome) {
  std::string causa;
  const auto testo = Testo(cruciverba, causa);
  if (testo) causa = Scrivi(nome, *testo, Permanenza::SulDisco);
  if (!Riferisci(nome, causa)) return false;
  Documento& documento = IlDocumento();
  documento.Modifica("Autore", [&](Cruciverba& attuale) { attuale = cruciverba; });
  documento.Registra({nome, documento.Valore(), ImprontaDi(*testo)});
  documento.SegnaModificato(false);
  return true;
}

bool ScriviIstantanea() {
  return ScriviIstantanea(IlDocumento().Valore());
}

bool ScriviIstantanea(const Cruciverba& cruciverba) {
  return Riferisci(PercorsoIstantanea(), FallimentoDellIstantanea(cruciverba));
}

bool AggiornaIstantanea() {
  return FallimentoDellIstantanea(IlDocumento().Valore()).empty();
}

void RivediIstantanea() {
  // A change that never reached the snapshot must not be undone by it.
  if (IlDocumento().Istantanea().superata && !AggiornaIstantanea()) return;
  std::string contenuto;
  const EsitoLettura esito = LeggiOAvvisa(PercorsoIstantanea(), contenuto);
  if (esito == EsitoLettura::Assente) {
    AggiornaIstantanea();
  } else if (esito == EsitoLettura::Letto &&
             IlDocumento().Istantanea().impronta != ImprontaDi(contenuto)) {
    PrendiIstantanea(contenuto);
  }
}

void EliminaIstantanea() {
  std::error_code ignorato;
  std::filesystem::remove(PercorsoIstantanea(), ignorato);
}

}  // namespace telarium
