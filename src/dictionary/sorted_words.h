#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Lists of words in alphabetical order. Places in a list count from 0.
namespace telarium {

/// Below, at or above 0 as `a` comes before, with or behind `b` in the order of Italian: letters by
/// the alphabet, whatever their case, behind digits and signs; then a letter without an accent
/// before the one with it, and a capital before the small letter. Only equal texts give 0.
int ConfrontaItaliano(std::string_view a, std::string_view b);

/// The place at which a word goes into a sorted list: behind its equals.
std::size_t PostoPerParola(const std::vector<std::string>& lista, std::string_view parola);

/// Puts words in any order into a sorted list.
void InserisciParole(std::vector<std::string>& lista, std::vector<std::string> parole);

/// The place in a sorted list of a word, letter by letter the same; none when it is not there.
std::optional<std::size_t> PostoDellaParola(const std::vector<std::string>& lista,
                                            std::string_view parola);

/// The place of the first word of a sorted list that does not come before a text: the first one
/// that begins with it in capitals, if there is one. The size of the list when all come before.
std::size_t PrimoPostoDa(const std::vector<std::string>& lista, std::string_view inizio);

}  // namespace telarium
