#pragma once

#include <optional>
#include <string>
#include <string_view>

// What the clue editor and the table view ask of a word that the user has typed.
namespace telarium {

/// Clues of a grid are typed up to this length; those from elsewhere may be longer.
inline constexpr int MaxCaratteriDefinizione = 60;

/// Whether a typed word may take the place of one of that length: exactly so many characters, each
/// a capital from A to Z or "." for an empty cell. What is wrong has been told.
bool ParolaAccettata(std::string_view testo, int lunghezza);

/// Tells that a typed clue holds what the code page, and so the file of a crossword, cannot write.
void AvvisaDefinizioneNonScrivibile();

/// The two families of a word; a null one is empty.
struct Famiglie {
  std::string facili;
  std::string difficili;
};

/// A typed word as it is looked up: in capitals, without blanks at its ends.
std::string ParolaDaCercare(std::string_view testo);

/// The families of exactly this word; none when the encyclopedia does not have it. An error of the
/// store is thrown.
std::optional<Famiglie> LeggiFamiglie(std::string_view parola);

/// Looks the typed word up in the encyclopedia, by ParolaDaCercare. None, with its message shown,
/// for a word with a "." or of fewer than 2 characters (`incompleta` is that message), one that is
/// not there (with a beep), and an error of the store.
std::optional<Famiglie> CercaFamiglie(std::string_view testo, std::string_view incompleta);

/// Hands a text to the user's word processor in a new document. Without one nothing happens.
void ChiediAWord(std::string_view testo);

}  // namespace telarium
