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
  for (std::size_t r = 0; r < rows.size(); ++r) {
    std::string line;
    for (const char drawn : rows[r])
      line += drawn == '#' ? std::string(2, CellaNera) : std::string{drawn, CellaVuota};
    crossword.griglia[r] = line;
  }
  return crossword;
}

}  // namespace telarium
