#pragma once

#include <functional>

#include "composer/composer.h"

// Makes a fill better: frees the cells of a small window round a poor entry, fills it anew by the
// words of most worth together, and again elsewhere.
//
// The poor word itself mostly may not come back, and the window may then lose some worth: so the
// fill leaves places where no single window makes it better, and the best fill on the way counts.
// In all this a word's worth above `PregioAbbastanza` (refill.cpp) counts half: what is raised is
// first the share of good words, then how good they are. Cells that are given, left, or hold a
// wanted word stay as they are.
namespace telarium {

/// The worth of a fill: the sum of Vocabolario::Pregio over its slots, open ones left out.
std::int64_t PregioDi(const Problema& problema, const std::string& lettere);

/// Frees `finestre` windows of a fill, which must be without faults, one after the other. Gives the
/// best fill that was met, which is the one that came where nothing is better, and never one of
/// less worth; its `passi` counts those of all windows. Its `esito` is Tempo when `limiti.ferma`
/// broke it off (the fill is whole all the same), else Riempito, also where `limiti.passi` were
/// used up before. `avanzamento` may be empty: it is called every few windows with the windows done
/// and the best fill, in the caller's thread. Seed, windows and fill decide, never the clock; one
/// thread does it all.
Riempimento Migliora(const Problema& problema, const std::string& lettere, std::int64_t finestre,
                     const Limiti& limiti,
                     const std::function<void(std::int64_t, const std::string&)>& avanzamento = {});

}  // namespace telarium
