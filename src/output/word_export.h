#pragma once

#include <string>

#include "platform/files.h"

// The crossword for a word processor: as the table page, or as a picture and texts that a document
// beside the program takes in.
namespace telarium {

/// Menuhtmlword: writes the table page and opens it in the word processor, if there is one.
void EsportaInWord();

/// Opens telarium_html.html of the program folder in the word processor. Without one nothing
/// happens.
void AperturaWord();

/// Both lists of clues as plain text, one line each: what NONOME.TXT holds.
std::string TestoNonome();

/// Both lists of clues as a page: what NONOME.html holds.
std::string PaginaNonome();

/// Writes NONOME.TXT and NONOME.html into a folder. A failure has been told.
[[nodiscard]] bool ScriviTestiNonome(const Percorso& cartella);

/// menuwpic: writes NONOME.BMP, with the letters, NONOME.TXT and NONOME.html into the program
/// folder and opens the document that takes them in. A failure is told. Without a grid nothing
/// happens.
void EsportaInWordConPicture();

}  // namespace telarium
