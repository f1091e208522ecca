#pragma once

// How a change of the document reaches the snapshot and the window.
namespace telarium {

/// Commits a change of the document: writes the snapshot and redraws. When the snapshot cannot be
/// written (its message shows) the change stays all the same; gives whether it could be.
bool ConsolidaSchema();

/// Shows the document anew: allows the commands that need a crossword, takes over what another
/// program has left in the snapshot, and redraws. While NomeCruciverba is empty those commands are
/// disabled.
void RiprendiSchema();

}  // namespace telarium
