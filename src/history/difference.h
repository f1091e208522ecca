#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/cruciverba.h"

// A crossword as bytes on top of another one: the rows, the columns of clues and of colours that
// they do not share, so that a step of one cell takes some hundred bytes. An empty crossword as the
// first one makes it whole. The same bytes on every machine.
namespace telarium {

/// What turns the first crossword into the second; empty when they are equal.
std::string DifferenzaTra(const Cruciverba& prima, const Cruciverba& dopo);

/// The second one from the first and the difference; none when the bytes are no difference, or one
/// that leads past the limits of a crossword.
std::optional<Cruciverba> ConDifferenza(const Cruciverba& prima, std::string_view differenza);

}  // namespace telarium
