#pragma once

#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

#include "clues/coverage.h"
#include "laboratory/word_selection.h"
#include "telar/arguments.h"

// The options on words, which the commands of the laboratory share.
namespace telarium::telar {

/// "--lessico", for commands that take no other of them.
extern const Opzione OpzioneLessico;

/// All of them, and behind them those of a command.
std::vector<Opzione> ConOpzioniParole(std::vector<Opzione> opzioni);

/// What they choose. None, told, when a file that they name cannot be read or they contradict each
/// other; throws ArgomentiErrati for a value that an option does not have.
std::optional<SceltaParole> LeggiSceltaParole(const Argomenti& argomenti);

/// The layers that "--lessico" names.
std::vector<Percorso> LeggiLessici(const Argomenti& argomenti);

/// Where the lexicons of this process lie.
LuoghiLessico LuoghiDeiLessici();

/// Which words have clues in the encyclopedia of the program folder. None, told, when it cannot be
/// read: then no word has one. None, not told, when `ferma` has broken the reading off.
std::shared_ptr<const Copertura> PreparaCopertura(const std::stop_token& ferma);

/// The lexicon of a choice. None, told, when a layer cannot be had; what a list has beside words is
/// told too.
std::optional<Lessico> PreparaLessico(const SceltaParole& scelta);

}  // namespace telarium::telar
