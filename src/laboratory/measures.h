#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/entry.h"
#include "model/derivation.h"

// The measures of the laboratory, one definition each, with their bounds. The bounds of scores
// stand with the entries (lexicon/entry.h).
namespace telarium {

/// Characters of a clue: wished, and at the most.
inline constexpr std::size_t LunghezzaDefinizioneVoluta = 45;
inline constexpr std::size_t MaxLunghezzaDefinizione = 60;

/// An entry in the clue of another one is a fault from so many letters on.
inline constexpr std::size_t MinLettereVoceContenuta = 4;
/// Letters at the beginning of two words that make them akin, and that two entries may not share.
inline constexpr std::size_t LettereDiRadice = 5;
inline constexpr std::size_t LettereDiTratto = 5;

/// A pattern may open so many clues of a crossword.
inline constexpr int MaxDefinizioniPerSchema = 2;

/// How many of so many entries may be rare (one in ten), or have two letters (15 %), before it is
/// told. Rounded down.
constexpr int RareAmmesse(int voci) {
  return voci / 10;
}
constexpr int DueLettereAmmesse(int voci) {
  return voci * 15 / 100;
}

constexpr bool Rara(int punteggio) {
  return punteggio < PunteggioRaro;
}

// --- Of a grid, whatever its letters ---

/// The black cells of a grid in per cent; 0 for none.
double PercentualeNere(const Derivati& griglia);

/// A rectangle of cells.
struct Rettangolo {
  int colonne = 0;
  int righe = 0;
  bool operator==(const Rettangolo&) const = default;
};

/// The largest rectangle of white cells; of equal ones the one nearest to a square, then the wider
/// one. Without white cells 0 by 0.
Rettangolo Piazza(const Derivati& griglia);

/// The connected areas of white cells, by their first cells in reading order; the cells of each
/// likewise.
std::vector<std::vector<Casella>> Aree(const Derivati& griglia);

/// The cells that lie in one word only, in reading order.
std::vector<Casella> CelleSole(const Derivati& griglia);

/// The entries of a grid by length, from 0 on.
std::vector<int> VociPerLunghezza(const Derivati& griglia);

/// How many cells of a word lie in another one too.
int CelleIncrociate(const Derivati& griglia, const Slot& slot);

// --- Of letters ---

/// The letter from A to Z that a cell counts as; none for an empty or black one and for a sign that
/// is no letter, or is written with two.
std::optional<char> LetteraDiCella(char carattere);

/// How many letters of the alphabet stand in a grid.
int LettereUsate(const Derivati& griglia);

// --- Of an entry ---

/// What is known of how hard a clue is.
struct GradoDefinizione {
  bool difficile = false;  // one of the hard family
  int grado = 0;           // of its own, 1 to 5; 0 for none
};
inline constexpr int MaxGrado = 5;

/// The difficulty of an entry, from 1 to 5. An own grade of the clue counts alone. No score, as of
/// a word of the author's own, adds nothing.
int DifficoltaVoce(std::optional<int> punteggio, int lettere, int incrociate,
                   const GradoDefinizione& definizione);
/// A score under this one makes an entry harder, and one under `PunteggioRaro` once more.
inline constexpr int PunteggioFacile = 60;

}  // namespace telarium
