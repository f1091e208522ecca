#pragma once

#include <string>

namespace telarium {

/// Takes a typeface, italic and bold into use: NomeFont, the printer and the main window's surface.
/// When the printer refuses the typeface, or there is none, one message tells so and the typeface
/// becomes Arial everywhere; italic and bold are set all the same.
void ApplicaCarattere(const std::string& nome, bool corsivo, bool grassetto);

}  // namespace telarium
