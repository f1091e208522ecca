#pragma once

#include <vector>

#include "composer/lattice.h"

// Slots in the order in which they are met from a centre outward, so that each beginning of it is a
// region without holes: the sort of part that is impossible by itself.
namespace telarium {

/// `centro` and behind it the other ones of `slot`. The more of its cells are crossed by those
/// before it the sooner a slot comes, and the fewer crossings it is away from the centre.
std::vector<int> VersoFuori(const Reticolo& reticolo, const std::vector<int>& slot,
                            const std::vector<int>& centro);

}  // namespace telarium
