#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "dictionary/dictionary.h"
#include "fill/fill_grid.h"
#include "model/boolean.h"

// How the fill gets a word for one slot. A pattern is a text of as many characters as the slot has
// cells: a letter, or a blank for an empty cell.
namespace telarium {

/// A source of chance: each call gives a number from 0 on, below 1.
using Caso = std::function<double()>;

/// What ProvaIncroci found.
struct EsitoIncroci {
  bool passati = true;
  bool letti = true;     // false: the dictionary could not be read
  std::string incrocio;  // the crossing word that was tested last, or that failed
};

class SceltaDiParole {
 public:
  /// The dictionary must outlive it.
  SceltaDiParole(const Dizionario& dizionario, Caso caso)
      : dizionario_(dizionario), caso_(std::move(caso)) {}

  /// Takes as candidates the words of the dictionary that fit the pattern. An all-blank pattern
  /// takes no word with a Q or an H. False for a length that no dictionary holds, and when the
  /// dictionary cannot be read: see Errore.
  [[nodiscard]] bool CercaCandidati(std::string_view modello);

  std::int16_t NumCandidati() const { return numCandidati_; }
  /// The word number of a candidate, which are in the order of the section, from 1 on.
  std::int16_t Candidati(int posto) const { return candidati_(posto); }

  /// Draws one of the candidates, of which there must be at least one, and reads it. Empty when the
  /// dictionary cannot be read.
  std::string EstraiParola(int lunghezza);

  /// Tests the complete words that cross the slot's cells as the grid stands: each of 3 or more
  /// letters must be in the dictionary. Stops at the first that is not. The slot's own word takes
  /// no part.
  EsitoIncroci ProvaIncroci(const GrigliaInEstrazione& griglia, const Slot& slot);

  /// -1 when at least one word of the dictionary fits the pattern, in which "." is a blank too;
  /// else 0, as for every pattern of a length that no dictionary holds.
  Booleano16 ParolaEsiste(std::string_view modello);

  /// One of the 21 letters of the Italian alphabet, at random.
  char LetteraCasuale();

  /// Why the last call that failed did so, for the user.
  const std::string& Errore() const { return errore_; }

 private:
  using Distanze = Tabella<std::int16_t, Indici<0, MaxColonne>>;

  std::optional<bool> Esiste(std::string_view modello);

  const Dizionario& dizionario_;
  Caso caso_;
  std::string errore_;
  /// Room for all words that a section can number.
  Tabella<std::int16_t, Indici<1, MaxParole>> candidati_{"Candidati"};
  std::int16_t numCandidati_ = 0;
  /// For letter k of a horizontal slot: how many cells up, the cell itself counting as 1, the
  /// crossing run begins; DistanzaSinistra the same to the left for a vertical slot.
  Distanze DistanzaSu{"DistanzaSu"};
  Distanze DistanzaSinistra{"DistanzaSinistra"};
};

/// A copy of the pattern with "." in place of each blank.
std::string MascheraPunti(std::string_view modello);

}  // namespace telarium
