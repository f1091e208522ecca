#pragma once

#include <optional>
#include <vector>

#include "laboratory/composition.h"
#include "telar/arguments.h"

// The options of `componi` that say what of a crossword is to be filled, and with what.
namespace telarium::telar {

const std::vector<Opzione>& OpzioniDomanda();

/// What they demand, with the options on words. None, told, where LeggiSceltaParole gives none;
/// throws ArgomentiErrati for a value that an option does not have.
std::optional<SceltaComposizione> LeggiSceltaComposizione(const Argomenti& argomenti);

}  // namespace telarium::telar
