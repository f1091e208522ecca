#include "model/documento.h"

#include <utility>

#include "model/crossword_writer.h"
#include "model/state.h"

namespace telarium {
namespace {

TavoleDelCruciverba tavole;
Documento documento(tavole);

}  // namespace

bool Documento::Modifica(std::string_view motivo,
                         const std::function<void(Cruciverba&)>& funzione) {
  Cruciverba prima = stato_.cruciverba;
  ComeNelFile(prima);  // a new one may not have that form yet
  Cruciverba dopo = prima;
  funzione(dopo);
  ComeNelFile(dopo);
  if (dopo == prima) return false;
  Prendi(std::move(dopo));
  if (!passo_ && osservatore_) osservatore_->Modificato(std::string(motivo));
  return true;
}

void Documento::Sostituisci(std::string_view motivo, StatoDelDocumento stato) {
  if (!stato.file.impronta) stato.file.contenuto = stato.cruciverba;
  Riporta(std::move(stato));
  if (passo_) passo_->prima_ = stato_.cruciverba;
  if (osservatore_) osservatore_->Sostituito(std::string(motivo));
}

void Documento::Riporta(StatoDelDocumento stato) {
  Prendi(std::move(stato.cruciverba));
  stato_.file = std::move(stato.file);
  stato_.modificato = stato.modificato;
  RispecchiaNomeESegno();
}

void Documento::RispecchiaNomeESegno() {
  if (!specchio_) return;
  specchio_->nome = stato_.file.nome;
  specchio_->modificato = stato_.modificato ? Vero : Falso;
}

void Documento::Prendi(Cruciverba cruciverba) {
  derivati_ = Deriva(cruciverba);
  if (specchio_) specchio_->Rispecchia(stato_.cruciverba, cruciverba, derivati_);
  stato_.cruciverba = std::move(cruciverba);
}

void Documento::Registra(FileDelCruciverba file) {
  stato_.file = std::move(file);
  RispecchiaNomeESegno();
  if (osservatore_) osservatore_->Registrato();
}

void Documento::SegnaModificato(bool modificato) {
  stato_.modificato = modificato;
  RispecchiaNomeESegno();
}

void Documento::Azzera() {
  Riporta({});
  istantanea_ = {};
}

PassoUnico::PassoUnico(Documento& documento, std::string motivo)
    : documento_(documento), motivo_(std::move(motivo)), prima_(documento.Valore()) {
  if (!documento_.passo_) documento_.passo_ = this;
}

PassoUnico::~PassoUnico() {
  if (documento_.passo_ != this) return;
  documento_.passo_ = nullptr;
  const bool modificato = documento_.Valore() != prima_;
  if (modificato && documento_.osservatore_) documento_.osservatore_->Modificato(motivo_);
}

Documento& IlDocumento() {
  return documento;
}

const Tabella<std::string, Indici<1, RigheSchema>>& Schema = tavole.schema;
const std::int16_t& NumColonne = tavole.colonne;
const std::int16_t& NumRighe = tavole.righe;
const Percorso& NomeCruciverba = tavole.nome;
const Booleano16& SchemaModificato = tavole.modificato;
const Tabella<std::string, AsseColonne, AsseRighe, AsseDirezioni>& Definizione = tavole.definizione;
const Tabella<Colore, AsseColonne, AsseRighe>& ColoreCasella = tavole.colore;
const Tabella<char, AsseColonne, AsseRighe>& LetteraCasella = tavole.lettera;
const Tabella<std::int16_t, AsseColonne, AsseRighe>& TipoCasella = tavole.tipo;
const Tabella<std::int16_t, AsseColonne, AsseRighe>& NumeroCasella = tavole.numero;
const Tabella<std::string, AsseColonne, AsseRighe, AsseDirezioni>& ParolaCasella = tavole.parola;

}  // namespace telarium
