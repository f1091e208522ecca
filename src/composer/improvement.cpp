#include "composer/improvement.h"

#include <algorithm>
#include <vector>

#include "composer/random.h"
#include "composer/refill.h"
#include "composer/window.h"
#include "platform/check.h"

namespace telarium {
namespace {

constexpr std::int64_t FinestrePerAvviso = 16;
constexpr int LatoMinimo = 5;  // of a window
constexpr int LatoMassimo = 8;
constexpr int SlotPerScelta = 3;         // drawn, of which the poorest is taken
constexpr int PercentoSenzaParola = 90;  // windows in which the poor word may not come back
constexpr int MaxPerdita = 150;          // of worth that such a window may lose

// The fill that is changed window by window, and the best one that it has been.
class Miglioramento {
 public:
  Miglioramento(const Problema& problema, const std::string& lettere, std::uint64_t seme)
      : partenza_(problema),
        stesura_(partenza_, lettere),
        pianta_(partenza_.Griglia()),
        rifacimento_(stesura_),
        caso_(seme),
        migliore_(lettere) {
    for (int slot = 0; slot < Griglia().Slot(); ++slot) {
      const auto mutabile = [&](int casella) { return stesura_.Mutabile(casella); };
      if (stesura_.Parola(slot) != Stesura::SenzaParola &&
          std::ranges::any_of(Griglia().CaselleDi(slot), mutabile))
        mutabili_.push_back(slot);
    }
  }

  bool PuoMutare() const { return !mutabili_.empty(); }
  const std::string& Migliore() const { return migliore_; }
  std::int64_t Passi() const { return passi_; }

  void Finestra() {
    const int slot = ScegliSlot();
    const int lato = LatoMinimo + caso_.Fino(LatoMassimo - LatoMinimo + 1);
    const Pianta::Luogo scarto = {caso_.Fino(MaxLunghezzaVoce), caso_.Fino(MaxLunghezzaVoce)};
    const bool senza = caso_.Fino(100) < PercentoSenzaParola;
    const Valore perdita = senza ? caso_.Fino(MaxPerdita + 1) * Rifacimento::Grana : 0;
    pianta_.Intorno(stesura_, slot, lato, scarto, libere_);
    Rifai(senza ? Rifacimento::Parola{slot, stesura_.Parola(slot)} : Rifacimento::Parola{},
          perdita);
    if (guadagno_ <= massimo_ || diPregio_ < 0) return;
    massimo_ = guadagno_;
    migliore_ = stesura_.Testo();
  }

 private:
  const Reticolo& Griglia() const { return partenza_.Griglia(); }
  Valore Vale(int slot) const {
    return rifacimento_.ValoreDi(Griglia().Lunghezza(slot), stesura_.Parola(slot));
  }

  int Pregio(int slot) const {
    return partenza_.Parole().Pregio({Griglia().Lunghezza(slot), stesura_.Parola(slot)});
  }

  int ScegliSlot() {
    int scelto = -1;
    for (int k = 0; k < SlotPerScelta; ++k) {
      const auto quale = caso_.Fino(static_cast<int>(mutabili_.size()));
      const int slot = mutabili_[static_cast<std::size_t>(quale)];
      if (scelto < 0 || Vale(slot) < Vale(scelto)) scelto = slot;
    }
    return scelto;
  }

  // Fills the free cells with what is worth most, unless it is worth less by that much.
  void Rifai(const Rifacimento::Parola& evitata, Valore perdita) {
    const std::int64_t prima = guadagno_;
    Togli(tolte_);
    const auto presente = static_cast<Valore>(prima - guadagno_);
    const auto risposta = rifacimento_.Cerca(libere_, presente - perdita, evitata);
    passi_ += risposta.passi;
    Posa(risposta.trovato ? rifacimento_.Trovate() : tolte_);
    if (!risposta.trovato || stesura_.LasciaAperti()) return;
    Togli(respinte_);
    Posa(tolte_);
  }

  // Takes the words through the free cells out.
  void Togli(std::vector<Rifacimento::Parola>& parole) {
    parole.clear();
    for (const int casella : libere_) {
      for (const PostoDiSlot& posto : Griglia().SlotDi(casella)) {
        if (posto.slot < 0 || stesura_.Parola(posto.slot) == Stesura::SenzaParola) continue;
        guadagno_ -= Vale(posto.slot);
        diPregio_ -= Pregio(posto.slot);
        parole.push_back({posto.slot, stesura_.Parola(posto.slot)});
        stesura_.Togli(posto.slot);
      }
    }
  }

  void Posa(const std::vector<Rifacimento::Parola>& parole) {
    for (const auto& [slot, numero] : parole) {
      stesura_.Posa(slot, numero);
      guadagno_ += Vale(slot);
      diPregio_ += Pregio(slot);
    }
  }

  Partenza partenza_;
  Stesura stesura_;
  Pianta pianta_;
  Rifacimento rifacimento_;
  Caso caso_;
  std::vector<int> mutabili_;  // slots
  std::vector<int> libere_;
  std::vector<Rifacimento::Parola> tolte_;
  std::vector<Rifacimento::Parola> respinte_;
  std::int64_t guadagno_ = 0;  // of worth since the beginning
  std::int64_t massimo_ = 0;   // the most that it has been
  std::int64_t diPregio_ = 0;  // the same as `guadagno_`, in the sum that PregioDi gives
  std::string migliore_;
  std::int64_t passi_ = 0;
};

}  // namespace

std::int64_t PregioDi(const Problema& problema, const std::string& lettere) {
  std::int64_t pregio = 0;
  for (int slot = 0; slot < problema.Slot(); ++slot) {
    if (problema.slot[static_cast<std::size_t>(slot)].aperto) continue;
    const auto numero = problema.vocabolario->Cerca(Maschera(problema, slot, lettere));
    if (numero) pregio += problema.vocabolario->Pregio(*numero);
  }
  return pregio;
}

Riempimento Migliora(const Problema& problema, const std::string& lettere, std::int64_t finestre,
                     const Limiti& limiti,
                     const std::function<void(std::int64_t, const std::string&)>& avanzamento) {
  Miglioramento lavoro(problema, lettere, limiti.seme);
  Riempimento risposta;
  risposta.esito = Esito::Riempito;
  std::int64_t fatte = 0;
  while (fatte < finestre && lavoro.PuoMutare() && lavoro.Passi() < limiti.passi) {
    if (limiti.ferma.stop_requested()) {
      risposta.esito = Esito::Tempo;
      break;
    }
    lavoro.Finestra();
    ++fatte;
    if (avanzamento && fatte % FinestrePerAvviso == 0) avanzamento(fatte, lavoro.Migliore());
  }
  risposta.lettere = lavoro.Migliore();
  risposta.passi = lavoro.Passi();
  risposta.pesi.assign(problema.slot.size(), 1);
  Verifica(Difetti(problema, risposta.lettere).empty(), "un riempimento rispetta le richieste");
  return risposta;
}

}  // namespace telarium
