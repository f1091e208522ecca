#include "composer/lookahead.h"

#include <algorithm>
#include <bit>
#include <optional>

#include "composer/block_kernels.h"
#include "composer/search.h"

// Each word is judged by the cheapest thing that can tell:
//   1. Root consistency has taken it out of the slot.
//   2. One of its letters, decided alone, takes it out. What a letter leaves in the slot is found
//      once it has stood in some words that died otherwise, and kept for those that follow.
//   3. A fill of the slot's neighbourhood, while entries further away keep the words of the last
//      fill: they are decided once, in a level below all candidates.
//   4. The word, decided at the root, leaves some slot without words.
//   5. A search of the whole grid, which tries the words of the last fill first.
// Without steps for a search the third and the fifth are left out.
namespace telarium {
namespace {

// Words that die of some unknown letter of theirs before each of their letters is looked at alone.
constexpr int MortiPerLettera = 4;
// Entries at least so many crossings away keep their words while the neighbourhood is filled: the
// nearer, the sooner done, and the more often in vain. It grows by one each time that so many
// candidates had to be filled from far away.
constexpr int CrociVicine = 4;
constexpr int CrociLontane = 8;
constexpr int RiempitiDaLontano = 8;
constexpr std::int64_t PassiVicini = 100;

Maniera ManieraDi(std::uint64_t seme) {
  return {.seme = seme, .falliteAParole = 30, .primaRipresa = 40};
}

constexpr std::size_t S(int numero) {
  return static_cast<std::size_t>(numero);
}

// The words of a slot before any propagation, with one of these letters at each place.
std::vector<Blocco> Adatte(const Partenza& partenza, int slot, std::span<const Lettere> lettere) {
  std::vector<Blocco> adatte = partenza.BaseDi(slot).parole;
  const int lunghezza = partenza.Griglia().Lunghezza(slot);
  for (int posto = 0; posto < lunghezza; ++posto) {
    if (lettere[S(posto)] == TutteLeLettere) continue;
    std::vector<const Blocco*> insiemi;
    for (Lettere resto = lettere[S(posto)]; resto != 0; resto &= resto - 1)
      insiemi.push_back(partenza.Parole().Insieme(lunghezza, posto, std::countr_zero(resto)));
    nuclei::Incrocia(adatte.data(), adatte.data(), adatte.size(), insiemi, false);
  }
  return adatte;
}

// --- The crossing that a dead word is told by ---

class Incroci {
 public:
  Incroci(const Partenza& partenza, int slot)
      : partenza_(partenza), slot_(slot), ammesse_(S(partenza.Griglia().Lunghezza(slot))) {}

  void Spiega(Candidato& morto) {
    const std::string_view parola = partenza_.Parole().Parola(morto.parola);
    const auto incroci = partenza_.Griglia().IncrociDi(slot_);
    for (std::size_t posto = 0; posto < incroci.size(); ++posto) {
      if (incroci[posto].slot < 0) continue;
      if ((Ammesse(posto, incroci[posto]) & SolaLettera(parola[posto])) != 0) continue;
      Dici(morto, incroci[posto].slot);
      morto.maschera[S(incroci[posto].posto)] = parola[posto];
      return;
    }
    if (!vuoto_) vuoto_ = CercaVuoto();
    if (*vuoto_ >= 0) Dici(morto, *vuoto_);
  }

 private:
  const Problema& Di() const { return partenza_.Di(); }

  void Dici(Candidato& morto, int slot) const {
    morto.incrocio = slot;
    morto.maschera.clear();
    for (const int casella : partenza_.Griglia().CaselleDi(slot)) {
      const Lettere lettere = Di().lettere[S(casella)];
      morto.maschera += UnaSola(lettere) ? static_cast<char>('A' + std::countr_zero(lettere)) : '.';
    }
  }

