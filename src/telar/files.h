#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "dictionary/dictionary.h"
#include "model/cruciverba.h"
#include "platform/files.h"
#include "telar/command.h"

// The files that the command line names.
namespace telarium::telar {

/// Opens a crossword as the desktop does at its start: a missing file ends the program. False when
/// it could not be taken, which has been told.
bool Apri(const std::string& file);

/// Writes the document, or another crossword, as the result of the command.
Stato Scrivi(const std::string& uscita);
Stato Scrivi(const Cruciverba& cruciverba, const std::string& uscita);

/// Opens a dictionary of the program folder: a missing one ends the program. None when it cannot be
/// read, which has been told.
std::optional<Dizionario> ApriDizionario(const std::string& nome = DizionariDiSistema[0]);

/// Reads a list of at most `massimo` bytes; none when that has failed, told by what the list is
/// called.
std::optional<std::string> LeggiLista(std::string_view nomeDellaLista, const Percorso& file,
                                      std::size_t massimo);

}  // namespace telarium::telar
