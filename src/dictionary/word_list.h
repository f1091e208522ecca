#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/dictionary_format.h"

// Plain word lists, from which dictionaries are built.
namespace telarium {

/// The largest list that is read; lists are held in memory, and this is far above any of 13 full
/// sections.
inline constexpr std::size_t MaxByteListaDiParole = 64u << 20;

/// Words by their length less 3.
using ListeDiParole = std::array<std::vector<std::string>, MaxLunghezza - MinLunghezza + 1>;

/// The capitals from A to Z that a letter is written with when it loses its accent; an empty text
/// for an accent that is a character of its own. None for what is no letter.
std::optional<std::string_view> PiegaCarattere(char32_t carattere);

/// A word in UTF-8 in capitals, accents folded ("È" to "E", "Œ" to "OE"). None for one with any
/// other character than A to Z then.
std::optional<std::string> PiegaParola(std::string_view utf8);

/// Takes a list in UTF-8, one word a line, to `liste`, each as PiegaParola gives it. What it
/// refuses, and a word of a length outside 3 to 15, is left out.
void AggiungiLista(std::string_view utf8, ListeDiParole& liste);

/// Sorts each list by character code and drops doubled words.
void OrdinaListe(ListeDiParole& liste);

}  // namespace telarium
