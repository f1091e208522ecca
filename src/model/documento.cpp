#include "model/documento.h"

#include <utility>

namespace telarium {

bool Documento::Modifica(std::string_view motivo,
                         const std::function<void(Cruciverba&)>& funzione) {
  Cruciverba dopo = stato_.cruciverba;
  funzione(dopo);
  if (dopo == stato_.cruciverba) return false;
  stato_.cruciverba = std::move(dopo);
  derivati_ = Deriva(stato_.cruciverba);
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
  stato_ = std::move(stato);
  derivati_ = Deriva(stato_.cruciverba);
}

void Documento::Registra(FileDelCruciverba file) {
  stato_.file = std::move(file);
  if (osservatore_) osservatore_->Registrato();
}

void Documento::SegnaModificato(bool modificato) {
  stato_.modificato = modificato;
}

void Documento::Azzera() {
  Riporta({});
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
  static Documento documento;
  return documento;
}

}  // namespace telarium
