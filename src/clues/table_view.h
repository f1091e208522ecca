#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/cruciverba.h"
#include "model/derivation.h"
#include "model/word_edit.h"

// The table view: all words of the crossword with their clues, one word a row, next to a small
// picture of the grid (small_grid.h).
namespace telarium {

/// MenuParole: shows TelarBro over the main window. Nothing happens without a grid.
void ApriTabella();

/// What the window shows as its title.
std::string TitoloTabella();

/// What the table view changes: a draft of the crossword, which is untouched until the draft is
/// confirmed.
class BozzaDiTabella {
 public:
  explicit BozzaDiTabella(Cruciverba cruciverba);

  const Cruciverba& Valore() const { return cruciverba_; }
  const Derivati& Derivata() const { return derivati_; }

  /// The words in the order of the rows: by rows of the grid, in a row by columns, at a cell the
  /// horizontal word before the vertical one. No change moves them.
  const std::vector<Slot>& Parole() const { return derivati_.Parole(); }

  /// Number and direction of a word, as "12-O" in its row and as "12-Orizzontale" where there is
  /// room.
  std::string Sigla(const Slot& slot) const;
  std::string SiglaEstesa(const Slot& slot) const;

  /// The word and the clue of a row.
  std::string ParolaDi(const Slot& slot) const { return derivati_.Lettere(slot); }
  const std::string& DefinizioneDi(const Slot& slot) const;

  /// Gives a row its word and clue; the words that cross it follow.
  void Scrivi(const Slot& slot, const ParolaDefinita& testo);

 private:
  Cruciverba cruciverba_;
  Derivati derivati_;
};

/// A draft of the crossword that is open.
BozzaDiTabella ApriBozza();

/// Gives a row of the draft its new word and clue. The crossword counts as changed from then on,
/// and the grid's geometry fits the whole main window, bars included, until the next redraw. False,
/// with everything as it was and its message shown, when ParolaAccettata refuses the word.
bool VariaRiga(BozzaDiTabella& bozza, const Slot& slot, const ParolaDefinita& testo);

/// OK: the draft becomes the crossword, and the snapshot is written; a failure has been told.
void ConfermaBozza(const BozzaDiTabella& bozza);

/// An entry of the popup of clues: "01-(Facile) ..." and the clue itself.
struct VoceDefinizione {
  std::string didascalia;
  std::string definizione;
};

/// Looks a typed word up in the encyclopedia: its clues, easy ones first, maybe none at all. No
/// result, with its message shown, where CercaFamiglie gives none.
std::optional<std::vector<VoceDefinizione>> CercaVoci(std::string_view parola);

}  // namespace telarium
