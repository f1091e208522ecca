#include "composer/state.h"

#include <algorithm>
#include <bit>

#include "composer/block_kernels.h"
#include "platform/check.h"

namespace telarium {
namespace {

constexpr int BitPerBlocco = 64;

constexpr bool UnaSola(Lettere lettere) {
  return lettere != 0 && (lettere & (lettere - 1)) == 0;  // quicker than a count of bits
}

constexpr Lettere BitDellaLettera(char lettera) {
  return 1u << (lettera - 'A');
}

bool Contiene(const Blocco* blocchi, int numero) {
  return (blocchi[numero / ParolePerBlocco] >> (numero % ParolePerBlocco) & 1) != 0;
}

template <class Visita>
void PerOgniParola(const Blocco* blocchi, int quanti, Visita visita) {
  for (int k = 0; k < quanti; ++k) {
    for (Blocco resto = blocchi[k]; resto != 0; resto &= resto - 1)
      visita(k * ParolePerBlocco + std::countr_zero(resto));
  }
}

}  // namespace

std::span<const NumeroParola> Parentele::Di(NumeroParola parola) {
  const std::int64_t chiave = std::int64_t{parola.lunghezza} << 32 | parola.numero;
  const auto [dove, nuova] = note_.try_emplace(chiave);
  if (nuova) dove->second = parole_.Parenti(parole_.Parola(parola));
  return dove->second;
}

// --- Levels ---

Stato::Stato(const Partenza& partenza) : partenza_(partenza), parentele_(partenza.Parole()) {
  Prepara();
}

void Stato::Prepara() {
  const int quantiSlot = Griglia().Slot();
  const auto livelli = static_cast<std::size_t>(Griglia().Caselle() + quantiSlot);
  blocchiRagione_ = std::min(livelli / BitPerBlocco + 1, MaxBlocchiRagione);
  for (int casella = 0; casella < Griglia().Caselle(); ++casella)
    caselle_.push_back({Di().lettere[S(casella)], 0, CopiaRagione(nullptr)});
  int posti = 0;
  int blocchi = 0;
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
    posti += lunghezza;
    blocchi = std::max(blocchi, Parole().Blocchi(lunghezza));
  }
  residui_.assign(S(posti) * LettereAlfabeto, 0);
  lavoro_.resize(S(blocchi));
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

void Stato::Accoda(int slot) {
  if (inCoda_[S(slot)]) return;
  inCoda_[S(slot)] = 1;
  (slot_[S(slot)].dominio.elenco ? coda_ : codaLunga_).push_back(slot);
}

bool Stato::Urta(int slot, const Blocco* perche, const Blocco* anche) {
  urto_.slot = slot;
  urto_.ragione.assign(perche, perche + blocchiRagione_);
  if (anche) Unisci(urto_.ragione.data(), anche);
  SvuotaCode();
  return false;
}

void Stato::SvuotaCode() {
  for (const int accodato : coda_)
    inCoda_[S(accodato)] = 0;
  for (const int accodato : codaLunga_)
    inCoda_[S(accodato)] = 0;
  coda_.clear();
  codaLunga_.clear();
  testa_ = testaLunga_ = 0;
}

bool Stato::Propaga() {
  for (;;) {
    int slot = -1;
    if (testa_ < coda_.size()) {
      slot = coda_[testa_++];
    } else if (testaLunga_ < codaLunga_.size()) {
      slot = codaLunga_[testaLunga_++];
    } else {
      break;
    }
    inCoda_[S(slot)] = 0;
    if (!Rivedi(slot)) return false;
  }
  SvuotaCode();
  return true;
}

// --- Revision of a slot ---

int Stato::SogliaElenco(int slot) const {
  // Where a list is gone through sooner than the blocks.
  return 16 + Parole().Blocchi(Griglia().Lunghezza(slot)) / 2;
}

bool Stato::Rivedi(int slot, int tolta) {
  const Dominio prima = slot_[S(slot)].dominio;
  if (prima.conta == 0) return Urta(slot, slot_[S(slot)].ragione);
  if (slot_[S(slot)].posato) return true;
  if (!DaRivedere(slot) && tolta < 0) return true;
  StatoSlot& stato = PrendiSlot(slot);
  FiltraLettere(slot, stato);
  FiltraEscluse(slot, stato);
  FiltraGenie(slot, stato);
  if (tolta >= 0) TogliDalLavoro(tolta);
  const int conta = elencato_ ? static_cast<int>(lavoroElenco_.size())
                              : nuclei::Conta(lavoro_.data(), Blocchi(slot));
  if (conta == 0) return Urta(slot, stato.ragione);
  const bool primaVolta = stato.bolloParole == BolloBase;
  if (conta == prima.conta && !primaVolta) return true;
  ConservaLavoro(slot, stato, conta);
  if (!elencato_ && !primaVolta && conta > stato.sostenute / 10 * 9) return true;
  stato.sostenute = conta;
  if (!Sostieni(slot, stato)) return false;
  return conta > 1 || Di().slot[S(slot)].aperto || Posa(slot, stato);
}

std::size_t Stato::Blocchi(int slot) const {
  return S(Parole().Blocchi(Griglia().Lunghezza(slot)));
}

bool Stato::DaRivedere(int slot) const {
  const StatoSlot& stato = slot_[S(slot)];
  if (stato.bolloParole == BolloBase) return true;
  if ((esaurite_ & ~stato.genie) != 0) return true;
  const int lunghezza = Griglia().Lunghezza(slot);
  if (S(stato.escluse) < esclusioni_[S(lunghezza)].size()) return true;
  const auto caselle = Griglia().CaselleDi(slot);
  for (std::size_t posto = 0; posto < caselle.size(); ++posto) {
    if (caselle_[S(caselle[posto])].lettere != stato.viste[posto]) return true;
  }
  return false;
}

// Brings the words that the letters of the cells leave into the work.
void Stato::FiltraLettere(int slot, StatoSlot& stato) {
  const int lunghezza = Griglia().Lunghezza(slot);
  const auto caselle = Griglia().CaselleDi(slot);
  cambiati_.clear();
  for (int posto = 0; posto < lunghezza; ++posto) {
    const StatoCasella& casella = caselle_[S(caselle[S(posto)])];
    if (casella.lettere == stato.viste[posto]) continue;
    cambiati_.push_back({posto, stato.viste[posto] & ~casella.lettere, casella.lettere});
    Unisci(stato.ragione, casella.ragione);
    stato.viste[posto] = casella.lettere;
  }
  elencato_ = stato.dominio.elenco != nullptr;
  if (elencato_) {
    FiltraElenco(lunghezza, stato.dominio);
  } else {
    FiltraBlocchi(lunghezza, stato.dominio);
  }
}

void Stato::FiltraElenco(int lunghezza, const Dominio& dominio) {
  const char* lettere = Parole().LettereDi(lunghezza);
  lavoroElenco_.clear();
  for (int k = 0; k < dominio.conta; ++k) {
    const char* parola = lettere + S(dominio.elenco[k]) * S(lunghezza);
    const bool resta = std::all_of(cambiati_.begin(), cambiati_.end(), [&](const Cambio& cambio) {
      return (cambio.rimaste & BitDellaLettera(parola[cambio.posto])) != 0;
    });
    if (resta) lavoroElenco_.push_back(dominio.elenco[k]);
  }
}

void Stato::FiltraBlocchi(int lunghezza, const Dominio& dominio) {
  const auto blocchi = S(Parole().Blocchi(lunghezza));
  const Blocco* da = dominio.blocchi;
  for (const Cambio& cambio : cambiati_) {
    const bool tolti = QuanteLettere(cambio.perse) < QuanteLettere(cambio.rimaste);
    insiemi_.clear();
    for (Lettere resto = tolti ? cambio.perse : cambio.rimaste; resto != 0; resto &= resto - 1)
      insiemi_.push_back(Parole().Insieme(lunghezza, cambio.posto, std::countr_zero(resto)));
    nuclei::Incrocia(lavoro_.data(), da, blocchi, insiemi_, tolti);
    da = lavoro_.data();
  }
  if (da != lavoro_.data()) std::copy_n(da, blocchi, lavoro_.data());
}

void Stato::FiltraEscluse(int slot, StatoSlot& stato) {
  const auto& esclusioni = esclusioni_[S(Griglia().Lunghezza(slot))];
  for (; S(stato.escluse) < esclusioni.size(); ++stato.escluse) {
    const Esclusione& esclusione = esclusioni[S(stato.escluse)];
    if (esclusione.slot != slot && TogliDalLavoro(esclusione.numero))
      Unisci(stato.ragione, slot_[S(esclusione.slot)].ragione);
  }
}

void Stato::FiltraGenie(int slot, StatoSlot& stato) {
  const auto nuove = static_cast<Genie>(esaurite_ & ~stato.genie);
  if (nuove == 0) return;
  stato.genie |= nuove;
  const int lunghezza = Griglia().Lunghezza(slot);
  for (int genia = 0; genia < NumGenie; ++genia) {
    if ((nuove >> genia & 1) == 0) continue;
    const Blocco* dellaGenia = Parole().DellaGenia(lunghezza, static_cast<Genia>(genia)).data();
    if (elencato_) {
      std::erase_if(lavoroElenco_, [&](int numero) { return Contiene(dellaGenia, numero); });
    } else {
      const std::array<const Blocco*, 1> insiemi = {dellaGenia};
      nuclei::Incrocia(lavoro_.data(), lavoro_.data(), Blocchi(slot), insiemi, true);
    }
  }
  for (const auto& [genie, posato] : posatiDiGenia_) {
    if ((genie & nuove) != 0) Unisci(stato.ragione, slot_[S(posato)].ragione);
  }
}

bool Stato::TogliDalLavoro(int numero) {
  if (!elencato_) {
    if (!Contiene(lavoro_.data(), numero)) return false;
    lavoro_[S(numero / ParolePerBlocco)] &= ~(Blocco{1} << (numero % ParolePerBlocco));
    return true;
  }
  const auto dove = std::lower_bound(lavoroElenco_.begin(), lavoroElenco_.end(), numero);
  if (dove == lavoroElenco_.end() || *dove != numero) return false;
  lavoroElenco_.erase(dove);
  return true;
}

// Keeps the work as the words of the slot, in arrays of the present level.
void Stato::ConservaLavoro(int slot, StatoSlot& stato, int conta) {
  const bool proprie = stato.bolloParole == bollo_;
  if (!elencato_ && conta <= SogliaElenco(slot)) {
    lavoroElenco_.clear();
    PerOgniParola(lavoro_.data(), static_cast<int>(Blocchi(slot)),
                  [&](int numero) { lavoroElenco_.push_back(numero); });
    elencato_ = true;
  }
  if (elencato_) {
    auto* elenco = proprie && stato.dominio.elenco ? const_cast<std::int32_t*>(stato.dominio.elenco)
                                                   : memoria_.Prendi<std::int32_t>(S(conta));
    std::copy(lavoroElenco_.begin(), lavoroElenco_.end(), elenco);
    stato.dominio = {nullptr, elenco, conta};
  } else {
    auto* blocchi = proprie ? const_cast<Blocco*>(stato.dominio.blocchi)
                            : memoria_.Prendi<Blocco>(Blocchi(slot));
    std::copy_n(lavoro_.data(), Blocchi(slot), blocchi);
    stato.dominio = {blocchi, nullptr, conta};
  }
  stato.bolloParole = bollo_;
}

// Leaves each cell of a slot the letters that a word has there.
bool Stato::Sostieni(int slot, StatoSlot& stato) {
  const int lunghezza = Griglia().Lunghezza(slot);
  const auto caselle = Griglia().CaselleDi(slot);
  const bool elencato = stato.dominio.elenco != nullptr;
  if (elencato) UnisciLettere(lunghezza, stato.dominio);
  for (int posto = 0; posto < lunghezza; ++posto) {
    const int casella = caselle[S(posto)];
    const Lettere chieste = caselle_[S(casella)].lettere;
    const Lettere sostenute = elencato ? unione_[S(posto)] : LettereSostenute(slot, posto, chieste);
    if (!Riduci(casella, sostenute, slot)) return false;
    stato.viste[posto] = caselle_[S(casella)].lettere;
  }
  return true;
}

void Stato::UnisciLettere(int lunghezza, const Dominio& dominio) {
  const char* lettere = Parole().LettereDi(lunghezza);
  std::fill_n(unione_.begin(), lunghezza, 0);
  for (int k = 0; k < dominio.conta; ++k) {
    const char* parola = lettere + S(dominio.elenco[k]) * S(lunghezza);
    for (int posto = 0; posto < lunghezza; ++posto)
      unione_[S(posto)] |= BitDellaLettera(parola[posto]);
  }
}

Lettere Stato::LettereSostenute(int slot, int posto, Lettere chieste) {
  // Only crossings want to know; a fixed letter is in each word that is left.
  if (UnaSola(chieste) || Griglia().IncrociDi(slot)[S(posto)].slot < 0) return chieste;
  const std::size_t blocchi = Blocchi(slot);
  const Blocco* dominio = slot_[S(slot)].dominio.blocchi;
  const Blocco* insiemi = Parole().Insieme(Griglia().Lunghezza(slot), posto, 0);
  std::uint16_t* residui = residui_.data() + S(primoPosto_[S(slot)] + posto) * LettereAlfabeto;
  Lettere sostenute = chieste;
  for (Lettere resto = chieste; resto != 0; resto &= resto - 1) {
    const auto lettera = S(std::countr_zero(resto));
    const Blocco* insieme = insiemi + lettera * blocchi;
    const std::size_t residuo = residui[lettera];
    if ((dominio[residuo] & insieme[residuo]) != 0) continue;
    const std::size_t trovato = nuclei::PrimoComune(dominio, insieme, 0, blocchi);
    if (trovato == blocchi) {
      sostenute &= ~(1u << lettera);
    } else {
      residui[lettera] = static_cast<std::uint16_t>(trovato);
    }
  }
  return sostenute;
}

bool Stato::Riduci(int casella, Lettere lettere, int slot) {
  if ((caselle_[S(casella)].lettere & ~lettere) == 0) return true;
  StatoCasella& stato = PrendiCasella(casella);
  Unisci(stato.ragione, slot_[S(slot)].ragione);
  stato.lettere &= lettere;
  for (const PostoDiSlot& posto : Griglia().SlotDi(casella)) {
    if (posto.slot >= 0 && posto.slot != slot) Accoda(posto.slot);
  }
  return stato.lettere != 0 || Urta(slot, stato.ragione);
}

// --- Words that are placed ---

bool Stato::Posa(int slot, StatoSlot& stato) {
  stato.posato = true;
  ++posati_;
  const NumeroParola parola = {Griglia().Lunghezza(slot), stato.dominio.elenco[0]};
  Escludi(parola, slot);
  if (!Di().ammetteForme && Parole().HaParentele()) {
    for (const NumeroParola parente : parentele_.Di(parola))
      Escludi(parente, slot);
  }
  return ContaGenie(slot, Parole().GenieDi(parola));
}

void Stato::Escludi(NumeroParola parola, int slot) {
  esclusioni_[S(parola.lunghezza)].push_back({parola.numero, slot});
  esclusioniScritte_.push_back(parola.lunghezza);
  for (const int altro : Griglia().DiLunghezza(parola.lunghezza)) {
    const StatoSlot& stato = slot_[S(altro)];
    if (altro != slot && !stato.posato && stato.dominio.elenco) Accoda(altro);
  }
}

bool Stato::ContaGenie(int slot, Genie genie) {
  Genie limitate = 0;
  for (int genia = 0; genia < NumGenie; ++genia) {
    if ((genie >> genia & 1) != 0 && Di().alMassimo[S(genia)] != SenzaLimite)
      limitate |= SolaGenia(static_cast<Genia>(genia));
  }
  if (limitate == 0) return true;
  posatiDiGenia_.emplace_back(limitate, slot);
  for (int genia = 0; genia < NumGenie; ++genia) {
    if ((limitate >> genia & 1) == 0) continue;
    const int quante = ++conteggi_[S(genia)];
    if (quante > Di().alMassimo[S(genia)]) return UrtaPerGenia(slot, genia);
    if (quante == Di().alMassimo[S(genia)]) Esaurisci(genia);
  }
  return true;
}

void Stato::Esaurisci(int genia) {
  esaurite_ |= SolaGenia(static_cast<Genia>(genia));
  for (int altro = 0; altro < Griglia().Slot(); ++altro) {
    if (!slot_[S(altro)].posato) Accoda(altro);
  }
}

bool Stato::UrtaPerGenia(int slot, int genia) {
  Ragione ragione(blocchiRagione_, 0);
  for (const auto& [genie, posato] : posatiDiGenia_) {
    if ((genie >> genia & 1) != 0) Unisci(ragione.data(), slot_[S(posato)].ragione);
  }
  return Urta(slot, ragione.data());
}

// --- What is left ---

bool Stato::Fissa(int casella) const {
  return UnaSola(LettereDi(casella));
}

char Stato::Lettera(int casella) const {
  if (!Fissa(casella)) return SenzaLettera;
  return static_cast<char>('A' + std::countr_zero(LettereDi(casella)));
}

bool Stato::Ha(int slot, int numero) const {
  const Dominio& dominio = DominioDi(slot);
  if (dominio.blocchi) return Contiene(dominio.blocchi, numero);
  return std::binary_search(dominio.elenco, dominio.elenco + dominio.conta, numero);
}

int Stato::Migliore(int slot) const {
  const Dominio& dominio = DominioDi(slot);
  if (dominio.elenco) return dominio.elenco[0];
  int blocco = 0;
  while (dominio.blocchi[blocco] == 0)
    ++blocco;
  return blocco * ParolePerBlocco + std::countr_zero(dominio.blocchi[blocco]);
}

void Stato::Prime(int slot, int quante, std::vector<int>& parole) const {
  const Dominio& dominio = DominioDi(slot);
  parole.clear();
  if (dominio.elenco) {
    parole.assign(dominio.elenco, dominio.elenco + std::min(quante, dominio.conta));
    return;
  }
  for (std::size_t k = 0; k < Blocchi(slot); ++k) {
    for (Blocco resto = dominio.blocchi[k]; resto != 0; resto &= resto - 1) {
      if (static_cast<int>(parole.size()) == quante) return;
      parole.push_back(static_cast<int>(k) * ParolePerBlocco + std::countr_zero(resto));
    }
  }
}

void Stato::ContaLettere(int slot, int posto, std::array<int, LettereAlfabeto>& quante) const {
  const Dominio& dominio = DominioDi(slot);
  const int lunghezza = Griglia().Lunghezza(slot);
  quante.fill(0);
  if (dominio.elenco) {
    const char* lettere = Parole().LettereDi(lunghezza) + posto;
    for (int k = 0; k < dominio.conta; ++k)
      ++quante[S(lettere[S(dominio.elenco[k]) * S(lunghezza)] - 'A')];
    return;
  }
  const int casella = Griglia().CaselleDi(slot)[S(posto)];
  for (Lettere resto = LettereDi(casella); resto != 0; resto &= resto - 1) {
    const int lettera = std::countr_zero(resto);
    quante[S(lettera)] = nuclei::ContaComuni(
        dominio.blocchi, Parole().Insieme(lunghezza, posto, lettera), Blocchi(slot));
  }
}

}  // namespace telarium
