#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "telar/command.h"

// The files that the command line names.
namespace telarium::telar {

/// Opens a crossword as the desktop does at its start: a missing file ends the program. False when
/// it could not be taken, which has been told.
bool Apri(const std::string& file);

/// Writes the crossword as the result of the command.
Stato Scrivi(const std::string& uscita);

/// Reads a list of at most `massimo` bytes; none when that has failed, told by what the list is
/// called.
std::optional<std::string> LeggiLista(std::string_view nomeDellaLista, const Percorso& file,
                                      std::size_t massimo);

}  // namespace telarium::telar
