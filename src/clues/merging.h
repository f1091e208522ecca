#pragma once

#include <string>
#include <string_view>

#include "clues/encyclopedia.h"

// The one rule by which clues come into the encyclopedia, from a grid or from a file: into the easy
// families; the hard ones are neither looked at nor written.
namespace telarium {

/// Whether a word and a clue, without blanks at their ends, make a pair: neither is empty, and the
/// word holds no blank, "-", ",", "." or "'".
bool CoppiaAmmessa(std::string_view parola, std::string_view definizione);

/// How often a run of merges has changed the store.
struct ContoFusioni {
  int parole = 0;       // rows added
  int definizioni = 0;  // clues appended to rows that were there
};

/// Appends a clue to the easy family of the current row unless it occurs there, and counts it.
void UnisciAllaRiga(Enciclopedia& enciclopedia, std::string_view definizione, ContoFusioni& conto);

/// Adds a row for a word that has none, and counts it; else as UnisciAllaRiga.
void UnisciDefinizione(Enciclopedia& enciclopedia, std::string_view parola,
                       std::string_view definizione, ContoFusioni& conto);

/// The closing report of a run of merges: its first line, then the counts.
std::string RapportoFusioni(std::string_view inizio, const ContoFusioni& conto);

}  // namespace telarium
