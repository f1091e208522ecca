#include "composer/refill.h"

#include <algorithm>
#include <bit>
#include <numeric>

#include "composer/block_kernels.h"
#include "platform/check.h"

namespace telarium {
namespace {

constexpr int MaxParole = 1500;          // listed for a slot, the best ones
constexpr int MaxGiri = 6;               // of moving worth about
constexpr int PocheParole = 40;          // in all, for which that is not worth it
constexpr std::int64_t MaxFallite = 60;  // of the search

// From here on a word is good enough: what it is worth more counts half. Between a good and a poor
// word lies more than between two good ones.
constexpr int PregioAbbastanza = 700;

// Far below what any words of a window are worth together, and what pushes them there.
constexpr Valore Morta = -(1 << 23);
constexpr Valore Condanna = 2 * Morta;

}  // namespace

Rifacimento::Rifacimento(const Stesura& stesura)
    : stesura_(stesura),
      celleDi_(S(stesura.Inizio().Griglia().Caselle()), -1),
      vociDi_(S(stesura.Inizio().Griglia().Slot()), -1) {
  for (int pregio = 0; pregio <= MaxPregio; ++pregio) {
    const int oltre = std::max(0, pregio - PregioAbbastanza);
    valori_[S(pregio)] = (pregio - oltre) * Grana + oltre * Grana / 2;
  }
}

Rifacimento::Risposta Rifacimento::Cerca(std::span<const int> libere, Valore daBattere,
                                         Parola evitata) {
  evitata_ = evitata;
  daBattere_ = daBattere;
  trovato_ = false;
  passi_ = 1;
  fallite_ = 0;
  esaurite_ = stesura_.Esaurite();
  Disponi(libere);
  if (Elenca() && Diffondi()) {
    Prepara();
    Scendi(0);
  }
  return {.trovato = trovato_, .passi = passi_};
}

// --- The window ---

// Numbers the free cells and the slots through them.
void Rifacimento::Disponi(std::span<const int> libere) {
  celle_.clear();
  quanteVoci_ = 0;
  for (const int casella : libere) {
    celleDi_[S(casella)] = static_cast<int>(celle_.size());
    celle_.push_back({stesura_.Inizio().Di().lettere[S(casella)], {}});
  }
  for (const int casella : libere) {
    for (const PostoDiSlot& posto : Griglia().SlotDi(casella)) {
      if (posto.slot >= 0 && vociDi_[S(posto.slot)] < 0) AggiungiVoce(posto.slot);
    }
  }
  for (const int casella : libere)
    celleDi_[S(casella)] = -1;
  for (const Voce& voce : Voci())
    vociDi_[S(voce.slot)] = -1;
}

void Rifacimento::AggiungiVoce(int slot) {
  if (S(quanteVoci_) == voci_.size()) voci_.emplace_back();
  vociDi_[S(slot)] = quanteVoci_;
  Voce& voce = voci_[S(quanteVoci_)];
  voce.slot = slot;
  voce.lunghezza = Griglia().Lunghezza(slot);
  voce.aperta = stesura_.Inizio().Di().slot[S(slot)].aperto;
  voce.posti.clear();
  voce.celle.clear();
  const auto caselle = Griglia().CaselleDi(slot);
  for (int k = 0; k < voce.lunghezza; ++k) {
    const int cella = celleDi_[S(caselle[S(k)])];
    if (cella < 0) continue;
    auto& capi = celle_[S(cella)].capi;
    (capi[0].voce < 0 ? capi[0] : capi[1]) = {quanteVoci_, static_cast<int>(voce.posti.size())};
    voce.posti.push_back(k);
    voce.celle.push_back(cella);
  }
  ++quanteVoci_;
}

// --- The words that may be in it ---

// False when they cannot beat what is to be beaten.
bool Rifacimento::Elenca() {
  somma_ = 0;
  for (Voce& voce : Voci()) {
    Filtra(voce);
    voce.migliore = Massimo(voce);
    if (voce.migliore == Morta) return false;
    somma_ += voce.migliore;
  }
  if (somma_ <= daBattere_) return false;
  // The letters of slots with few free cells leave the others fewer words.
  ordine_.resize(S(quanteVoci_));
  std::iota(ordine_.begin(), ordine_.end(), 0);
  std::ranges::stable_sort(ordine_, {}, [&](int voce) { return voci_[S(voce)].posti.size(); });
  return std::ranges::all_of(ordine_, [&](int voce) { return ElencaVoce(voci_[S(voce)]); });
}

// The words that fit the letters that stay, as a set.
void Rifacimento::Filtra(Voce& voce) const {
  const Base& base = stesura_.Inizio().BaseDi(voce.slot);
  const std::size_t blocchi = base.parole.size();
  const Blocco* vietate = stesura_.Vietate(voce.lunghezza);
  voce.insieme.resize(blocchi);
  for (std::size_t k = 0; k < blocchi; ++k)
    voce.insieme[k] = base.parole[k] & ~vietate[k];
  const auto caselle = Griglia().CaselleDi(voce.slot);
  std::size_t libero = 0;
  for (int posto = 0; posto < voce.lunghezza; ++posto) {
    if (libero < voce.posti.size() && voce.posti[libero] == posto) {
      ++libero;
      continue;
    }
    const char lettera = stesura_.Lettera(caselle[S(posto)]);
    if (lettera == SenzaLettera) continue;
    const std::array insiemi = {Vocaboli().Insieme(voce.lunghezza, posto, lettera - 'A')};
    nuclei::Incrocia(voce.insieme.data(), voce.insieme.data(), blocchi, insiemi, false);
  }
}

// The worth of the best word of a set.
Valore Rifacimento::Massimo(const Voce& voce) const {
  for (std::size_t k = 0; k < voce.insieme.size(); ++k) {
    if (voce.insieme[k] == 0) continue;
    const int numero = static_cast<int>(k) * ParolePerBlocco + std::countr_zero(voce.insieme[k]);
    return voce.aperta ? 0 : ValoreDi(voce.lunghezza, numero);
  }
  return Morta;
}

// How many words of its length, the best ones, are worth more than something.
int Rifacimento::Limite(const Voce& voce, Valore oltre) const {
  const int quante = Vocaboli().Quante(voce.lunghezza);
  if (voce.aperta) return quante;
  const std::uint16_t* pregi = Vocaboli().Pregi(voce.lunghezza);
  const std::uint16_t* fine = std::partition_point(
      pregi, pregi + quante, [&](std::uint16_t pregio) { return valori_[pregio] > oltre; });
  return static_cast<int>(fine - pregi);
}

void Rifacimento::FiltraLettere(Voce& voce, std::size_t blocchi) {
  for (std::size_t k = 0; k < voce.posti.size(); ++k) {
    const Lettere lettere = celle_[S(voce.celle[k])].lettere;
    if (lettere == TutteLeLettere) continue;
    const bool tolti = std::popcount(lettere) > LettereAlfabeto / 2;
    insiemi_.clear();
    for (Lettere resto = tolti ? TutteLeLettere & ~lettere : lettere; resto != 0;
         resto &= resto - 1)
      insiemi_.push_back(
          Vocaboli().Insieme(voce.lunghezza, voce.posti[k], std::countr_zero(resto)));
    nuclei::Incrocia(voce.insieme.data(), voce.insieme.data(), blocchi, insiemi_, tolti);
  }
}

bool Rifacimento::ElencaVoce(Voce& voce) {
  const int limite = Limite(voce, daBattere_ - (somma_ - voce.migliore));
  const std::size_t blocchi = S((limite + ParolePerBlocco - 1) / ParolePerBlocco);
  FiltraLettere(voce, blocchi);
  voce.numeri.clear();
  voce.valori.clear();
  for (std::size_t k = 0; k < blocchi && voce.numeri.size() < MaxParole; ++k) {
    for (Blocco resto = voce.insieme[k]; resto != 0; resto &= resto - 1) {
      const int numero = static_cast<int>(k) * ParolePerBlocco + std::countr_zero(resto);
      if (numero >= limite) break;
      if (Evitata(voce, numero)) continue;
      voce.numeri.push_back(numero);
      voce.valori.push_back(voce.aperta ? 0 : ValoreDi(voce.lunghezza, numero));
    }
  }
  if (voce.numeri.empty()) return false;
  LeggiLettere(voce);
  somma_ += voce.valori.front() - voce.migliore;
  voce.migliore = voce.valori.front();
  return somma_ > daBattere_;
}

bool Rifacimento::Evitata(const Voce& voce, int numero) const {
  if (voce.slot == evitata_.slot && numero == evitata_.numero) return true;
  return esaurite_ != 0 && (stesura_.Limitate({voce.lunghezza, numero}) & esaurite_) != 0;
}

void Rifacimento::LeggiLettere(Voce& voce) {
  voce.quante = static_cast<int>(voce.numeri.size());
  voce.passo = voce.quante;
  voce.lettere.resize(S(voce.passo) * voce.posti.size());
  const char* lettere = Vocaboli().LettereDi(voce.lunghezza);
  for (std::size_t k = 0; k < voce.posti.size(); ++k) {
    std::uint8_t* colonna = voce.Colonna(static_cast<int>(k));
    const char* qui = lettere + voce.posti[k];
    Lettere trovate = 0;
    for (int j = 0; j < voce.quante; ++j) {
      colonna[j] = static_cast<std::uint8_t>(qui[S(voce.numeri[S(j)]) * S(voce.lunghezza)] - 'A');
      trovate |= 1u << colonna[j];
    }
    celle_[S(voce.celle[k])].lettere &= trovate;
  }
}

// --- Bounds ---

// False when nothing is left that could beat what is to be beaten.
bool Rifacimento::Diffondi() {
  for (int giro = 0; giro < MaxGiri; ++giro) {
    for (const Cella& cella : celle_)
      DiffondiCella(cella);
    if (!Sfoltisci()) return false;
    int tutte = 0;
    for (const Voce& voce : Voci())
      tutte += voce.quante;
    if (tutte <= PocheParole) break;
  }
  return true;
}

void Rifacimento::DiffondiCella(const Cella& cella) {
  if (cella.capi[1].voce < 0) return;
  std::array<std::array<Valore, LettereAlfabeto>, 2> massimi;
  for (std::size_t k = 0; k < 2; ++k) {
    massimi[k].fill(Morta);
    const Voce& voce = voci_[S(cella.capi[k].voce)];
    const std::uint8_t* colonna = voce.Colonna(cella.capi[k].posto);
    for (int j = 0; j < voce.quante; ++j)
      massimi[k][colonna[j]] = std::max(massimi[k][colonna[j]], voce.valori[S(j)]);
  }
  // From now on what is added to the words of the one and of the other slot.
  for (std::size_t lettera = 0; lettera < LettereAlfabeto; ++lettera) {
    Valore& uno = massimi[0][lettera];
    Valore& altro = massimi[1][lettera];
    const bool morta = uno <= Morta || altro <= Morta;
    const Valore sposta = (altro - uno) / 2;
    uno = morta ? Condanna : sposta;
    altro = morta ? Condanna : -sposta;
  }
  for (std::size_t k = 0; k < 2; ++k) {
    Voce& voce = voci_[S(cella.capi[k].voce)];
    const std::uint8_t* colonna = voce.Colonna(cella.capi[k].posto);
    for (int j = 0; j < voce.quante; ++j)
      voce.valori[S(j)] += massimi[k][colonna[j]];
  }
}

// Drops the words that cannot be in a better answer.
bool Rifacimento::Sfoltisci() {
  somma_ = 0;
  for (Voce& voce : Voci()) {
    voce.migliore = *std::max_element(voce.valori.begin(), voce.valori.begin() + voce.quante);
    if (voce.migliore <= Morta) return false;
    somma_ += voce.migliore;
  }
  if (somma_ <= daBattere_) return false;
  for (Voce& voce : Voci())
    Tieni(voce, std::max(Morta, daBattere_ - (somma_ - voce.migliore)));
  return true;
}

// Leaves the words that are worth more than something.
void Rifacimento::Tieni(Voce& voce, Valore oltre) {
  restano_.clear();
  for (int j = 0; j < voce.quante; ++j) {
    if (voce.valori[S(j)] > oltre) restano_.push_back(j);
  }
  const auto restano = static_cast<int>(restano_.size());
  if (restano == voce.quante) return;
  for (std::size_t j = 0; j < restano_.size(); ++j) {
    voce.valori[j] = voce.valori[S(restano_[j])];
    voce.numeri[j] = voce.numeri[S(restano_[j])];
  }
  for (std::size_t k = 0; k < voce.posti.size(); ++k) {
    std::uint8_t* colonna = voce.Colonna(static_cast<int>(k));
    for (std::size_t j = 0; j < restano_.size(); ++j)
      colonna[j] = colonna[restano_[j]];
  }
  voce.quante = restano;
}

// --- Search ---

// Lists the words of each slot, those of most worth first.
void Rifacimento::Prepara() {
  posate_.assign(S(quanteVoci_), -1);
  elenchi_.clear();
  memoria_.clear();
  salvati_.clear();
  for (const Voce& voce : Voci()) {
    const auto da = static_cast<int>(memoria_.size());
    elenchi_.push_back({da, voce.quante});
    for (int k = 0; k < voce.quante; ++k)
      memoria_.push_back(k);
    std::sort(memoria_.begin() + da, memoria_.end(), [&](int una, int altra) {
      if (voce.valori[S(una)] != voce.valori[S(altra)])
        return voce.valori[S(una)] > voce.valori[S(altra)];
      return una < altra;
    });
  }
}

// `valore`: of the words placed.
void Rifacimento::Scendi(Valore valore) {
  const int scelta = ScegliVoce();
  if (scelta < 0) return Conserva(valore);
  const Voce& voce = voci_[S(scelta)];
  const Valore resto = Resto(scelta);
  const Elenco elenco = elenchi_[S(scelta)];
  const std::size_t livello = memoria_.size();
  const std::size_t salvati = salvati_.size();
  salvati_.insert(salvati_.end(), elenchi_.begin(), elenchi_.end());
  for (int k = 0; k < elenco.quante && fallite_ < MaxFallite; ++k) {
    const int parola = memoria_[S(elenco.da + k)];
    const Valore conSua = valore + voce.valori[S(parola)];
    if (conSua + resto <= daBattere_) break;
    if (!Ammessa(voce, voce.numeri[S(parola)])) continue;
    ++passi_;
    posate_[S(scelta)] = parola;
    Valore nuovoResto = resto;
    if (Pone(scelta, parola, nuovoResto) && conSua + nuovoResto > daBattere_) {
      Scendi(conSua);
    } else {
      ++fallite_;
    }
    posate_[S(scelta)] = -1;
    memoria_.resize(livello);
    std::copy_n(salvati_.begin() + static_cast<std::ptrdiff_t>(salvati), quanteVoci_,
                elenchi_.begin());
  }
  salvati_.resize(salvati);
}

int Rifacimento::ScegliVoce() const {
  int scelta = -1;
  for (int voce = 0; voce < quanteVoci_; ++voce) {
    if (posate_[S(voce)] >= 0) continue;
    if (scelta < 0 || elenchi_[S(voce)].quante < elenchi_[S(scelta)].quante) scelta = voce;
  }
  return scelta;
}

// What the slots without a word are worth at the most, but for one.
Valore Rifacimento::Resto(int senza) const {
  Valore resto = 0;
  for (int voce = 0; voce < quanteVoci_; ++voce) {
    if (voce == senza || posate_[S(voce)] >= 0) continue;
    resto += voci_[S(voce)].valori[S(memoria_[S(elenchi_[S(voce)].da)])];
  }
  return resto;
}

const Rifacimento::Capo& Rifacimento::Altro(int voce, int cella) const {
  const auto& capi = celle_[S(cella)].capi;
  return capi[0].voce == voce ? capi[1] : capi[0];
}

// Takes the words that do not fit a word out of the slots that cross it. False when one has none
// left.
bool Rifacimento::Pone(int scelta, int parola, Valore& resto) {
  const Voce& voce = voci_[S(scelta)];
  for (std::size_t j = 0; j < voce.celle.size(); ++j) {
    const Capo& capo = Altro(scelta, voce.celle[j]);
    if (capo.voce < 0 || posate_[S(capo.voce)] >= 0) continue;
    const Voce& altra = voci_[S(capo.voce)];
    const std::uint8_t* colonna = altra.Colonna(capo.posto);
    const std::uint8_t lettera = voce.Colonna(static_cast<int>(j))[parola];
    const Elenco prima = elenchi_[S(capo.voce)];
    const auto da = static_cast<int>(memoria_.size());
    for (int k = 0; k < prima.quante; ++k) {
      const std::int32_t sua = memoria_[S(prima.da + k)];
      if (colonna[sua] == lettera) memoria_.push_back(sua);
    }
    const int quante = static_cast<int>(memoria_.size()) - da;
    if (quante == 0) return false;
    elenchi_[S(capo.voce)] = {da, quante};
    resto += altra.valori[S(memoria_[S(da)])] - altra.valori[S(memoria_[S(prima.da)])];
  }
  return true;
}

// Whether a word may stand beside those placed, as far as repeats and limited kinds go.
bool Rifacimento::Ammessa(const Voce& voce, int numero) const {
  if (voce.aperta) return true;
  const Genie genie = stesura_.Limitate({voce.lunghezza, numero});
  std::array<int, NumGenie> conteggi{};
  for (int v = 0; v < quanteVoci_; ++v) {
    const Voce& altra = voci_[S(v)];
    if (posate_[S(v)] < 0 || altra.aperta) continue;
    if (altra.lunghezza == voce.lunghezza && Posata(v) == numero) return false;
    if (genie == 0) continue;
    const Genie sue = stesura_.Limitate({altra.lunghezza, Posata(v)});
    for (int genia = 0; genia < NumGenie; ++genia)
      conteggi[S(genia)] += sue >> genia & 1;
  }
  for (int genia = 0; genia < NumGenie; ++genia) {
    if ((genie >> genia & 1) != 0 && conteggi[S(genia)] >= stesura_.Restano(genia)) return false;
  }
  return true;
}

bool Rifacimento::SenzaParenti() const {
  const auto posata = [&](NumeroParola parola) {
    for (int v = 0; v < quanteVoci_; ++v) {
      const Voce& voce = voci_[S(v)];
      if (!voce.aperta && voce.lunghezza == parola.lunghezza && Posata(v) == parola.numero)
        return true;
    }
    return false;
  };
  for (int v = 0; v < quanteVoci_; ++v) {
    if (voci_[S(v)].aperta) continue;
    const auto parenti = stesura_.ParentiDi({voci_[S(v)].lunghezza, Posata(v)});
    if (std::ranges::any_of(parenti, posata)) return false;
  }
  return true;
}

// Keeps the answer that has been reached, unless words of it are akin.
void Rifacimento::Conserva(Valore valore) {
  VerificaInvariante(valore > daBattere_, "una risposta batte quella di prima");
  if (!SenzaParenti()) {
    ++fallite_;
    return;
  }
  trovato_ = true;
  daBattere_ = valore;
  trovate_.clear();
  for (int v = 0; v < quanteVoci_; ++v) {
    if (!voci_[S(v)].aperta) trovate_.push_back({voci_[S(v)].slot, Posata(v)});
  }
}

}  // namespace telarium
