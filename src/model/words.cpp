#include "model/words.h"

#include <algorithm>

namespace telarium {
namespace {

void CopiaCaratteri() {
  for (int r = 1; r <= NumRighe; ++r) {
    const std::string& riga = Schema(r + RigheIntestazione);
    // Cell c has its character at position 2c-1, which is index 2c-2.
    const int presenti = static_cast<int>(std::min<std::size_t>((riga.size() + 1) / 2, MaxColonne));
    for (int c = 1; c <= std::min<int>(presenti, NumColonne); ++c) {
      LetteraCasella(c, r) = riga[2 * static_cast<std::size_t>(c) - 2];
    }
  }
}

bool Nera(int c, int r) {
  return LetteraCasella(c, r) == CellaNera;
}

// Fills ParolaCasella of one line of cells, a row or a column, given by how its k-th cell is
// reached.
template <class Cella>
void ParoleDiUnaLinea(int lunghezza, int direzione, Cella cella) {
  std::array<char, MaxColonne> caratteri;
  for (int k = 1; k <= lunghezza; ++k) {
    const Casella dove = cella(k);
    caratteri[static_cast<std::size_t>(k - 1)] = LetteraCasella(dove.colonna, dove.riga);
  }
  const char* const fineLinea = caratteri.data() + lunghezza;
  for (int k = 1; k <= lunghezza; ++k) {
    const Casella dove = cella(k);
    const char* const da = caratteri.data() + k - 1;
    const char* const fine = std::find(da, fineLinea, CellaNera);
    // A black cell, and one that no white cell follows, begins no part of a word.
    if (fine - da >= 2) {
      ParolaCasella(dove.colonna, dove.riga, direzione).assign(da, fine);
    } else {
      ParolaCasella(dove.colonna, dove.riga, direzione).clear();
    }
  }
}

std::int16_t Tipo(int c, int r) {
  if (Nera(c, r)) return 0;
  const bool estremoSinistro = c == 1 || Nera(c - 1, r);
  const bool estremoAlto = r == 1 || Nera(c, r - 1);
  const bool orizzontale = estremoSinistro && !ParolaCasella(c, r, Orizzontale).empty();
  const bool verticale = estremoAlto && !ParolaCasella(c, r, Verticale).empty();
  if (orizzontale && verticale) return 5;
  if (verticale) return 3;
  return orizzontale ? 2 : 1;
}

void Tipi() {
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c)
      TipoCasella(c, r) = Tipo(c, r);
  }
}

void Numeri() {
  std::int16_t numero = 0;
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c)
      NumeroCasella(c, r) = TipoCasella(c, r) > 1 ? ++numero : 0;
  }
}

}  // namespace

void RicalcolaCaselle() {
  RicalcolaCaselleSenzaNumeri();
  Numeri();
}

void RicalcolaCaselleSenzaNumeri() {
  CopiaCaratteri();
  for (int r = 1; r <= NumRighe; ++r) {
    ParoleDiUnaLinea(NumColonne, Orizzontale, [r](int k) { return Casella{k, r}; });
  }
  for (int c = 1; c <= NumColonne; ++c) {
    ParoleDiUnaLinea(NumRighe, Verticale, [c](int k) { return Casella{c, k}; });
  }
  Tipi();
}

bool IniziaParola(Casella casella, int direzione) {
  const int tipo = TipoCasella(casella.colonna, casella.riga);
  return tipo == 5 || tipo == (direzione == Orizzontale ? 2 : 3);
}

Slot SlotDa(Casella casella, int direzione) {
  const std::string& parola = ParolaCasella(casella.colonna, casella.riga, direzione);
  return {casella, direzione, static_cast<int>(parola.size())};
}

std::string LettereDi(const Slot& slot) {
  std::string lettere;
  for (int k = 1; k <= slot.lunghezza; ++k) {
    const Casella cella = slot.Cella(k);
    lettere += LetteraCasella(cella.colonna, cella.riga);
  }
  return lettere;
}

void ScriviInSchema(Casella casella, char carattere) {
  std::string& riga = Schema(casella.riga + RigheIntestazione);
  const auto posto = 2 * static_cast<std::size_t>(casella.colonna) - 2;
  if (riga.size() < posto + 2) riga.resize(posto + 2, CellaVuota);
  riga[posto] = carattere;
}

void ScriviInSchema(const Slot& slot, std::string_view parola) {
  const int lunghezza = std::min(slot.lunghezza, static_cast<int>(parola.size()));
  for (int k = 1; k <= lunghezza; ++k)
    ScriviInSchema(slot.Cella(k), parola[static_cast<std::size_t>(k) - 1]);
}

}  // namespace telarium
