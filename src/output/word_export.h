#pragma once

#include "platform/files.h"

// The crossword for a word processor: as the table page, or as a picture and texts that a document
// beside the program takes in.
namespace telarium {

/// Menuhtmlword: writes the table page and opens it in the word processor, if there is one.
void EsportaInWord();

/// Opens telarium_html.html of the program folder in the word processor. Without one nothing
/// happens.
void AperturaWord();

/// Writes the lists of clues into a folder, as plain text in NONOME.TXT and as a page in
/// NONOME.html: both, or what was there stays. A failure has been told.
[[nodiscard]] bool ScriviTestiNonome(const Percorso& cartella);

/// menuwpic: writes NONOME.BMP, with the letters, NONOME.TXT and NONOME.html into the program
/// folder, all three or none, and opens the document that takes them in. A failure is told. Without
/// a grid nothing happens.
void EsportaInWordConPicture();

}  // namespace telarium
