#include "model/words.h"

#include <algorithm>

#include "model/crossword_format.h"
#include "model/derivation.h"

namespace telarium {
namespace {

void CopiaCaratteri() {
  for (int r = 1; r <= NumRighe; ++r) {
    const std::string& riga = Schema(r + RigheIntestazione);
    for (int c = 1; c <= NumColonne && IndiceInRiga(c) < riga.size(); ++c)
      LetteraCasella(c, r) = riga[IndiceInRiga(c)];
  }
}

Derivati DerivaDalleLettere() {
  std::string caratteri;
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c)
      caratteri += LetteraCasella(c, r);
  }
  return {NumColonne, NumRighe, caratteri};
}

// What ParolaCasella holds at each cell of a word.
void ScriviParola(const Slot& slot, const std::string& lettere) {
  for (int k = 1; k <= slot.lunghezza; ++k) {
    const auto [c, r] = slot.Cella(k);
    std::string& parola = ParolaCasella(c, r, slot.direzione);
    if (k < slot.lunghezza) {
      parola.assign(lettere, static_cast<std::size_t>(k) - 1);
    } else {
      parola.clear();  // no white cell follows
    }
  }
}

void ScriviParole(const Derivati& derivati) {
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c) {
      for (const int d : Direzioni) {
        if (derivati.ParolaPer({c, r}, d) == Derivati::NessunaParola)
          ParolaCasella(c, r, d).clear();
      }
    }
  }
  for (const Slot& slot : derivati.Parole())
    ScriviParola(slot, derivati.Lettere(slot));
}

void ScriviTipi(const Derivati& derivati) {
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c)
      TipoCasella(c, r) = static_cast<std::int16_t>(derivati.Tipo({c, r}));
  }
}

void ScriviNumeri(const Derivati& derivati) {
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c)
      NumeroCasella(c, r) = static_cast<std::int16_t>(derivati.Numero({c, r}));
  }
}

Derivati RicalcolaTuttoSenzaNumeri() {
  CopiaCaratteri();
  Derivati derivati = DerivaDalleLettere();
  ScriviParole(derivati);
  ScriviTipi(derivati);
  return derivati;
}

}  // namespace

void RicalcolaCaselle() {
  ScriviNumeri(RicalcolaTuttoSenzaNumeri());
}

void RicalcolaCaselleSenzaNumeri() {
  RicalcolaTuttoSenzaNumeri();
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
  ScriviInRiga(Schema(casella.riga + RigheIntestazione), casella.colonna, carattere);
}

void ScriviInSchema(const Slot& slot, std::string_view parola) {
  const int lunghezza = std::min(slot.lunghezza, static_cast<int>(parola.size()));
  for (int k = 1; k <= lunghezza; ++k)
    ScriviInSchema(slot.Cella(k), parola[static_cast<std::size_t>(k) - 1]);
}

}  // namespace telarium
