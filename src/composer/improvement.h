#pragma once

#include <functional>

#include "composer/composer.h"

// Makes a fill better: frees the cells of a small window at a poor entry, fills it anew so that the
// sum of the words' worth rises, and again elsewhere.
namespace telarium {

/// The worth of a fill: the sum of Vocabolario::Pregio over its slots.
std::int64_t PregioDi(const Problema& problema, const std::string& lettere);

/// Frees `finestre` windows of a fill one after the other. Gives the best fill that was met, which
/// is the one that came where nothing is better; its `passi` counts those of all windows and says
/// `esito` Tempo when `limiti.ferma` broke it off (the fill is whole all the same). `avanzamento`
/// may be empty: it is called now and then with the windows done and the best fill, in the caller's
/// thread. Seed, windows and fill decide, never the clock or the number of workers.
Riempimento Migliora(const Problema& problema, const std::string& lettere, std::int64_t finestre,
                     const Limiti& limiti,
                     const std::function<void(std::int64_t, const std::string&)>& avanzamento = {});

}  // namespace telarium
