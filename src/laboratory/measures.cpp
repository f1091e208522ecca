#include "laboratory/measures.h"

#include <algorithm>
#include <array>
#include <bitset>

#include "dictionary/word_list.h"
#include "platform/codepage.h"

namespace telarium {
namespace {

template <class Visita>
void PerOgniCella(const Derivati& griglia, Visita visita) {
  for (int riga = 1; riga <= griglia.Righe(); ++riga) {
    for (int colonna = 1; colonna <= griglia.Colonne(); ++colonna)
      visita(Casella{colonna, riga});
  }
}

bool Bianca(const Derivati& griglia, Casella casella) {
  return griglia.Dentro(casella) && !griglia.Nera(casella);
}

bool InUnaParola(const Derivati& griglia, Casella casella, int direzione) {
  return griglia.ParolaPer(casella, direzione) != Derivati::NessunaParola;
}

// By area, then by the shorter side, then by the width.
bool Supera(const Rettangolo& uno, const Rettangolo& altro) {
  const auto misura = [](const Rettangolo& r) {
    return std::array{r.colonne * r.righe, std::min(r.colonne, r.righe), r.colonne};
  };
  return misura(uno) > misura(altro);
}

// Takes in an area from one of its cells.
std::vector<Casella> AreaDa(const Derivati& griglia, Casella prima, std::vector<bool>& viste) {
  const auto posto = [&](Casella casella) {
    return static_cast<std::size_t>((casella.riga - 1) * griglia.Colonne() + casella.colonna - 1);
  };
  if (viste[posto(prima)]) return {};
  viste[posto(prima)] = true;
  std::vector<Casella> area = {prima};
  for (std::size_t i = 0; i < area.size(); ++i) {
    const auto [c, r] = area[i];
    for (const Casella vicina : {Casella{c, r - 1}, {c - 1, r}, {c + 1, r}, {c, r + 1}}) {
      if (!Bianca(griglia, vicina) || viste[posto(vicina)]) continue;
      viste[posto(vicina)] = true;
      area.push_back(vicina);
    }
  }
  std::sort(area.begin(), area.end(), [](Casella una, Casella altra) {
    return std::pair(una.riga, una.colonna) < std::pair(altra.riga, altra.colonna);
  });
  return area;
}

std::array<char, 256> TabellaLettere() {
  std::array<char, 256> tabella{};
  for (std::size_t byte = 0; byte < tabella.size(); ++byte) {
    const auto lettere = PiegaCarattere(TabellaCodePage[byte]);
    if (lettere && lettere->size() == 1) tabella[byte] = lettere->front();
  }
  return tabella;
}

}  // namespace

double PercentualeNere(const Derivati& griglia) {
  int nere = 0;
  PerOgniCella(griglia, [&](Casella casella) { nere += griglia.Nera(casella); });
  const int caselle = griglia.Colonne() * griglia.Righe();
  return caselle == 0 ? 0 : 100.0 * nere / caselle;
}

Rettangolo Piazza(const Derivati& griglia) {
  Rettangolo piazza;
  std::vector<int> altezze(static_cast<std::size_t>(griglia.Colonne()) + 1, 0);
  for (int riga = 1; riga <= griglia.Righe(); ++riga) {
    for (int destra = 1; destra <= griglia.Colonne(); ++destra) {
      int& altezza = altezze[static_cast<std::size_t>(destra)];
      altezza = griglia.Nera({destra, riga}) ? 0 : altezza + 1;
      // All rectangles whose lower right corner this cell is.
      int minima = altezza;
      for (int sinistra = destra; sinistra >= 1 && minima > 0; --sinistra) {
        minima = std::min(minima, altezze[static_cast<std::size_t>(sinistra)]);
        const Rettangolo questo = {destra - sinistra + 1, minima};
        if (minima > 0 && Supera(questo, piazza)) piazza = questo;
      }
    }
  }
  return piazza;
}

std::vector<std::vector<Casella>> Aree(const Derivati& griglia) {
  std::vector<bool> viste(static_cast<std::size_t>(griglia.Colonne() * griglia.Righe()), false);
  std::vector<std::vector<Casella>> aree;
  PerOgniCella(griglia, [&](Casella casella) {
    if (griglia.Nera(casella)) return;
    auto area = AreaDa(griglia, casella, viste);
    if (!area.empty()) aree.push_back(std::move(area));
  });
  return aree;
}

std::vector<Casella> CelleSole(const Derivati& griglia) {
  std::vector<Casella> sole;
  PerOgniCella(griglia, [&](Casella casella) {
    if (InUnaParola(griglia, casella, Orizzontale) != InUnaParola(griglia, casella, Verticale))
      sole.push_back(casella);
  });
  return sole;
}

std::vector<int> VociPerLunghezza(const Derivati& griglia) {
  std::vector<int> voci(static_cast<std::size_t>(MaxLunghezzaVoce) + 1, 0);
  for (const Slot& slot : griglia.Parole())
    ++voci[static_cast<std::size_t>(slot.lunghezza)];
  return voci;
}

int CelleIncrociate(const Derivati& griglia, const Slot& slot) {
  int incrociate = 0;
  for (int k = 1; k <= slot.lunghezza; ++k)
    incrociate += InUnaParola(griglia, slot.Cella(k), Traversa(slot.direzione));
  return incrociate;
}

std::optional<char> LetteraDiCella(char carattere) {
  static const std::array<char, 256> tabella = TabellaLettere();
  const char lettera = tabella[static_cast<unsigned char>(carattere)];
  if (lettera == 0) return std::nullopt;
  return lettera;
}

int LettereUsate(const Derivati& griglia) {
  std::bitset<LettereAlfabeto> usate;
  PerOgniCella(griglia, [&](Casella casella) {
    if (const auto lettera = LetteraDiCella(griglia.Carattere(casella)))
      usate.set(static_cast<std::size_t>(*lettera - 'A'));
  });
  return static_cast<int>(usate.count());
}

int DifficoltaVoce(std::optional<int> punteggio, int lettere, int incrociate,
                   const GradoDefinizione& definizione) {
  if (definizione.grado > 0) return std::min(definizione.grado, MaxGrado);
  int difficolta = 1 + definizione.difficile + (2 * incrociate < lettere);
  if (punteggio) difficolta += (*punteggio < PunteggioFacile) + Rara(*punteggio);
  return difficolta;
}

}  // namespace telarium
