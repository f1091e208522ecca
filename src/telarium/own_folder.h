#pragma once

#include <cstddef>

#include "platform/files.h"

namespace telarium {

/// A folder that nobody but this user can enter, for what running programs say to each other: below
/// $XDG_RUNTIME_DIR, else below the system's folder for it, the user's cache folder or the
/// temporary folder, the first one whose name has at most `massimo` bytes. Made when it is missing.
/// Where another user sits on a name, that is passed over. Empty when there is none.
Percorso CartellaPropria(std::size_t massimo);

}  // namespace telarium
