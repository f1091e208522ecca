#include "composer/proposals.h"

#include <algorithm>
#include <bit>
#include <numeric>

#include "composer/improvement.h"
#include "composer/lattice.h"
#include "composer/random.h"

namespace telarium {
namespace {

constexpr int MaxTentativi = 3;  // of cells that are to differ, for each proposal

std::size_t S(int numero) {
  return static_cast<std::size_t>(numero);
}

bool Data(const Problema& problema, const SlotDaRiempire& slot) {
  return std::ranges::all_of(
      slot.caselle, [&](int casella) { return std::has_single_bit(problema.lettere[S(casella)]); });
}

bool Voluta(const Problema& problema, const std::string& parola) {
  return std::ranges::find(problema.volute, parola) != problema.volute.end();
}

// Takes letters of a former fill from cells.
class Divisore {
 public:
  Divisore(Problema& problema, const std::string& precedente)
      : problema_(problema), precedente_(precedente), reticolo_(problema) {
    for (int slot = 0; slot < problema.Slot(); ++slot) {
      const SlotDaRiempire& uno = problema.slot[S(slot)];
      const bool voluta = Voluta(problema, Maschera(problema, slot, precedente));
      conta_.push_back(!uno.aperto && !voluta && !Data(problema, uno));
      ferma_.push_back(voluta);
    }
    mancano_ = static_cast<int>(std::ranges::count(conta_, true) + 1) / 2;
  }

  bool Dividi(std::uint64_t seme) {
    if (mancano_ == 0) return false;
    Caso caso(seme);
    std::vector<int> caselle(problema_.lettere.size());
    std::iota(caselle.begin(), caselle.end(), 0);
    for (int quante = static_cast<int>(caselle.size()); quante > 1; --quante)
      std::swap(caselle[S(quante - 1)], caselle[S(caso.Fino(quante))]);
    // Fewest cells: first those by which two slots differ.
    for (const int slotDivisi : {2, 1}) {
      for (const int casella : caselle) {
        if (mancano_ > 0 && Mutabile(casella) && Divisi(casella) == slotDivisi) Togli(casella);
      }
    }
    return mancano_ <= 0;
  }

 private:
  Lettere Altre(int casella) const {
    const char lettera = precedente_[S(casella)];
    return lettera == SenzaLettera ? 0 : problema_.lettere[S(casella)] & ~SolaLettera(lettera);
  }

  bool Mutabile(int casella) const {
    return !problema_.Lasciata(casella) && Altre(casella) != 0 &&
           std::ranges::none_of(reticolo_.SlotDi(casella), [&](const PostoDiSlot& posto) {
             return posto.slot >= 0 && ferma_[S(posto.slot)];
           });
  }

  // How many slots would be bound to differ by it that are not yet.
  int Divisi(int casella) const {
    return static_cast<int>(std::ranges::count_if(
        reticolo_.SlotDi(casella),
        [&](const PostoDiSlot& posto) { return posto.slot >= 0 && conta_[S(posto.slot)]; }));
  }

  void Togli(int casella) {
    mancano_ -= Divisi(casella);
    problema_.lettere[S(casella)] = Altre(casella);
    for (const PostoDiSlot& posto : reticolo_.SlotDi(casella)) {
      if (posto.slot >= 0) conta_[S(posto.slot)] = false;
    }
  }

  Problema& problema_;
  const std::string& precedente_;
  Reticolo reticolo_;
  std::vector<bool> conta_;  // slots that count and may be the same word yet
  std::vector<bool> ferma_;  // slots with a wanted word
  int mancano_ = 0;          // slots that are to differ besides
};

class Proponente {
 public:
  Proponente(const Problema& problema, const Limiti& limiti, const FaProposta& fa)
      : problema_(problema), limiti_(limiti), fa_(fa) {}

  std::vector<Riempimento> Proponi(int quante) {
    for (int numero = 0; numero < quante && Aggiungi(numero); ++numero) {
    }
    return std::move(proposte_);
  }

