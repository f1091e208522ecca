#include "composer/remaining_letters.h"

#include <bit>

#include "composer/state.h"

// Trying each letter is singleton consistency (Debruyne and Bessiere, 1997).
namespace telarium {
namespace {

constexpr std::size_t S(int numero) {
  return static_cast<std::size_t>(numero);
}

// Those of the words in all slots of a cell: where they are many, consistency looks at them anew
// only now and then, and at those of cells without a crossing never.
Lettere LettereDi(const Stato& stato, const Reticolo& griglia, int casella) {
  Lettere lettere = stato.LettereDi(casella);
  for (const PostoDiSlot& posto : griglia.SlotDi(casella)) {
    if (posto.slot < 0) continue;
    LettereContate quante{};
    stato.ContaLettere(posto.slot, posto.posto, quante);
    for (int lettera = 0; lettera < LettereAlfabeto; ++lettera) {
      if (quante[S(lettera)] == 0) lettere &= ~(1u << lettera);
    }
  }
  return lettere;
}

bool Regge(Stato& stato, int casella, int lettera) {
  stato.Avanza();
  const bool regge = stato.Assegna(casella, lettera) && stato.Propaga();
  stato.Torna(0);
  return regge;
}

// Takes out each letter that is in conflict when it is decided alone, until all of them stand.
class ProvaLettere {
 public:
  ProvaLettere(Stato& stato, const Limiti& limiti) : stato_(stato), limiti_(limiti) {}

  // False when no letter is left in some cell.
  bool Prova() {
    const Problema& problema = stato_.Inizio().Di();
    do {
      cambiato_ = false;
      for (int casella = 0; casella < problema.Caselle() && !Finita(); ++casella) {
        if (!problema.Lasciata(casella) && !ProvaCasella(casella)) return false;
      }
    } while (cambiato_ && !Finita());
    return true;
  }

 private:
  bool Finita() const { return passi_ >= limiti_.passi || limiti_.ferma.stop_requested(); }

  bool ProvaCasella(int casella) {
    const Lettere lettere = LettereDi(stato_, stato_.Inizio().Griglia(), casella);
    if (UnaSola(lettere)) return true;
    for (Lettere resto = lettere; resto != 0 && !Finita(); resto &= resto - 1) {
      const int lettera = std::countr_zero(resto);
      ++passi_;
      if (Regge(stato_, casella, lettera)) continue;
      cambiato_ = true;
      if (!stato_.Togli(casella, lettera, stato_.TuttiILivelli()) || !stato_.Propaga())
        return false;
    }
    return true;
  }

  Stato& stato_;
  const Limiti& limiti_;
  std::int64_t passi_ = 0;
  bool cambiato_ = false;
};

}  // namespace

std::vector<Lettere> LettereRimaste(const Problema& problema, const Limiti& limiti) {
  const Partenza partenza(problema);
  Stato stato(partenza);
  std::vector<Lettere> rimaste(problema.lettere.size(), 0);
  if (!stato.Propaga()) return rimaste;
  if (!ProvaLettere(stato, limiti).Prova()) return rimaste;
  for (int casella = 0; casella < problema.Caselle(); ++casella)
    rimaste[S(casella)] = LettereDi(stato, partenza.Griglia(), casella);
  return rimaste;
}

std::vector<int> CaselleObbligate(const Problema& problema, const std::vector<Lettere>& rimaste) {
  std::vector<int> obbligate;
  for (int casella = 0; casella < problema.Caselle(); ++casella) {
    if (UnaSola(rimaste[S(casella)]) && !UnaSola(problema.lettere[S(casella)]))
      obbligate.push_back(casella);
  }
  return obbligate;
}

}  // namespace telarium
