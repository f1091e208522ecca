#pragma once

#include "editor/settings.h"
#include "platform/surface.h"

// The crossword as the main window shows it, as a picture file.
namespace telarium {

/// The main window shows the grid on white ground for as long as one of these lives, without its
/// letters if so wanted, and then as before. A print preview is left for good. Wants a grid.
class SchemaSuBianco {
 public:
  explicit SchemaSuBianco(bool senzaSoluzioni);
  ~SchemaSuBianco();
  SchemaSuBianco(const SchemaSuBianco&) = delete;
  SchemaSuBianco& operator=(const SchemaSuBianco&) = delete;

 private:
  Colore sfondo_ = ColoreBianco;
};

/// Writes the whole drawing surface of the main window, bars' bands included, in its real size as a
/// Windows bitmap. A failure shows the message of the output commands and gives false.
[[nodiscard]] bool ScriviPicture(const Percorso& file);

/// MenuSaveWMF: asks for a file name, taken in the program folder unless it says another one, and
/// whether an older file shall go; writes the picture there and opens it in the user's program.
void SalvaPicture();

}  // namespace telarium
