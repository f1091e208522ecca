#pragma once

#include <string>

#include "platform/files.h"

// The crossword as the main window shows it, as a picture file.
namespace telarium {

/// What of the main window a picture shows: its whole drawing surface, bars' bands included, or the
/// grid with its frame alone.
enum class Inquadratura { Finestra, Schema };

/// The crossword on white ground, without its letters if so wanted, in its real size, as the bytes
/// of a Windows bitmap. The window shows the grid as before then; a print preview is left for good.
/// Wants a grid.
std::string BitmapSuBianco(bool senzaSoluzioni, Inquadratura inquadratura = Inquadratura::Finestra);

/// Writes such bytes. A failure shows the message of the output commands and gives false.
[[nodiscard]] bool ScriviPicture(const Percorso& file, const std::string& bitmap);

/// MenuSaveWMF: asks for a file name, taken in the program folder unless it says another one,
/// whether the grid alone is wanted, and whether an older file shall go; writes the picture there
/// and opens it in the user's program.
void SalvaPicture();

}  // namespace telarium
