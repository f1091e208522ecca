#pragma once

#include <optional>
#include <string>
#include <string_view>

// The lines of word lists, ours and those of other programs.
namespace telarium {

/// How a list is written.
enum class Codifica { Utf8, CodePage };

/// UTF-8 when more of the characters beyond ASCII are sound sequences of it than are not, or when
/// there are none: Italian texts in the code page hold no such sequence but by chance, and a list
/// in UTF-8 may have a broken line.
Codifica CodificaDi(std::string_view testo);

/// Whether a text is in UTF-16, or none at all.
bool InUtf16(std::string_view testo);

/// A spelled form of a list as a word, and in the code page; it is empty when the code page cannot
/// write it.
std::optional<std::string> PiegaGrafia(std::string_view grafia, Codifica codifica);
std::string GrafiaNellaCodePage(std::string_view grafia, Codifica codifica);

/// Without the blanks and tabs at the two ends.
std::string_view Ritagliato(std::string_view testo);

/// A field of a line: without the blanks at its ends, and without quotation marks around it.
std::string_view Campo(std::string_view testo);

/// Takes the next field off a line, the separator behind it too.
std::string_view StaccaCampo(std::string_view& riga, char separatore);

/// Whether a line holds nothing: it is blank, or a comment that begins with "#".
bool RigaVuota(std::string_view riga);

/// A score from 0 to 100; none for any other text.
std::optional<int> InterpretaPunteggio(std::string_view campo);

}  // namespace telarium
