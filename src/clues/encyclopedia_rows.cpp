#include "clues/encyclopedia_rows.h"

#include <algorithm>
#include <utility>

#include "clues/clue_family.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::size_t MaxRigheLette = 256;  // more than a screen shows

std::optional<std::string>& CampoDi(ModificheRiga& modifiche, CampoParole campo) {
  constexpr std::optional<std::string> ModificheRiga::*campi[] = {
      &ModificheRiga::parola, &ModificheRiga::facili, &ModificheRiga::difficili};
  return modifiche.*campi[static_cast<std::size_t>(campo)];
}

bool IniziaCon(std::string_view parola, std::string_view inMaiuscole) {
  return parola.size() >= inMaiuscole.size() &&
         std::equal(inMaiuscole.begin(), inMaiuscole.end(), parola.begin(),
                    [](char voluto, char carattere) { return Maiuscola(carattere) == voluto; });
}

}  // namespace

void RigheEnciclopedia::Apri() {
  Chiudi();
  EnciclopediaAperta archivio = ApriEnciclopedia();
  righe_ = archivio->Chiavi();
  archivio_ = std::move(archivio);
  posizione_ = righe_.empty() ? 0 : 1;
}

void RigheEnciclopedia::Chiudi() {
  Annulla();
  archivio_.reset();
  righe_ = {};
  lette_.clear();
  posizione_ = 0;
}

Enciclopedia& RigheEnciclopedia::Archivio() {
  if (!archivio_) throw ErroreEnciclopedia("il file non è aperto"_cp);
  return *archivio_;
}

bool RigheEnciclopedia::VaiA(int posizione) {
  RegistraSospese();
  posizione_ = std::clamp(posizione, std::min(1, NumeroRighe()), NumeroRighe());
  return HaRiga() && posizione_ == posizione;
}

bool RigheEnciclopedia::Ultimo() {
  RegistraSospese();
  return VaiA(NumeroRighe());
}

bool RigheEnciclopedia::CercaInizio(std::string_view testo) {
  VerificaCercabile(testo);
  RegistraSospese();
  const std::string inizio = Maiuscole(testo);
  const auto trovata =
      std::find_if(righe_.begin() + std::max(posizione_ - 1, 0), righe_.end(),
                   [&inizio](const ChiaveRiga& riga) { return IniziaCon(riga.parola, inizio); });
  if (trovata == righe_.end()) return false;
  posizione_ = static_cast<int>(trovata - righe_.begin()) + 1;
  return true;
}

NumeroRiga RigheEnciclopedia::Segnalibro() const {
  return posizione_ == 0 ? 0 : righe_[static_cast<std::size_t>(posizione_) - 1].numero;
}

bool RigheEnciclopedia::Torna(NumeroRiga segnalibro) {
  RegistraSospese();
  const auto trovata =
      std::find_if(righe_.begin(), righe_.end(),
                   [segnalibro](const ChiaveRiga& riga) { return riga.numero == segnalibro; });
  return trovata != righe_.end() && VaiA(static_cast<int>(trovata - righe_.begin()) + 1);
}

void RigheEnciclopedia::Nuova() {
  Archivio();  // without one there is nowhere to put it
  RegistraSospese();
  nuova_ = true;
}

void RigheEnciclopedia::Imposta(CampoParole campo, std::optional<std::string_view> testo) {
  if (!HaRiga()) return;
  std::optional<std::string>& impostato = CampoDi(impostate_, campo);
  impostato.reset();
  if (!testo) return;
  impostato = campo == CampoParole::Parola ? SenzaInterruzioni(*testo) : ConSeparatori(*testo);
}

// What was set and is not what was read.
ModificheRiga RigheEnciclopedia::Cambiate() {
  ModificheRiga cambiate = impostate_;
  for (const CampoParole campo : CampiParole) {
    std::optional<std::string>& testo = CampoDi(cambiate, campo);
    if (testo && *testo == Letto(Posizione(), campo)) testo.reset();
  }
  return cambiate;
}

bool RigheEnciclopedia::Sospesa() {
  const ModificheRiga cambiate = Cambiate();
  return cambiate.parola || cambiate.facili || cambiate.difficili;
}