  // The letters that a slot is told by: the given ones, not those that are only some of all.
  std::vector<Lettere> Date(int slot) const {
    std::vector<Lettere> date;
    for (const int casella : partenza_.Griglia().CaselleDi(slot)) {
      const Lettere lettere = Di().lettere[S(casella)];
      date.push_back(UnaSola(lettere) || lettere == 0 ? lettere : TutteLeLettere);
    }
    return date;
  }

  // The letters with which the slot that crosses at a place has words by its given ones.
  Lettere Ammesse(std::size_t posto, const PostoDiSlot& incrocio) {
    if (ammesse_[posto]) return *ammesse_[posto];
    const std::vector<Blocco> parole = Adatte(partenza_, incrocio.slot, Date(incrocio.slot));
    const int lunghezza = partenza_.Griglia().Lunghezza(incrocio.slot);
    Lettere ammesse = 0;
    for (int lettera = 0; lettera < LettereAlfabeto; ++lettera) {
      const Blocco* insieme = partenza_.Parole().Insieme(lunghezza, incrocio.posto, lettera);
      if (nuclei::PrimoComune(parole.data(), insieme, 0, parole.size()) < parole.size())
        ammesse |= 1u << lettera;
    }
    ammesse_[posto] = ammesse;
    return ammesse;
  }

  // Some slot that has no words whatever the candidate is; -1 for none.
  int CercaVuoto() const {
    for (int slot = 0; slot < Di().Slot(); ++slot) {
      const std::vector<Blocco> parole = Adatte(partenza_, slot, Date(slot));
      if (slot != slot_ && nuclei::Conta(parole.data(), parole.size()) == 0) return slot;
    }
    return -1;
  }

  const Partenza& partenza_;
  int slot_;
  std::vector<std::optional<Lettere>> ammesse_;  // by place of the slot
  std::optional<int> vuoto_;
};

// --- Fills ---

// The words of a fill by slot, -1 for a slot that is left open.
std::vector<int> ParoleDi(const Ricerca& riempita, int quantiSlot) {
  std::vector<int> parole;
  for (int slot = 0; slot < quantiSlot; ++slot)
    parole.push_back(riempita.Ora().Posato(slot) ? riempita.Ora().DominioDi(slot).Migliore() : -1);
  return parole;
}

// How many crossings the slots are away from one, over cells that are not fixed; CrociLontane for
// more than that.
std::vector<int> Distanze(const Partenza& partenza, const Stato& stato, int slot) {
  const Reticolo& griglia = partenza.Griglia();
  std::vector<int> distanze(S(griglia.Slot()), CrociLontane);
  std::vector<int> coda = {slot};
  distanze[S(slot)] = 0;
  for (std::size_t k = 0; k < coda.size(); ++k) {
    const auto caselle = griglia.CaselleDi(coda[k]);
    for (std::size_t posto = 0; posto < caselle.size(); ++posto) {
      const int vicino = griglia.IncrociDi(coda[k])[posto].slot;
      if (vicino < 0 || stato.Fissa(caselle[posto])) continue;
      if (distanze[S(vicino)] <= distanze[S(coda[k])] + 1) continue;
      distanze[S(vicino)] = distanze[S(coda[k])] + 1;
      coda.push_back(vicino);
    }
  }
  return distanze;
}

// Fills the neighbourhood of a slot inside the last fill.
class Vicinanze {
 public:
  Vicinanze(const Partenza& partenza, int slot, const Maniera& maniera)
      : ricerca_(partenza, maniera), slot_(slot) {
    ricerca_.Comincia();
    distanze_ = Distanze(partenza, ricerca_.Ora(), slot);
  }

  /// From now on entries far away are those of this fill.
  void Parti(const std::vector<int>& parole) {
    ricerca_.Rinuncia(0);
    ricerca_.Segui(parole);
    const int croci = std::min(CrociVicine + partenze_++ / RiempitiDaLontano, CrociLontane);
    std::vector<Ricerca::Decisione> lontane;
    for (int slot = 0; slot < static_cast<int>(parole.size()); ++slot) {
      if (distanze_[S(slot)] >= croci && parole[S(slot)] >= 0 && !ricerca_.Ora().Posato(slot))
        lontane.push_back({.slot = slot, .valore = parole[S(slot)]});
    }
    pronta_ = !lontane.empty() && ricerca_.Presumi(lontane);
  }

