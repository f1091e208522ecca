#include "composer/witness.h"

#include <algorithm>
#include <bit>
#include <map>
#include <utility>

#include "composer/lattice.h"

namespace telarium {
namespace {

using Parole = std::vector<Blocco>;

// Words that are looked at of those which break one crossing alone: the first one nearly always
// keeps the other demands.
constexpr int ParolePerIncrocio = 3;

std::size_t Indice(int numero) {
  return static_cast<std::size_t>(numero);
}

void Interseca(Parole& parole, const Parole& altre) {
  for (std::size_t blocco = 0; blocco < parole.size(); ++blocco)
    parole[blocco] &= altre[blocco];
}

class Rotazione {
 public:
  Rotazione(const Problema& problema, const std::vector<int>& insieme,
            const std::vector<std::string>& volute)
      : problema_(problema),
        insieme_(insieme),
        volute_(volute),
        noto_(problema.slot.size()),
        nellInsieme_(problema.slot.size()),
        reticolo_(problema) {
    for (const int slot : insieme_)
      nellInsieme_[Indice(slot)] = true;
  }

  std::vector<int> Da(int tolto, const std::string& lettere) {
    noto_[Indice(tolto)] = true;
    daRuotare_.push_back({tolto, lettere});
    while (!daRuotare_.empty()) {
      const Riempito uno = std::move(daRuotare_.back());
      daRuotare_.pop_back();
      Ruota(uno);
    }
    return trovati_;
  }

 private:
  struct Riempito {  // a fill of the set without one slot
    int tolto;
    std::string lettere;
  };
  const std::vector<int>& Caselle(int slot) const { return problema_.slot[Indice(slot)].caselle; }

  const Parole& Ammesse(int slot) {
    const SlotDaRiempire& uno = problema_.slot[Indice(slot)];
    const auto lunghezza = static_cast<int>(uno.caselle.size());
    const auto [trovata, nuova] = ammesse_.try_emplace({lunghezza, uno.minimo});
    if (nuova) {
      trovata->second =
          problema_.vocabolario->Ammesse(lunghezza, uno.minimo, problema_.soloDefinite);
    }
    return trovata->second;
  }

  // The words of a slot's length that have one of some letters at a place.
  Parole Con(int slot, std::size_t posto, Lettere lettere) const {
    const auto lunghezza = static_cast<int>(Caselle(slot).size());
    Parole parole(Indice(problema_.vocabolario->Blocchi(lunghezza)), 0);
    for (; lettere != 0; lettere &= lettere - 1) {
      const Blocco* insieme = problema_.vocabolario->Insieme(lunghezza, static_cast<int>(posto),
                                                             std::countr_zero(lettere));
      for (std::size_t blocco = 0; blocco < parole.size(); ++blocco)
        parole[blocco] |= insieme[blocco];
    }
    return parole;
  }

  // Calls for each word of a set, the best first, until it is answered false.
  template <typename Ricevi>
  static void PerOgniParola(const Parole& parole, Ricevi&& ricevi) {
    for (std::size_t blocco = 0; blocco < parole.size(); ++blocco) {
      for (Blocco resto = parole[blocco]; resto != 0; resto &= resto - 1) {
        if (!ricevi(static_cast<int>(blocco) * ParolePerBlocco + std::countr_zero(resto))) return;
      }
    }
  }

  // The letters with which a crossing stays a word when one of its places changes.
  Lettere LettereBuone(const PostoDiSlot& incrocio, const std::string& lettere) {
    const auto& caselle = Caselle(incrocio.slot);
    Parole parole = Ammesse(incrocio.slot);
    const std::size_t libero = Indice(incrocio.posto);
    for (std::size_t posto = 0; posto < caselle.size(); ++posto) {
      const char lettera = lettere[Indice(caselle[posto])];
      if (posto != libero) Interseca(parole, Con(incrocio.slot, posto, SolaLettera(lettera)));
    }
    Lettere buone = 0;
    const char* testo = problema_.vocabolario->LettereDi(static_cast<int>(caselle.size()));
    PerOgniParola(parole, [&](int parola) {
      buone |= SolaLettera(testo[Indice(parola) * caselle.size() + libero]);
      return true;
    });
    return buone;
  }

