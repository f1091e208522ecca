#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "model/cells.h"
#include "model/laboratory_section.h"
#include "model/shared.h"
#include "model/sparse_table.h"
#include "platform/surface.h"

// The crossword as a value: what its file holds and nothing that follows from it (see
// model/derivation.h). Texts are of the code page. Copies are cheap: they share what they have in
// common by rows of the grid and columns of clues and colours.
namespace telarium {

using Intestazione = std::array<std::string, RigheIntestazione>;

struct Cruciverba {
  /// Author, date, kind and size, each with its label.
  Condiviso<Intestazione> intestazione;
  int colonne = 0;  // 0 while there is no grid, else 1 to MaxColonne
  int righe = 0;    // 0 while there is no grid, else 1 to MaxRighe
  /// Row r at r - 1, as read: cell c has its character at index 2c-2 and behind it a companion mark
  /// that decides nothing. A line can be shorter or longer than the grid.
  std::vector<Condiviso<std::string>> griglia;
  /// (column, row, direction): the clue of the word that starts there. All places of the largest
  /// grid have one, so that a clue comes back with its column or its start.
  TabellaRada<std::string, AsseColonne, AsseRighe, AsseDirezioni> definizioni{"definizioni"};
  /// (column, row): the colour of a black cell, likewise.
  TabellaRada<Colore, AsseColonne, AsseRighe> colori{"colori"};
  Condiviso<Laboratorio> laboratorio;

  bool operator==(const Cruciverba&) const = default;
};

/// Whether a cell lies in the grid.
inline bool NelloSchema(const Cruciverba& cruciverba, Casella casella) {
  return casella.colonna >= 1 && casella.colonna <= cruciverba.colonne && casella.riga >= 1 &&
         casella.riga <= cruciverba.righe;
}

/// The character of a cell of the grid; CellaVuota where its row line does not reach it.
char CarattereDi(const Cruciverba& cruciverba, Casella casella);

/// Writes the character of a cell of the grid; its companion mark stays as it is. A row line that
/// is too short for the cell is first made longer by empty white cells.
void ScriviCarattere(Cruciverba& cruciverba, Casella casella, char carattere);

/// Writes the characters of a word into its cells, likewise; what it has beyond them is left out.
void ScriviCaratteri(Cruciverba& cruciverba, const Slot& slot, std::string_view parola);

/// Gives the grid another size, within the limits, and says so in the header. New cells are empty,
/// and with another number of columns the row lines come to the length of the grid; clues, colours
/// and locks stay in their places.
void Ridimensiona(Cruciverba& cruciverba, int colonne, int righe);

}  // namespace telarium
