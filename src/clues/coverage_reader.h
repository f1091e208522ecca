#pragma once

#include <optional>
#include <stop_token>

#include "clues/clue_kit.h"
#include "clues/coverage_index.h"
#include "platform/files.h"

namespace telarium {

/// An index of the words of a store and how many clues the first row of each has, the kit's among
/// them, in the order of the rows; behind them the words that only the kit has. Words that no
/// search finds are left out. Reads the store in one go, as it is at one moment. Its errors are
/// thrown as ErroreEnciclopedia. None when `ferma` has broken it off.
std::optional<ComposizioneIndice> LeggiVociCopertura(const Percorso& archivio,
                                                     const DefinizioniDelCorredo& corredo,
                                                     const std::stop_token& ferma);

}  // namespace telarium
