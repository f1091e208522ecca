#include "composer/floor.h"

#include <algorithm>
#include <bit>
#include <bitset>
#include <utility>
#include <vector>

#include "composer/search.h"
#include "composer/start.h"

// Idea: the higher the least score, the fewer fills. So there is one score up to which the grid
// fills and from which it does not, and each answer moves an end of the stretch where it lies: a
// fill raises the lower end to the lowest score that it has, which may be far above what it was
// asked for; a proof lowers the upper one. Consistency alone lowers that a good deal at once.
// Levels near the turning point are hard from both sides, and how long one takes hangs on chance:
// so each trial has a seed of its own, and those that stay open get few steps mostly, sometimes
// more.
//
// Invariant: `riempimento` keeps the level `fino`; every level from `primaImpossibile_` on is
// proved impossible; what is between is open.
namespace telarium {
namespace {

constexpr std::int64_t PrimiPassi = 2400;  // for a level

// 1 1 2 1 1 2 4 1 1 2 1 1 2 4 8 ... from the first one on (Luby, Sinclair and Zuckerman, 1993).
std::int64_t Luby(std::uint64_t quale) {
  while (!std::has_single_bit(quale + 1))
    quale -= std::bit_floor(quale + 1) - 1;
  return static_cast<std::int64_t>((quale + 1) / 2);
}

class RicercaSoglia {
 public:
  RicercaSoglia(const Problema& problema, const Limiti& limiti)
      : problema_(problema), limiti_(limiti) {}

  Soglia Trova() {
    soglia_.riempimento = Componi(problema_, Resto(limiti_.passi));
    passi_ = soglia_.riempimento.passi;
    if (soglia_.riempimento.esito != Esito::Riempito) return std::move(soglia_);
    return TrovaDa(std::move(soglia_.riempimento));
  }

  Soglia TrovaDa(Riempimento primo) {
    soglia_.riempimento = std::move(primo);
    RaccogliLivelli();
    soglia_.fino = LivelloDi(soglia_.riempimento.lettere);
    primaPossibile_ = PrimaSopra(soglia_.fino);
    primaImpossibile_ = Livelli();
    ScartaPerCoerenza();
    for (std::uint64_t giro = 1; Aperta() && !Finita(); ++giro)
      Stringi(PrimiPassi * Luby(giro));
    Concludi();
    return std::move(soglia_);
  }

 private:
  static constexpr std::size_t S(int numero) { return static_cast<std::size_t>(numero); }
  int Livelli() const { return static_cast<int>(livelli_.size()); }
  bool Aperta() const { return primaPossibile_ < primaImpossibile_; }
  bool Finita() const { return passi_ >= limiti_.passi || limiti_.ferma.stop_requested(); }

  Limiti Resto(std::int64_t passi) const {
    Limiti resto = limiti_;
    resto.passi = std::min(passi, limiti_.passi - passi_);
    return resto;
  }

  // The scores of the words that may stand, rising.
  void RaccogliLivelli() {
    std::bitset<MaxPunteggio + 1> punteggi;
    std::bitset<MaxLunghezzaVoce + 1> lunghezze;
    for (const SlotDaRiempire& slot : problema_.slot)
      lunghezze.set(slot.caselle.size());
    const Vocabolario& parole = *problema_.vocabolario;
    for (int lunghezza = MinLunghezzaVoce; lunghezza <= MaxLunghezzaVoce; ++lunghezza) {
      if (!lunghezze[S(lunghezza)]) continue;
      for (int numero = 0; numero < parole.Quante(lunghezza); ++numero) {
        if (!parole.Propria({lunghezza, numero}))
          punteggi.set(S(parole.Punteggio({lunghezza, numero})));
      }
    }
    for (int punteggio = 0; punteggio <= MaxPunteggio; ++punteggio) {
      if (punteggi[S(punteggio)]) livelli_.push_back(punteggio);
    }
  }

