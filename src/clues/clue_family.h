#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <vector>

#include "model/table.h"

// A family: any number of clues in one text, separated by a carriage return and a line feed.
namespace telarium {

inline constexpr std::string_view SeparatoreDefinizioni = "\r\n";

/// Which of the two families of a word are meant.
enum class QualiDefinizioni { Tutte, Facili, Difficili };

/// A text with each of its line ends, of one or two characters, as that separator.
std::string ConSeparatori(std::string_view testo);

/// All parts of a family in order, blank ones too; an empty family is one empty part. The parts are
/// views of the text.
std::vector<std::string_view> PartiDellaFamiglia(std::string_view famiglia);

/// The clues of a family in order: its parts but for those that are empty or all blanks.
std::vector<std::string_view> DefinizioniDellaFamiglia(std::string_view famiglia);

/// How many clues a family has, in the code page or in UTF-8.
int ContaDefinizioni(std::string_view famiglia);

// The parts of a text that is about to go would be views of nothing.
template <std::same_as<std::string> Temporaneo>
void PartiDellaFamiglia(Temporaneo&& famiglia) = delete;
template <std::same_as<std::string> Temporaneo>
void DefinizioniDellaFamiglia(Temporaneo&& famiglia) = delete;

inline constexpr int MaxDefinizioni = 1000;
/// The clues that spezzatesto has found, from entry 1; the entry behind the last one is empty.
extern Tabella<std::string, Indici<1, MaxDefinizioni>> ElencoDefinizioni;

/// Splits a family into ElencoDefinizioni, without its blank parts. `testo` gets the number of
/// clues in digits. Those behind the 1,000th have no room and are left out.
void spezzatesto(std::string& testo);

}  // namespace telarium
