#pragma once

#include <cstdint>
#include <optional>

#include "clues/merging.h"
#include "model/cruciverba.h"

// All clues of the grid at once, from the encyclopedia and into it. Only complete words take part,
// those without an empty cell.
namespace telarium {

/// Families from which a fetch draws.
inline constexpr std::int16_t ModoTutte = 1;  // one pool of both
inline constexpr std::int16_t ModoFacili = 2;
inline constexpr std::int16_t ModoDifficili = 3;

/// A crossword with the clues of a fetch, and what there is to tell of it.
struct Prelievo {
  Cruciverba cruciverba;
  RapportoDefinizioni rapporto;
};

/// Gives each complete word that the encyclopedia knows one of its clues, drawn with equal chances;
/// the empty one when the families of the mode hold none. Nothing else of the crossword changes.
/// None when the store could not be opened, which has been told. A word whose row cannot be read
/// keeps its clue, and is told among what was not done.
std::optional<Prelievo> PrelevaPer(Cruciverba cruciverba, std::int16_t modo);

/// The same with the crossword that is open, which counts as changed if it gets other clues. Gives
/// the report.
std::optional<RapportoDefinizioni> PrelevaTutte(std::int16_t modo);

/// Menupreltutt, Menuprelfac, menupreldif: PrelevaTutte and its report in a message.
void Prelevadefinizioni(std::int16_t modo);

/// Adds the clues of all complete words to the encyclopedia. Gives the report; none after an error
/// of the store, which has been told and leaves what was written until then.
std::optional<RapportoDefinizioni> SalvaTutte();

/// menuSalvaDef: SalvaTutte and its report in a message.
void SalvaDefinizioni();

}  // namespace telarium
