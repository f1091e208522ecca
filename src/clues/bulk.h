#pragma once

#include <cstdint>
#include <optional>

#include "clues/merging.h"

// All clues of the grid at once, from the encyclopedia and into it. Only complete words take part,
// those without an empty cell.
namespace telarium {

/// Families from which a fetch draws.
inline constexpr std::int16_t ModoTutte = 1;  // one pool of both
inline constexpr std::int16_t ModoFacili = 2;
inline constexpr std::int16_t ModoDifficili = 3;

/// Gives each complete word that the encyclopedia knows one of its clues, drawn with equal chances;
/// the empty one when the families of the mode hold none. Changes nothing else of the crossword.
/// Gives the report; none when the store could not be opened, which has been told. A word whose row
/// cannot be read stays as it is, and is told among what was not done.
std::optional<RapportoDefinizioni> PrelevaTutte(std::int16_t modo);

/// Menupreltutt, Menuprelfac, menupreldif: PrelevaTutte and its report in a message.
void Prelevadefinizioni(std::int16_t modo);

/// Adds the clues of all complete words to the encyclopedia. Gives the report; none after an error
/// of the store, which has been told and leaves what was written until then.
std::optional<RapportoDefinizioni> SalvaTutte();

/// menuSalvaDef: SalvaTutte and its report in a message.
void SalvaDefinizioni();

}  // namespace telarium
