#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "laboratory/entries.h"
#include "laboratory/figures.h"
#include "laboratory/word_selection.h"
#include "model/cruciverba.h"

// Whether a crossword is fit for print, and its figures.
namespace telarium {

/// What can be wrong, in the order in which it is told: faults, then warnings.
enum class Codice {
  Inesistente,          // with an empty cell or a sign, or in no list of words
  Ripetuta,             // an entry twice
  Regola,               // against the rules, one too many of a kind, or under the least score
  Separate,             // cells that do not hang together with the rest
  SenzaDefinizione,     // an entry without a clue
  DefinizioneRipetuta,  // the same clue twice, capitals and punctuation aside
  DefinizioneRivela,    // a clue with its answer, something akin to it, or another entry
  Vietata,              // a banned entry
  DefinizioneVietata,   // a banned word in a clue
  DefinizioneLunga,     // a clue over 60 characters
  PrimoAvviso,
  LemmaRipetuto = PrimoAvviso,  // two forms of one lemma
  TrattoComune,                 // two entries that share five letters in a row
  Rare,                         // a rare entry beyond one in ten
  SchemaRipetuto,               // a third clue of one pattern
  Riempitiva,                   // a filler clue
  DefinizioneOltre,             // a clue over the wished length
  CellaSola,                    // a cell in one word only
  DueLettere,                   // entries of two letters over 15 %
  IncrocioDuro,                 // two rare entries that cross
};

/// "inesistente", "ripetuta" ...
std::string_view NomeDi(Codice codice);
constexpr bool Errore(Codice codice) {
  return codice < Codice::PrimoAvviso;
}

/// A fault or a warning. Its place is the first cell of an entry and its direction; or a cell, with
/// direction 0; or, for the crossword as a whole, none: column and row 0. Of two entries it is the
/// later one, which is the one to be changed; of two that cross the horizontal one.
struct Rilievo {
  Codice codice;
  Casella inizio;
  int direzione = 0;
  std::string testo;  // one Italian sentence in the code page: what, and why
};

/// In reading order, at a place by direction and then by code; what has no place comes first.
struct Verdetto {
  std::vector<Rilievo> errori;
  std::vector<Rilievo> avvisi;
  std::vector<Cifra> cifre;

  bool Stampabile() const { return errori.empty(); }
};

Verdetto Controlla(const Cruciverba& cruciverba, const Criteri& criteri);

/// The criteria of what a person has chosen. The coverage must outlive them.
Criteri CriteriDi(const SceltaParole& scelta, Lessico lessico, const Copertura* copertura);

}  // namespace telarium
