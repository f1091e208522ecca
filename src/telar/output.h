#pragma once

#include <initializer_list>
#include <string_view>

namespace telarium::telar {

/// Prints one line of results on standard output in UTF-8, the fields (in the code page) separated
/// by TAB. A TAB or a character of a line break inside a field becomes a blank.
void StampaCampi(std::initializer_list<std::string_view> campi);

/// Whether nobody reads standard output any more, as behind `| head`.
bool LettoreAndato();

/// "O" or "V"; nothing for no direction.
std::string_view Sigla(int direzione);

}  // namespace telarium::telar
