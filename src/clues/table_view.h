#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/words.h"

// The table view: all words of the crossword with their clues, one word a row, next to a small
// picture of the grid (small_grid.h).
namespace telarium {

/// MenuParole: shows TelarBro over the main window. Nothing happens without a grid.
void ApriTabella();

/// What the window shows as its title.
std::string TitoloTabella();

/// The words in the order of the rows: by rows of the grid, in a row by columns, at a cell the
/// horizontal word before the vertical one. No change made in the table moves them.
std::vector<Slot> ParoleDellaTabella();

/// Number and direction of a word, as "12-O" in its row and as "12-Orizzontale" where there is
/// room.
std::string SiglaParola(const Slot& slot);
std::string SiglaEstesa(const Slot& slot);

/// The word and the clue of a row.
const std::string& ParolaDi(const Slot& slot);
const std::string& DefinizioneDi(const Slot& slot);

/// Gives a row its new word and clue, in the grid too, and derives all other words anew. False,
/// with everything as it was and its message shown, when ParolaAccettata refuses the word.
bool VariaRiga(const Slot& slot, std::string_view parola, std::string_view definizione);

/// Brings the derived tables but for NumeroCasella into line with Schema, and fits the grid's
/// geometry to the whole main window, bars included, until the next redraw.
void RicalcolaParole();

/// An entry of the popup of clues: "01-(Facile) ..." and the clue itself.
struct VoceDefinizione {
  std::string didascalia;
  std::string definizione;
};

/// Looks a typed word up in the encyclopedia: its clues, easy ones first, maybe none at all. No
/// result, with its message shown, where CercaFamiglie gives none.
std::optional<std::vector<VoceDefinizione>> CercaVoci(std::string_view parola);

/// Grid and clues at its construction, to put them back. The derived tables are left to a redraw.
class CopiaCruciverba {
 public:
  void Ripristina() const;

 private:
  decltype(Schema) schema_ = Schema;
  decltype(Definizione) definizione_ = Definizione;
};

}  // namespace telarium
