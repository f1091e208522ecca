#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/cruciverba.h"

// A crossword as bytes on top of another one: header, size, rows, clues, colours and what the
// laboratory keeps, each only where the two differ. An empty crossword as the first one makes the
// second whole. The same bytes on every machine. They are parts in any order, each behind its
// letter; numbers and texts are those of history/bytes.h:
//
//   I  header: its lines            L  laboratory: locked words (their number, and for each column,
//   D  size: columns, rows             row, direction), own words, banned words, the symmetry from
//   1 N  how many row lines               on or 0, unknown lines: each list behind its length R  a
//   row line: from 0, text     C  a clue: column, row, direction, text
//                                   K  a colour: column, row, value with its sign
namespace telarium {

/// What turns the first crossword into the second; empty when they are equal.
std::string DifferenzaTra(const Cruciverba& prima, const Cruciverba& dopo);

/// The second one from the first and the difference; none when the bytes are no difference, or one
/// that leads past the limits of a crossword.
std::optional<Cruciverba> ConDifferenza(const Cruciverba& prima, std::string_view differenza);

}  // namespace telarium
