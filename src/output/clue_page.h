#pragma once

#include "output/page_text.h"

namespace telarium {

/// The body of a page without a grid of its own, from the typeface to the end: both lists of clues
/// as running text, with that many underscores for a missing clue, and what the sheet ends with.
void ScriviCorpoDiDefinizioni(TestoDiPagina& pagina, std::size_t trattini);

}  // namespace telarium