  /// False where it is not known.
  bool Riempi(int numero, std::int64_t passi, const std::stop_token& ferma) {
    if (!pronta_) return false;
    ricerca_.Rinuncia(1);
    if (!ricerca_.Ora().DominioDi(slot_).Ha(numero)) return false;
    const Ricerca::Decisione parola = {.slot = slot_, .valore = numero};
    if (!ricerca_.Presumi({&parola, 1})) return false;
    passi = ricerca_.Passi() + std::min(passi, PassiVicini);
    return ricerca_.Continua(passi, ferma) == Ricerca::Fine::Riempito;
  }

  void Segui(std::vector<int> parole) { ricerca_.Segui(std::move(parole)); }
  const Ricerca& Riempita() const { return ricerca_; }

 private:
  Ricerca ricerca_;
  int slot_;
  std::vector<int> distanze_;
  int partenze_ = 0;
  bool pronta_ = false;
};

// --- Verdicts ---

class Vaglio {
 public:
  Vaglio(const Problema& problema, int slot, const Limiti& limiti)
      : partenza_(problema),
        limiti_(limiti),
        slot_(slot),
        lunghezza_(partenza_.Griglia().Lunghezza(slot)),
        ricerca_(partenza_, ManieraDi(limiti.seme)),
        possibile_(ricerca_.Comincia()),
        incroci_(partenza_, slot),
        lettere_(S(lunghezza_) * LettereAlfabeto) {}

  // The words to be judged, best first.
  std::vector<int> Parole() const {
    std::vector<Lettere> lettere;
    for (const int casella : partenza_.Griglia().CaselleDi(slot_))
      lettere.push_back(Di().lettere[S(casella)]);
    std::vector<Blocco> adatte = Adatte(partenza_, slot_, lettere);
    for (const int altro : partenza_.Griglia().DiLunghezza(lunghezza_)) {
      const int sta = altro == slot_ ? -1 : ParolaData(altro);
      if (sta >= 0) Leva(adatte.data(), sta);
    }
    std::vector<int> parole;
    for (std::size_t k = 0; k < adatte.size(); ++k) {
      for (Blocco resto = adatte[k]; resto != 0; resto &= resto - 1)
        parole.push_back(static_cast<int>(k) * ParolePerBlocco + std::countr_zero(resto));
    }
    return parole;
  }

  // None when it was stopped before the verdict.
  std::optional<Candidato> Giudica(int numero) {
    Candidato candidato{.parola = {lunghezza_, numero}};
    const std::optional<Sorte> sorte = SorteDi(numero);
    if (!sorte) return std::nullopt;
    candidato.sorte = *sorte;
    if (*sorte == Sorte::Morta) incroci_.Spiega(candidato);
    return candidato;
  }

 private:
  // The words that a letter at a place of the slot leaves in it.
  struct Lettera {
    int morti = 0;  // words with it
    bool nota = false;
    std::vector<Blocco> parole;
  };

  const Problema& Di() const { return partenza_.Di(); }

  // The word whose letters are all given in a slot, -1 for none.
  int ParolaData(int slot) const {
    std::string lettere;
    for (const int casella : partenza_.Griglia().CaselleDi(slot)) {
      if (!UnaSola(Di().lettere[S(casella)])) return -1;
      lettere += static_cast<char>('A' + std::countr_zero(Di().lettere[S(casella)]));
    }
    const auto numero = partenza_.Parole().Cerca(lettere);
    return numero ? numero->numero : -1;
  }

