#pragma once

#include <string_view>

namespace telarium {

/// The file of the guide in the program folder, a web archive, and its twin for browsers that show
/// none.
inline constexpr const char* FileAiuto = "TELARIUM7.mht";
inline constexpr const char* GemelloAiuto = "TELARIUM7.html";

/// The guide's chapter about one of the program's windows, by the anchor that it has there; the
/// window is meant by its name. Empty for one that no chapter tells of.
std::string_view CapitoloDellaFinestra(std::string_view finestra);

/// Opens the guide, as a web archive or, where nothing shows those, as a web page; at a chapter
/// always as a page. A message where neither can be opened.
void ApriGuida(std::string_view capitolo = {});

}  // namespace telarium
