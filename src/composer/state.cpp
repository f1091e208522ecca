#include "composer/state.h"

#include <algorithm>
#include <bit>

#include "platform/check.h"

// What a state is, and how it goes on and back; what follows from a change is in propagation.cpp.
namespace telarium {
namespace {

constexpr int BitPerBlocco = 64;

}  // namespace

std::span<const NumeroParola> ParentiNoti::Di(NumeroParola parola) {
  const std::int64_t chiave = std::int64_t{parola.lunghezza} << 32 | parola.numero;
  const auto [dove, nuova] = note_.try_emplace(chiave);
  if (nuova) dove->second = parole_.Parenti(parole_.Parola(parola));
  return dove->second;
}

// --- Levels ---

Stato::Stato(const Partenza& partenza)
    : partenza_(partenza), parenti_(partenza.Parole()), revisione_(partenza.Parole()) {
  Prepara();
}

void Stato::Prepara() {
  const int quantiSlot = Griglia().Slot();
  const auto livelli = static_cast<std::size_t>(Griglia().Caselle() + quantiSlot);
  blocchiRagione_ = std::min(livelli / BitPerBlocco + 1, MaxBlocchiRagione);
  for (int casella = 0; casella < Griglia().Caselle(); ++casella)
    caselle_.push_back({Di().lettere[S(casella)], 0, CopiaRagione(nullptr)});
  int posti = 0;
  for (int slot = 0; slot < quantiSlot; ++slot) {
    const int lunghezza = Griglia().Lunghezza(slot);
    const Base& base = partenza_.BaseDi(slot);
    StatoSlot stato{};
    stato.dominio = {base.parole.data(), nullptr, base.conta};
    stato.viste = memoria_.Prendi<Lettere>(S(lunghezza));
    std::copy(base.lettere.begin(), base.lettere.end(), stato.viste);
    stato.ragione = CopiaRagione(nullptr);
    stato.bolloParole = BolloBase;
    slot_.push_back(stato);
    primoPosto_.push_back(posti);
    residui_.insert(residui_.end(), base.sostegni.begin(), base.sostegni.end());
    posti += lunghezza;
  }
  inCoda_.assign(S(quantiSlot), 0);
  for (int genia = 0; genia < NumGenie; ++genia) {
    if (Di().alMassimo[S(genia)] == 0) esaurite_ |= SolaGenia(static_cast<Genia>(genia));
  }
  for (int slot = 0; slot < quantiSlot; ++slot) {
    for (int posto = 0; posto < Griglia().Lunghezza(slot); ++posto)
      caselle_[S(Griglia().CaselleDi(slot)[S(posto)])].lettere &= slot_[S(slot)].viste[posto];
    Accoda(slot);
  }
}

void Stato::Avanza() {
  livelli_.push_back({.bollo = bollo_,
                      .memoria = memoria_.Dove(),
                      .slotSalvati = slotSalvati_.size(),
                      .caselleSalvate = caselleSalvate_.size(),
                      .posatiDiGenia = posatiDiGenia_.size(),
                      .esclusioniScritte = esclusioniScritte_.size(),
                      .posati = posati_,
                      .conteggi = conteggi_,
                      .esaurite = esaurite_});
  bollo_ = ++ultimoBollo_;
}

void Stato::Torna(int livello) {
  if (livello >= Livello()) return;
  const InizioLivello& inizio = livelli_[S(livello)];
  for (; slotSalvati_.size() > inizio.slotSalvati; slotSalvati_.pop_back())
    slot_[S(slotSalvati_.back().first)] = slotSalvati_.back().second;
  for (; caselleSalvate_.size() > inizio.caselleSalvate; caselleSalvate_.pop_back())
    caselle_[S(caselleSalvate_.back().first)] = caselleSalvate_.back().second;
  for (; esclusioniScritte_.size() > inizio.esclusioniScritte; esclusioniScritte_.pop_back())
    esclusioni_[S(esclusioniScritte_.back())].pop_back();
  posatiDiGenia_.resize(inizio.posatiDiGenia);
  memoria_.Torna(inizio.memoria);
  posati_ = inizio.posati;
  conteggi_ = inizio.conteggi;
  esaurite_ = inizio.esaurite;
  bollo_ = inizio.bollo;
  livelli_.resize(S(livello));
}

Stato::StatoSlot& Stato::PrendiSlot(int slot) {
  StatoSlot& stato = slot_[S(slot)];
  if (stato.bollo == bollo_) return stato;
  slotSalvati_.emplace_back(slot, stato);
  const auto lunghezza = S(Griglia().Lunghezza(slot));
  auto* viste = memoria_.Prendi<Lettere>(lunghezza);
  std::copy_n(stato.viste, lunghezza, viste);
  stato.viste = viste;
  stato.ragione = CopiaRagione(stato.ragione);
  stato.bollo = bollo_;
  return stato;
}

Stato::StatoCasella& Stato::PrendiCasella(int casella) {
  StatoCasella& stato = caselle_[S(casella)];
  if (stato.bollo == bollo_) return stato;
  caselleSalvate_.emplace_back(casella, stato);
  stato.ragione = CopiaRagione(stato.ragione);
  stato.bollo = bollo_;
  return stato;
}

// --- Reasons ---

Blocco* Stato::CopiaRagione(const Blocco* ragione) {
  auto* copia = memoria_.Prendi<Blocco>(blocchiRagione_);
  if (ragione) {
    std::copy_n(ragione, blocchiRagione_, copia);
  } else {
    std::fill_n(copia, blocchiRagione_, Blocco{0});
  }
  return copia;
}

void Stato::Unisci(Blocco* ragione, const Blocco* altra) const {
  for (std::size_t k = 0; k < blocchiRagione_; ++k)
    ragione[k] |= altra[k];
}

void Stato::UnisciLivello(Blocco* ragione, int livello) const {
  const std::size_t bit = std::min(S(livello), blocchiRagione_ * BitPerBlocco - 1);
  ragione[bit / BitPerBlocco] |= Blocco{1} << (bit % BitPerBlocco);
}

int Stato::Ultimo(const Ragione& ragione) const {
  for (std::size_t k = ragione.size(); k-- > 0;) {
    if (ragione[k] == 0) continue;
    const int bit = static_cast<int>(k) * BitPerBlocco + std::bit_width(ragione[k]) - 1;
    const int comune = static_cast<int>(blocchiRagione_) * BitPerBlocco - 1;
    return bit == comune ? Livello() : bit;
  }
  return 0;
}

void Stato::TogliUltimo(Ragione& ragione) const {
  const int comune = static_cast<int>(blocchiRagione_) * BitPerBlocco - 1;
  const int ultimo = Ultimo(ragione);
  if (ultimo > comune) return;  // lower levels share its bit
  ragione[S(ultimo) / BitPerBlocco] &= ~(Blocco{1} << (ultimo % BitPerBlocco));
}

Ragione Stato::TuttiILivelli() const {
  Ragione ragione(blocchiRagione_, 0);
  for (int livello = 1; livello <= Livello(); ++livello)
    UnisciLivello(ragione.data(), livello);
  return ragione;
}

void Stato::AggiungiRagione(int slot, Ragione& ragione) const {
  ragione.resize(blocchiRagione_, 0);
  Unisci(ragione.data(), slot_[S(slot)].ragione);
}

// --- Changes ---

bool Stato::Assegna(int casella, int lettera) {
  StatoCasella& stato = PrendiCasella(casella);
  UnisciLivello(stato.ragione, Livello());
  const Lettere nuove = stato.lettere & (1u << lettera);
  if (nuove == stato.lettere) return true;
  stato.lettere = nuove;
  for (const PostoDiSlot& posto : Griglia().SlotDi(casella)) {
    if (posto.slot >= 0) Accoda(posto.slot);
  }
  return nuove != 0 || Urta(Griglia().SlotDi(casella)[0].slot, stato.ragione);
}

bool Stato::Assegna(int slot, NumeroParola parola) {
  const std::string_view lettere = Parole().Parola(parola);
  const auto caselle = Griglia().CaselleDi(slot);
  for (std::size_t posto = 0; posto < caselle.size(); ++posto) {
    if (!Assegna(caselle[posto], lettere[posto] - 'A')) return false;
  }
  return true;
}

bool Stato::Togli(int casella, int lettera, const Ragione& perche) {
  StatoCasella& stato = PrendiCasella(casella);
  Unisci(stato.ragione, perche.data());
  stato.lettere &= ~(1u << lettera);
  for (const PostoDiSlot& posto : Griglia().SlotDi(casella)) {
    if (posto.slot >= 0) Accoda(posto.slot);
  }
  return stato.lettere != 0 || Urta(Griglia().SlotDi(casella)[0].slot, stato.ragione);
}

bool Stato::Togli(int slot, NumeroParola parola, const Ragione& perche) {
  Unisci(PrendiSlot(slot).ragione, perche.data());
  return Rivedi(slot, parola.numero);
}

// --- What is left ---

char Stato::Lettera(int casella) const {
  if (!Fissa(casella)) return SenzaLettera;
  return static_cast<char>('A' + std::countr_zero(LettereDi(casella)));
}

void Stato::ContaLettere(int slot, int posto, LettereContate& quante) const {
  const Lettere chieste = LettereDi(Griglia().CaselleDi(slot)[S(posto)]);
  telarium::ContaLettere(Parole(), Griglia().Lunghezza(slot), DominioDi(slot), posto, chieste,
                         quante);
}

}  // namespace telarium
