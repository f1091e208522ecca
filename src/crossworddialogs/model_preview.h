#pragma once

#include <string>
#include <vector>

#include "crossworddialogs/model_file.h"
#include "platform/files.h"
#include "platform/surface.h"

namespace telarium {

inline constexpr int MaxModelli = 12;       // that a window shows; there are no places for more
inline constexpr int MaxRigheModello = 20;  // that a preview shows of one

/// The first models of a file, as many as a window shows. A file that is missing or unreadable is
/// told and gives none; a model that is no such thing ends the program.
std::vector<Modello> ModelliDaMostrare(const Percorso& fileModelli);

/// "Telar " and the size; empty for a model without rows, which nobody can begin with.
std::string NomeDelModello(const Modello& modello);

/// Draws a model alone on a surface; nothing of one without rows.
void DisegnaModello(const Modello& modello, Superficie& superficie);

}  // namespace telarium