  std::optional<Sorte> SorteDi(int numero) {
    if (limiti_.ferma.stop_requested()) return std::nullopt;
    ricerca_.Rinuncia(0);
    if (!possibile_ || !ricerca_.Ora().DominioDi(slot_).Ha(numero) || MuoreDiUnaLettera(numero))
      return Sorte::Morta;
    if (vicinanze_ && vicinanze_->Riempi(numero, limiti_.passi, limiti_.ferma)) {
      Segui(vicinanze_->Riempita());
      return Sorte::Provata;
    }
    const Ricerca::Decisione parola = {.slot = slot_, .valore = numero};
    if (!ricerca_.Presumi({&parola, 1})) {
      SegnaMorto(numero);
      return Sorte::Morta;
    }
    return limiti_.passi > 0 ? Cerca() : Sorte::Aperta;
  }

  std::optional<Sorte> Cerca() {
    switch (ricerca_.Continua(ricerca_.Passi() + limiti_.passi, limiti_.ferma)) {
      case Ricerca::Fine::Impossibile:
        return Sorte::Morta;
      case Ricerca::Fine::Riempito:
        if (!vicinanze_) vicinanze_.emplace(partenza_, slot_, ManieraDi(limiti_.seme));
        vicinanze_->Parti(Segui(ricerca_));
        return Sorte::Provata;
      case Ricerca::Fine::Sospesa:
        break;
    }
    if (limiti_.ferma.stop_requested()) return std::nullopt;
    return Sorte::Aperta;
  }

  // The words of a fill, which are tried first from now on.
  std::vector<int> Segui(const Ricerca& riempita) {
    std::vector<int> parole = ParoleDi(riempita, Di().Slot());
    ricerca_.Segui(parole);
    vicinanze_->Segui(parole);
    return parole;
  }

  template <class Visita>
  bool QualcheLettera(int numero, Visita visita) {
    const std::string_view parola = partenza_.Parole().Parola({lunghezza_, numero});
    const auto caselle = partenza_.Griglia().CaselleDi(slot_);
    for (std::size_t posto = 0; posto < caselle.size(); ++posto) {
      const int lettera = parola[posto] - 'A';
      if (visita(lettere_[posto * LettereAlfabeto + S(lettera)], caselle[posto], lettera))
        return true;
    }
    return false;
  }

  bool MuoreDiUnaLettera(int numero) {
    return QualcheLettera(numero, [&](Lettera& una, int casella, int lettera) {
      if (una.morti < MortiPerLettera || ricerca_.Ora().Fissa(casella)) return false;
      if (!una.nota) Guarda(una, casella, lettera);
      return !Contiene(una.parole.data(), numero);
    });
  }

  void SegnaMorto(int numero) {
    QualcheLettera(numero, [](Lettera& una, int, int) {
      ++una.morti;
      return false;
    });
  }

  void Guarda(Lettera& una, int casella, int lettera) {
    una.nota = true;
    una.parole.assign(S(partenza_.Parole().Blocchi(lunghezza_)), 0);
    const Ricerca::Decisione sola = {.casella = casella, .valore = lettera};
    if (ricerca_.Presumi({&sola, 1})) {
      std::vector<int> rimaste;
      const Dominio& dominio = ricerca_.Ora().DominioDi(slot_);
      dominio.Prime(dominio.conta, rimaste);
      for (const int parola : rimaste)
        Metti(una.parole.data(), parola);
    }
    ricerca_.Rinuncia(0);
  }

  const Partenza partenza_;
  const Limiti limiti_;
  const int slot_;
  const int lunghezza_;
  Ricerca ricerca_;
  const bool possibile_;
  std::optional<Vicinanze> vicinanze_;  // once a fill was found
  Incroci incroci_;
  std::vector<Lettera> lettere_;  // by place and letter
};

}  // namespace

bool VagliaCandidati(const Problema& problema, int slot, int quanti, const Limiti& limiti,
                     const std::function<bool(const Candidato&)>& ricevi) {
  Vaglio vaglio(problema, slot, limiti);
  std::vector<int> parole = vaglio.Parole();
  parole.resize(std::min(parole.size(), S(std::max(quanti, 0))));
  for (const int numero : parole) {
    const std::optional<Candidato> candidato = vaglio.Giudica(numero);
    if (!candidato) return false;
    if (!ricevi(*candidato)) return true;
  }
  return true;
}

}  // namespace telarium
