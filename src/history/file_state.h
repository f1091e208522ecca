#pragma once

#include "model/documento.h"

namespace telarium {

/// Whether a save would change what the file of the crossword holds: a clue where no word starts,
/// which is in no file, makes no difference. For one that was never saved, whether it is another
/// one than it began as.
bool DiversoDalFile(const Cruciverba& cruciverba, const FileDelCruciverba& file);

}  // namespace telarium