  // The slot of the set that crosses another one at a place of it; none where it runs alone.
  const PostoDiSlot* Incrocio(int slot, std::size_t posto) const {
    const PostoDiSlot& incrocio = reticolo_.IncrociDi(slot)[posto];
    return incrocio.slot >= 0 && nellInsieme_[Indice(incrocio.slot)] ? &incrocio : nullptr;
  }

  // Whether letters may be put in other places of a slot: not where cells are left as they are.
  bool Mobile(int slot) const { return !problema_.slot[Indice(slot)].aperto; }

  void Ruota(const Riempito& uno) {
    if (!Mobile(uno.tolto)) return;
    const auto& caselle = Caselle(uno.tolto);
    // Words that break none of the crossings up to a place, or from there on.
    std::vector<Parole> buone;
    for (std::size_t posto = 0; posto < caselle.size(); ++posto)
      buone.push_back(Con(uno.tolto, posto, Buone(uno, posto)));
    std::vector<Parole> dietro(caselle.size() + 1, Ammesse(uno.tolto));
    for (std::size_t posto = caselle.size(); posto-- > 0;) {
      dietro[posto] = dietro[posto + 1];
      Interseca(dietro[posto], buone[posto]);
    }
    Parole davanti = Ammesse(uno.tolto);
    for (std::size_t posto = 0; posto < caselle.size(); ++posto) {
      Parole parole = davanti;
      Interseca(parole, dietro[posto + 1]);
      RompiSolo(uno, posto, std::move(parole));
      Interseca(davanti, buone[posto]);
    }
  }

  Lettere Buone(const Riempito& uno, std::size_t posto) {
    const int casella = Caselle(uno.tolto)[posto];
    const PostoDiSlot* incrocio = Incrocio(uno.tolto, posto);
    if (incrocio == nullptr) return problema_.lettere[Indice(casella)];
    if (!Mobile(incrocio->slot)) return SolaLettera(uno.lettere[Indice(casella)]);
    return LettereBuone(*incrocio, uno.lettere) & problema_.lettere[Indice(casella)];
  }

  // Puts words in the slot that was left out which at most break its crossing at one place.
  void RompiSolo(const Riempito& uno, std::size_t posto, Parole parole) {
    const PostoDiSlot* incrocio = Incrocio(uno.tolto, posto);
    if (incrocio == nullptr || noto_[Indice(incrocio->slot)]) return;
    const auto& caselle = Caselle(uno.tolto);
    Interseca(parole, Con(uno.tolto, posto, problema_.lettere[Indice(caselle[posto])]));
    const char* testo = problema_.vocabolario->LettereDi(static_cast<int>(caselle.size()));
    int provate = 0;
    PerOgniParola(parole, [&](int parola) {
      Riempito altro{incrocio->slot, uno.lettere};
      for (std::size_t k = 0; k < caselle.size(); ++k)
        altro.lettere[Indice(caselle[k])] = testo[Indice(parola) * caselle.size() + k];
      if (Riempie(altro)) {
        noto_[Indice(altro.tolto)] = true;
        trovati_.push_back(altro.tolto);
        daRuotare_.push_back(std::move(altro));
        return false;
      }
      return ++provate < ParolePerIncrocio;
    });
  }

  bool Riempie(const Riempito& uno) const {
    std::vector<int> resto;
    std::copy_if(insieme_.begin(), insieme_.end(), std::back_inserter(resto),
                 [&](int slot) { return slot != uno.tolto; });
    return Difetti(ParteDi(problema_, resto, volute_), NellaParte(problema_, resto, uno.lettere))
        .empty();
  }

  const Problema& problema_;
  const std::vector<int>& insieme_;
  const std::vector<std::string>& volute_;
  std::vector<bool> noto_;  // by slot, as the next one
  std::vector<bool> nellInsieme_;
  Reticolo reticolo_;
  std::map<std::pair<int, int>, Parole> ammesse_;  // by length and least score
  std::vector<Riempito> daRuotare_;
  std::vector<int> trovati_;
};

}  // namespace

std::vector<int> AltriNecessari(const Problema& problema, const std::vector<int>& insieme,
                                const std::vector<std::string>& volute, int tolto,
                                const std::string& lettere) {
  return Rotazione(problema, insieme, volute).Da(tolto, lettere);
}

}  // namespace telarium
