#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/crossword_file.h"
#include "platform/files.h"
#include "platform/surface.h"

namespace telarium {

/// A crossword file as far as a preview shows it.
struct AnteprimaCruciverba {
  std::string autoreDataTipo;  // joined by " - "
  std::string dimensioni;      // as the file has it: "15x13"
  Dimensioni misure;
  std::vector<std::string> caselle;  // a text per row, a character per cell; rows can be short
};

/// Reads a crossword file for a preview; none, told, when it cannot be shown. Nothing of the open
/// crossword changes. Texts of the file are cut to what a window can show.
std::optional<AnteprimaCruciverba> LeggiAnteprima(const Percorso& file);

/// Draws a preview alone on a surface, black cells in the colours that the open crossword has at
/// these places.
void DisegnaAnteprima(const AnteprimaCruciverba& anteprima, Superficie& superficie);

}  // namespace telarium
