#pragma once

#include <string_view>

#include "platform/files.h"

// What the output commands make: files of the program folder, which each run writes over.
namespace telarium {

/// The file of exactly that name in the program folder, by which other programs know it. One whose
/// letters differ in case is another file.
Percorso FileDiUscita(const Percorso& nome);

/// Writes a whole file. A failure shows the message of the output commands, leaves the old file and
/// gives false.
[[nodiscard]] bool ScriviUscita(const Percorso& file, std::string_view contenuto);

/// Tells that a file could not be read or written, and why.
void AvvisaErroreDiUscita(const Percorso& file, std::string_view causa);
void AvvisaErroreDiUscita(const Percorso& file, const std::error_code& errore);

/// Opens a file with the program that the user has for it, or says that it cannot be opened.
void ApriUscita(const Percorso& file);

}  // namespace telarium
