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

/// What the store has of a word and a clue.
enum class Presenza { Assente, SenzaDefinizione, ConDefinizione };
Presenza PresenzaDi(Enciclopedia& enciclopedia, std::string_view parola,
                    std::string_view definizione);

/// Adds a row for a word that has none; else appends the clue to the easy family of its first row,
/// unless it occurs there. What was stored is counted. One step: two programs that merge at once
/// double nothing.
void UnisciDefinizione(Enciclopedia& enciclopedia, std::string_view parola,
                       std::string_view definizione, ContoFusioni& conto);

/// The closing report of a run of merges: its first line, then the counts.
std::string TestoFusioni(std::string_view inizio, const ContoFusioni& conto);

/// What a command on many clues has to say at its end.
struct RapportoDefinizioni {
  std::string testo;     // the report as it is told in any case
  std::string nonFatto;  // what was not read or stored, and the cause; empty when all was

  /// Both, for a message.
  std::string Intero() const;
};

/// What failed in a run that goes on after an error: how often, and the first cause.
class ContoErrori {
 public:
  void Aggiungi(const ErroreEnciclopedia& errore);

  /// The number, `uno` or `molti` behind it, and the cause; empty without errors.
  std::string Testo(std::string_view uno, std::string_view molti) const;

 private:
  int quanti_ = 0;
  std::string causa_;
};

}  // namespace telarium