void RigheEnciclopedia::Registra() {
  const ModificheRiga cambiate = Cambiate();
  if (nuova_) {
    const NumeroRiga numero = Archivio().InserisciRiga(cambiate);
    righe_.push_back({numero, cambiate.parola.value_or("")});
    nuova_ = false;
    posizione_ = NumeroRighe();
  } else if (cambiate.parola || cambiate.facili || cambiate.difficili) {
    ChiaveRiga& riga = righe_[static_cast<std::size_t>(posizione_) - 1];
    Archivio().Insieme([&] {
      VerificaInvariata(cambiate);
      Archivio().ScriviRiga(riga.numero, cambiate);
    });
    lette_.erase(riga.numero);
    if (cambiate.parola) riga.parola = *cambiate.parola;
  }
  impostate_ = {};
}

// What was read some time ago must not be written over what another program has stored since; the
// word always counts, as a row of that number is another one once the store was made anew.
void RigheEnciclopedia::VerificaInvariata(const ModificheRiga& cambiate) {
  const RigaParole adesso = Archivio().LeggiRiga(Segnalibro());
  const bool invariata =
      adesso.parola == Letto(posizione_, CampoParole::Parola) &&
      (!cambiate.facili || adesso.facili.value_or("") == Letto(posizione_, CampoParole::Facili)) &&
      (!cambiate.difficili ||
       adesso.difficili.value_or("") == Letto(posizione_, CampoParole::Difficili));
  if (invariata) return;
  throw ErroreEnciclopedia("la riga è stata cambiata da un altro programma"_cp,
                           ErroreEnciclopedia::Specie::RigaPersa);
}

void RigheEnciclopedia::RegistraSospese() {
  const bool vuota = std::all_of(CampiParole.begin(), CampiParole.end(), [this](CampoParole campo) {
    return CampoDi(impostate_, campo).value_or("").empty();
  });
  if (nuova_ && vuota) return Annulla();
  Registra();
}

void RigheEnciclopedia::Annulla() {
  nuova_ = false;
  impostate_ = {};
}

void RigheEnciclopedia::Elimina() {
  if (nuova_) return Annulla();
  if (!HaRiga()) throw ErroreEnciclopedia("non c'è nessuna riga da eliminare"_cp);
  const auto riga = righe_.begin() + posizione_ - 1;
  Archivio().EliminaRiga(*riga);
  impostate_ = {};
  lette_.erase(riga->numero);
  righe_.erase(riga);
  posizione_ = std::min(posizione_, NumeroRighe());
}

void RigheEnciclopedia::Rileggi() {
  if (!Aperta()) return Apri();
  try {
    RegistraSospese();
  } catch (const ErroreEnciclopedia& errore) {
    if (errore.DiSpecie() == ErroreEnciclopedia::Specie::Occupata) throw;
    Annulla();
    LeggiChiavi();
    throw;
  }
  LeggiChiavi();
}

void RigheEnciclopedia::LeggiChiavi() {
  righe_ = Archivio().Chiavi();
  lette_.clear();
  posizione_ = righe_.empty() ? 0 : 1;
}

std::string RigheEnciclopedia::Testo(CampoParole campo) {
  return Testo(Posizione(), campo);
}

std::string RigheEnciclopedia::Testo(int posizione, CampoParole campo) {
  if (posizione == Posizione()) {
    if (const auto& impostato = CampoDi(impostate_, campo)) return *impostato;
  }
  return Letto(posizione, campo);
}

std::string RigheEnciclopedia::Letto(int posizione, CampoParole campo) {
  if (posizione < 1 || posizione > NumeroRighe()) return {};
  const auto& [numero, parola] = righe_[static_cast<std::size_t>(posizione) - 1];
  if (campo == CampoParole::Parola) return parola;
  const RigaParole& riga = Riga(numero);
  return (campo == CampoParole::Facili ? riga.facili : riga.difficili).value_or("");
}

const RigaParole& RigheEnciclopedia::Riga(NumeroRiga numero) {
  const auto letta = lette_.find(numero);
  if (letta != lette_.end()) return letta->second;
  RigaParole riga = Archivio().LeggiRiga(numero);
  if (lette_.size() >= MaxRigheLette) lette_.clear();
  return lette_.emplace(numero, std::move(riga)).first->second;
}

}  // namespace telarium
