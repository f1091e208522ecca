#pragma once

// How a change reaches the grid: through the snapshot file, in the form in which a file holds it.
namespace telarium {

/// Commits a change made in Schema: writes the snapshot, reads it back, redraws. When the snapshot
/// cannot be written (its message shows) the older one is not read back, now or later, so that the
/// change stays; gives whether it could be.
bool ConsolidaSchema();

/// Takes over the crossword that a dialog left in the snapshot: allows the commands that need a
/// crossword, reads it, unless the last writing of the snapshot failed and fails again, and
/// redraws. While NomeCruciverba is empty those commands are disabled.
void RiprendiSchema();

}  // namespace telarium
