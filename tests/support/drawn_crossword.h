#pragma once

#include <string>
#include <vector>

#include "model/cruciverba.h"

namespace telarium {

/// A crossword value from a drawing, one text per row: "#" black, "." empty, any other a letter.
inline Cruciverba DrawnCrossword(const std::vector<std::string>& rows) {
  Cruciverba crossword;
  crossword.intestazione = Intestazione{"Autore     : Prova", "Data       : 05-03-2024",
                                        "Tipo       : Crociate Normale", "Dimensioni : "};
  Ridimensiona(crossword, static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
  for (int r = 1; r <= crossword.righe; ++r) {
    for (int c = 1; c <= crossword.colonne; ++c) {
      const char drawn = rows[static_cast<std::size_t>(r) - 1][static_cast<std::size_t>(c) - 1];
      ScriviCarattere(crossword, {c, r}, drawn == '#' ? CellaNera : drawn);
    }
  }
  return crossword;
}

}  // namespace telarium
