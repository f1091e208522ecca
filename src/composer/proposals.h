#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "composer/composer.h"

// Several fills of one problem to choose from.
//
// Two of them differ enough when at most half of their entries are the same word in the same slot.
// Slots whose letters are all given do not count, nor one where the same wanted word stands in
// both. Another seed mostly does it. Where it does not, the letter that a former fill has is taken
// from some cells, which lie so that half of its slots are bound to get another word.
namespace telarium {

/// Whether two fills of a problem differ enough.
bool AbbastanzaDiversi(const Problema& problema, const std::string& uno, const std::string& altro);

/// The problem with letters taken from cells, so that each of its fills, which all are fills of the
/// problem too, differs enough from a former one. None where too few cells can differ. The seed
/// decides which cells.
std::optional<Problema> Diverso(Problema problema, const std::string& precedente,
                                std::uint64_t seme);

/// The seed of a proposal, from 0, which is that of the first one itself.
std::uint64_t SemeDiProposta(std::uint64_t seme, int numero);

/// Makes of a problem, which is the whole one or one that asks more, a fill as good as is wanted.
using FaProposta = std::function<Riempimento(const Problema& problema, const Limiti& limiti)>;

/// Up to `quante` fills, any two of which differ enough, each made by `fa` with a seed of its own.
/// The first one is what `fa` gives for the problem and `limiti`, also when that is no fill: it
/// stands alone then. Those after it may be fewer than wanted: there is no other fill, or none was
/// found in a few trials. `limiti.passi` are those of all together.
std::vector<Riempimento> Proponi(const Problema& problema, int quante, const Limiti& limiti,
                                 const FaProposta& fa);

/// The usual `fa`: fills, and improves by so many windows.
FaProposta RiempiEMigliora(std::int64_t finestre);

}  // namespace telarium
