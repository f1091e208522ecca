#pragma once

#include <string>

#include "model/crossword_file.h"
#include "platform/text.h"

namespace telarium {

/// The marker line of a save block, with its end.
inline constexpr std::string_view MarkerLine =
    "<!-- CODICE HTML SALVATAGGIO - Telarium Versione 7 - Non modificare o cancellare queste righe "
    "di commenti sottostanti ####\r\n";

/// A page with these lines in its save block.
inline std::string PageOf(std::string_view block) {
  return Unisci("<html><head><title>Telarium - prova </title></head>\r\n", MarkerLine, block,
                " FINE CODICE HTML SALVATAGGIO -->\r\n<script Language=\"JavaScript\">\r\n",
                "var x= 0;\r\n</script></body></html>\r\n");
}

/// The page of the current crossword.
inline std::string CrosswordPage() {
  return PageOf(TestoDelCruciverba().value());
}

}  // namespace telarium
