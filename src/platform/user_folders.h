#pragma once

#include "platform/files.h"

// Where the programs of a user keep their things.
namespace telarium {

/// $XDG_DATA_HOME/telarium, or ~/.local/share/telarium: what must not be lost. Like the next two
/// an absolute path, which may not exist; empty when it cannot be formed.
Percorso CartellaDatiUtente();

/// $XDG_CACHE_HOME/telarium, or ~/.cache/telarium: what can be made anew at any time.
Percorso CartellaCacheUtente();

/// $XDG_STATE_HOME/telarium, or ~/.local/state/telarium: what the programs remember from one run to
/// the next, as the history of crosswords.
Percorso CartellaStatoUtente();

/// Makes a folder with all above it, for the user alone where they were missing. The system's
/// error, 0 also when it was there.
std::error_code CreaCartellaPrivata(const Percorso& cartella);

}  // namespace telarium
