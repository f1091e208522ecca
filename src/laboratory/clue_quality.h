#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Clues as texts: their words, how much they say, how they open. Clues are in the code page.
namespace telarium {

/// A word of a clue: a run of letters and digits. An apostrophe ends it.
struct ParolaDiDefinizione {
  std::string_view testo;  // as it stands, a view of the clue
  std::string piegata;     // in capitals, without accents
};

/// The words of a clue in their order.
std::vector<ParolaDiDefinizione> ParoleDi(std::string_view definizione);

/// Where the words of a text stand in a row among those of a clue.
std::optional<std::size_t> Cerca(const std::vector<ParolaDiDefinizione>& definizione,
                                 const std::vector<ParolaDiDefinizione>& cercate);

enum class QualitaDefinizione {
  Buona,
  Debole,      // a single synonym
  Riempitiva,  // says no more than the kind of the word, as "Esclamazione"
};
QualitaDefinizione QualitaDi(std::string_view definizione);

/// How a clue opens: two clues of the same key have the same pattern.
struct SchemaDefinizione {
  std::string chiave;
  std::string apertura;  // as a person reads it
};
/// None for a clue of fewer than three words that is no letter play.
std::optional<SchemaDefinizione> SchemaDi(std::string_view definizione);

/// Whether two folded words begin with the same five letters, and that not for a common prefix.
bool StessaRadice(std::string_view una, std::string_view altra);

}  // namespace telarium
