#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dictionary/dictionary.h"
#include "model/words.h"

// How the fill gets a word for one slot. A pattern is a text of as many characters as the slot has
// cells: a letter, or a blank for an empty cell.
namespace telarium {

/// Word numbers of the words that fit the current slot, in the order of the section; room for all
/// that a section can number.
extern Tabella<std::int16_t, Indici<1, MaxParole>> Candidati;
/// How many places of Candidati are in use.
extern std::int16_t NumCandidati;

/// For letter k of a horizontal slot: how many cells up, the cell itself counting as 1, the
/// crossing run begins; DistanzaSinistra the same to the left for a vertical slot.
extern Tabella<std::int16_t, Indici<0, MaxColonne>> DistanzaSu;
extern Tabella<std::int16_t, Indici<0, MaxColonne>> DistanzaSinistra;

/// Fills Candidati and NumCandidati with the words of the open dictionary that fit the pattern. An
/// all-blank pattern takes no word with a Q or an H. A length that no dictionary holds shows a
/// message; gives false then, and when the dictionary cannot be read.
[[nodiscard]] bool CercaCandidati(std::string_view modello);

/// Draws one of the candidates, of which there must be at least one, and reads it. Empty when the
/// dictionary cannot be read.
std::string EstraiParola(int lunghezza);

/// What ProvaIncroci found.
struct EsitoIncroci {
  bool passati = true;
  bool letti = true;     // false: the dictionary could not be read
  std::string incrocio;  // the crossing word that was tested last, or that failed
};

/// Tests the complete words that cross the slot's cells as the grid stands: each of 3 or more
/// letters must be in the dictionary. Stops at the first that is not. The slot's own word takes no
/// part.
EsitoIncroci ProvaIncroci(const Slot& slot);

/// -1 when at least one word of the dictionary fits the pattern, in which "." is a blank too; else
/// 0, as for every pattern of a length that no dictionary holds.
Booleano16 ParolaEsiste(std::string_view modello);

/// A copy of the pattern with "." in place of each blank.
std::string MascheraPunti(std::string_view modello);

/// One of the 21 letters of the Italian alphabet, at random.
char LetteraCasuale();

}  // namespace telarium