 private:
  bool Aggiungi(int numero) {
    const std::uint64_t seme = SemeDiProposta(limiti_.seme, numero);
    Riempimento proposta = Fa(problema_, seme);
    if (numero == 0) {
      proposte_.push_back(std::move(proposta));
      return proposte_.front().esito == Esito::Riempito;
    }
    for (int tentativo = 0; !Nuova(proposta); ++tentativo) {
      if (tentativo == MaxTentativi || passi_ >= limiti_.passi || limiti_.ferma.stop_requested())
        return false;
      const auto diverso = DiversoDaTutte(seme + static_cast<std::uint64_t>(tentativo));
      if (diverso) proposta = Fa(*diverso, seme);
    }
    proposte_.push_back(std::move(proposta));
    return true;
  }

  Riempimento Fa(const Problema& problema, std::uint64_t seme) {
    Limiti resto = limiti_;
    resto.seme = seme;
    resto.passi = std::max<std::int64_t>(0, limiti_.passi - passi_);
    Riempimento proposta = fa_(problema, resto);
    passi_ += proposta.passi;
    return proposta;
  }

  bool Nuova(const Riempimento& proposta) const {
    return proposta.esito == Esito::Riempito &&
           std::ranges::all_of(proposte_, [&](const Riempimento& altra) {
             return AbbastanzaDiversi(problema_, altra.lettere, proposta.lettere);
           });
  }

  std::optional<Problema> DiversoDaTutte(std::uint64_t seme) const {
    std::optional<Problema> diverso = problema_;
    for (const Riempimento& altra : proposte_) {
      if (diverso) diverso = Diverso(std::move(*diverso), altra.lettere, seme);
    }
    return diverso;
  }

  const Problema& problema_;
  const Limiti& limiti_;
  const FaProposta& fa_;
  std::vector<Riempimento> proposte_;
  std::int64_t passi_ = 0;
};

}  // namespace

bool AbbastanzaDiversi(const Problema& problema, const std::string& uno, const std::string& altro) {
  int contano = 0;
  int uguali = 0;
  for (int slot = 0; slot < problema.Slot(); ++slot) {
    const SlotDaRiempire& questo = problema.slot[S(slot)];
    if (questo.aperto || Data(problema, questo)) continue;
    const std::string parola = Maschera(problema, slot, uno);
    const bool uguale = parola == Maschera(problema, slot, altro);
    if (uguale && Voluta(problema, parola)) continue;
    ++contano;
    uguali += uguale ? 1 : 0;
  }
  return contano > 0 && 2 * uguali <= contano;
}

std::optional<Problema> Diverso(Problema problema, const std::string& precedente,
                                std::uint64_t seme) {
  if (!Divisore(problema, precedente).Dividi(seme)) return std::nullopt;
  return problema;
}

std::uint64_t SemeDiProposta(std::uint64_t seme, int numero) {
  return numero == 0 ? seme : Caso(seme + static_cast<std::uint64_t>(numero)).Prossimo();
}

std::vector<Riempimento> Proponi(const Problema& problema, int quante, const Limiti& limiti,
                                 const FaProposta& fa) {
  return Proponente(problema, limiti, fa).Proponi(quante);
}

FaProposta RiempiEMigliora(std::int64_t finestre) {
  return [finestre](const Problema& problema, const Limiti& limiti) {
    Riempimento trovato = Componi(problema, limiti);
    if (trovato.esito != Esito::Riempito || finestre == 0) return trovato;
    Limiti resto = limiti;
    resto.passi = std::max<std::int64_t>(0, limiti.passi - trovato.passi);
    Riempimento migliore = Migliora(problema, trovato.lettere, finestre, resto);
    migliore.passi += trovato.passi;
    migliore.esito = Esito::Riempito;
    return migliore;
  };
}

}  // namespace telarium