  // The lowest score of a fill's words: the highest one that there is when all are own ones.
  int LivelloDi(const std::string& lettere) const {
    int livello = livelli_.empty() ? 0 : livelli_.back();
    for (int slot = 0; slot < problema_.Slot(); ++slot) {
      if (problema_.slot[S(slot)].aperto) continue;
      const auto numero = problema_.vocabolario->Cerca(Maschera(problema_, slot, lettere));
      if (numero && !problema_.vocabolario->Propria(*numero))
        livello = std::min(livello, problema_.vocabolario->Punteggio(*numero));
    }
    return livello;
  }

  int PrimaSopra(int punteggio) const {
    return static_cast<int>(std::ranges::upper_bound(livelli_, punteggio) - livelli_.begin());
  }

  void ScartaPerCoerenza() {
    int coerente = primaPossibile_ - 1;
    while (coerente + 1 < primaImpossibile_ && !limiti_.ferma.stop_requested()) {
      const int mezzo = (coerente + 1 + primaImpossibile_) / 2;
      const Problema piuDuro = ConMinimo(problema_, livelli_[S(mezzo)]);
      const Partenza partenza(piuDuro);
      if (Ricerca(partenza, {}).Comincia()) {
        coerente = mezzo;
      } else {
        primaImpossibile_ = mezzo;
      }
    }
  }

  // Halves the open stretch until its levels want more steps: first down to what fills, then up to
  // what is proved.
  void Stringi(std::int64_t passi) {
    int oltre = primaImpossibile_;
    while (primaPossibile_ < oltre && !Finita()) {
      const int mezzo = (primaPossibile_ + oltre - 1) / 2;
      if (Prova(mezzo, passi) != Esito::Riempito) oltre = mezzo;
    }
    int sotto = std::max(oltre, primaPossibile_) + 1;
    while (sotto < primaImpossibile_ && !Finita()) {
      const int mezzo = (sotto + primaImpossibile_ - 1) / 2;
      if (Prova(mezzo, passi) != Esito::Impossibile) sotto = mezzo + 1;
    }
  }

  Esito Prova(int livello, std::int64_t passi) {
    Limiti resto = Resto(passi);
    resto.seme += static_cast<std::uint64_t>(++prove_);
    Riempimento risposta = Componi(ConMinimo(problema_, livelli_[S(livello)]), resto);
    passi_ += risposta.passi;
    const Esito esito = risposta.esito;
    if (esito == Esito::Impossibile) primaImpossibile_ = std::min(primaImpossibile_, livello);
    if (esito == Esito::Riempito) {
      soglia_.fino = LivelloDi(risposta.lettere);
      primaPossibile_ = PrimaSopra(soglia_.fino);
      soglia_.riempimento = std::move(risposta);
    }
    return esito;
  }

  void Concludi() {
    soglia_.riempimento.passi = passi_;
    soglia_.provata = !Aperta();
    if (soglia_.provata && primaImpossibile_ < Livelli())
      soglia_.oltre = livelli_[S(primaImpossibile_)];
  }

  const Problema& problema_;
  const Limiti& limiti_;
  Soglia soglia_;
  std::vector<int> livelli_;
  int primaPossibile_ = 0;  // by number of livelli_: the lowest one that is open
  int primaImpossibile_ = 0;
  std::int64_t passi_ = 0;
  int prove_ = 0;
};

}  // namespace

Soglia TrovaSoglia(const Problema& problema, const Limiti& limiti) {
  return RicercaSoglia(problema, limiti).Trova();
}

Soglia TrovaSoglia(const Problema& problema, Riempimento primo, const Limiti& limiti) {
  return RicercaSoglia(problema, limiti).TrovaDa(std::move(primo));
}

Problema ConMinimo(Problema problema, int minimo) {
  for (SlotDaRiempire& slot : problema.slot) {
    if (!slot.aperto) slot.minimo = std::max(slot.minimo, minimo);
  }
  return problema;
}

}  // namespace telarium
