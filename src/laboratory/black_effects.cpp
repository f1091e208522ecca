#include "laboratory/black_effects.h"

#include <array>

namespace telarium {
namespace {

constexpr std::array<Casella, 4> Passi = {{{1, 0}, {-1, 0}, {0, 1}, {0, -1}}};

Casella Oltre(Casella casella, Casella passo) {
  return {casella.colonna + passo.colonna, casella.riga + passo.riga};
}

// The white areas of a grid in which one cell is black too.
class Aree {
 public:
  Aree(const Derivati& griglia, Casella nera)
      : griglia_(griglia), vista_(static_cast<std::size_t>(griglia.Colonne() * griglia.Righe())) {
    if (griglia.Dentro(nera)) Vista(nera) = true;
  }

  int Conta() {
    int aree = 0;
    for (int riga = 1; riga <= griglia_.Righe(); ++riga) {
      for (int colonna = 1; colonna <= griglia_.Colonne(); ++colonna)
        aree += Riempi({colonna, riga}) ? 1 : 0;
    }
    return aree;
  }

 private:
  std::vector<bool>::reference Vista(Casella casella) {
    return vista_[static_cast<std::size_t>((casella.riga - 1) * griglia_.Colonne() +
                                           casella.colonna - 1)];
  }

  // Goes through the area of a cell; false when there is none that has not been seen.
  bool Riempi(Casella inizio) {
    if (!Entra(inizio)) return false;
    for (std::vector<Casella> daVedere = {inizio}; !daVedere.empty();) {
      const Casella casella = daVedere.back();
      daVedere.pop_back();
      for (const Casella& passo : Passi) {
        if (Entra(Oltre(casella, passo))) daVedere.push_back(Oltre(casella, passo));
      }
    }
    return true;
  }

  bool Entra(Casella casella) {
    if (!griglia_.Dentro(casella) || griglia_.Nera(casella) || Vista(casella)) return false;
    Vista(casella) = true;
    return true;
  }

  const Derivati& griglia_;
  std::vector<bool> vista_;
};

int Lunghezza(const Derivati& griglia, Casella nera, Casella passo) {
  int lunghezza = 0;
  for (Casella casella = Oltre(nera, passo); griglia.Dentro(casella) && !griglia.Nera(casella);
       casella = Oltre(casella, passo))
    ++lunghezza;
  return lunghezza;
}

}  // namespace

EffettoDiNera EffettoDi(const Derivati& griglia, Casella nera) {
  constexpr Casella nessuna = {};
  EffettoDiNera effetto;
  effetto.aree = Aree(griglia, nera).Conta() - Aree(griglia, nessuna).Conta();
  for (const Casella& passo : Passi) {
    const int lunghezza = Lunghezza(griglia, nera, passo);
    effetto.sole += lunghezza == 1 ? 1 : 0;
    effetto.corte += lunghezza == 2 ? 1 : 0;
    effetto.voci += lunghezza >= 2 ? 1 : 0;
  }
  for (const int direzione : Direzioni)
    effetto.voci -= griglia.ParolaPer(nera, direzione) != Derivati::NessunaParola ? 1 : 0;
  return effetto;
}

}  // namespace telarium
