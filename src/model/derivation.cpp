#include "model/derivation.h"

#include "model/cruciverba.h"

namespace telarium {
namespace {

// The cell before one, in that direction.
Casella Prima(Casella casella, int direzione) {
  return direzione == Orizzontale ? Casella{casella.colonna - 1, casella.riga}
                                  : Casella{casella.colonna, casella.riga - 1};
}

std::int8_t TipoDa(bool orizzontale, bool verticale) {
  if (orizzontale && verticale) return 5;
  if (verticale) return 3;
  return orizzontale ? 2 : 1;
}

std::size_t IndiceDi(int direzione) {
  return direzione == Orizzontale ? 0 : 1;
}

}  // namespace

Derivati::Derivati(int colonne, int righe, std::string_view caratteri)
    : colonne_(colonne), righe_(righe), caselle_(caratteri.size()) {
  Verifica(caratteri.size() == static_cast<std::size_t>(colonne) * static_cast<std::size_t>(righe),
           "uno schema con un altro numero di caselle");
  for (std::size_t i = 0; i < caratteri.size(); ++i)
    caselle_[i].carattere = caratteri[i];
  std::int16_t numero = 0;
  for (int r = 1; r <= righe; ++r) {
    for (int c = 1; c <= colonne; ++c) {
      if (Nera({c, r})) continue;
      const bool orizzontale = AggiungiParola({c, r}, Orizzontale);
      const bool verticale = AggiungiParola({c, r}, Verticale);
      Di({c, r}).tipo = TipoDa(orizzontale, verticale);
      if (orizzontale || verticale) Di({c, r}).numero = ++numero;
    }
  }
}

// Takes the word that starts at a white cell in that direction, if one does.
bool Derivati::AggiungiParola(Casella inizio, int direzione) {
  if (Bianca(Prima(inizio, direzione))) return false;
  Slot slot{inizio, direzione, 1};
  while (Bianca(slot.Cella(slot.lunghezza + 1)))
    ++slot.lunghezza;
  if (slot.lunghezza < 2) return false;
  for (int k = 1; k <= slot.lunghezza; ++k)
    Di(slot.Cella(k)).parole[IndiceDi(direzione)] = static_cast<std::int16_t>(parole_.size());
  parole_.push_back(slot);
  return true;
}

const Derivati::DatiCasella& Derivati::Di(Casella casella) const {
  if (!Dentro(casella)) [[unlikely]]
    ErroreDiProgrammazione("Derivati: casella fuori dallo schema");
  return caselle_[static_cast<std::size_t>((casella.riga - 1) * colonne_ + casella.colonna - 1)];
}

Derivati::DatiCasella& Derivati::Di(Casella casella) {
  return const_cast<DatiCasella&>(std::as_const(*this).Di(casella));
}

int Derivati::ParolaPer(Casella casella, int direzione) const {
  return Di(casella).parole[IndiceDi(direzione)];
}

bool Derivati::Inizia(Casella casella, int direzione) const {
  const int tipo = Tipo(casella);
  return tipo == 5 || tipo == (direzione == Orizzontale ? 2 : 3);
}

std::string Derivati::Lettere(const Slot& slot) const {
  std::string lettere;
  for (int k = 1; k <= slot.lunghezza; ++k)
    lettere += Carattere(slot.Cella(k));
  return lettere;
}

Derivati Deriva(const Cruciverba& cruciverba) {
  std::string caratteri;
  caratteri.reserve(static_cast<std::size_t>(cruciverba.colonne * cruciverba.righe));
  for (int r = 1; r <= cruciverba.righe; ++r) {
    for (int c = 1; c <= cruciverba.colonne; ++c)
      caratteri += CarattereDi(cruciverba, {c, r});
  }
  return {cruciverba.colonne, cruciverba.righe, caratteri};
}

}  // namespace telarium
