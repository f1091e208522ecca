#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/surface.h"

namespace telarium {

inline constexpr int MaxModelli = 12;       // that a window shows; there are no places for more
inline constexpr int MaxRigheModello = 20;  // that a preview shows of one

/// Draws the first models of a file, one on each surface, and empties the other surfaces. Gives the
/// names of the models that were drawn, "Telar " and the size; empty for one without rows. A file
/// that is missing or unreadable is told; a model that is none ends the program.
std::vector<std::string> MostraModelli(const Percorso& fileModelli,
                                       std::span<Superficie* const> figure);

}  // namespace telarium
