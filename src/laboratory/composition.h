#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "composer/composer.h"
#include "laboratory/composer_words.h"
#include "laboratory/word_selection.h"
#include "model/cruciverba.h"
#include "model/derivation.h"

// From a crossword and what a person demands to a problem for the composer, and back.
namespace telarium {

/// A rectangle of cells, both corners in it.
struct Regione {
  Casella prima;
  Casella ultima;

  bool Contiene(Casella casella) const {
    return casella.colonna >= prima.colonna && casella.colonna <= ultima.colonna &&
           casella.riga >= prima.riga && casella.riga <= ultima.riga;
  }
};

/// Letters that the word beginning at a place must have: one a cell, '.' for any.
struct MascheraDiParola {
  InizioDiParola inizio;
  std::string maschera;
};

/// What a person demands of a fill.
struct SceltaComposizione {
  SceltaParole parole;
  InsiemeDiParole volute = {};  // folded
  bool daCapo = false;          // the letters of the crossword are dropped first
  std::optional<Regione> regione = {};
  std::vector<MascheraDiParola> maschere = {};
  std::optional<int> straniere = {};  // the most entries of the kind
  std::optional<int> due = {};        // the most entries of two letters
};

/// A crossword as a problem, and how the two hang together.
struct Composizione {
  Cruciverba cruciverba;  // as it is to be filled: without its letters when they are dropped
  Derivati griglia;
  Problema problema;
  std::vector<Casella> caselle;      // of the problem, by number
  std::vector<telarium::Slot> slot;  // likewise
  /// Entries of two letters beyond the demanded number, which alone make it impossible; empty
  /// otherwise.
  std::vector<telarium::Slot> dueDiTroppo;
  std::vector<std::string> proprie;  // words that stand, or are wanted, and are in no layer
};

/// The problem of a crossword. None when demands contradict each other on their face: `messaggio`
/// says which, in one Italian sentence. `copertura` may be null. `pronto` is a vocabulary of the
/// same choice of words, lexicon and coverage, which is taken if it will do; null: none.
std::optional<Composizione> PreparaComposizione(const Cruciverba& cruciverba,
                                                const SceltaComposizione& scelta,
                                                const Lessico& lessico, const Copertura* copertura,
                                                std::string& messaggio,
                                                const VocabolarioPronto* pronto = nullptr);

/// The letters that stand in a slot or are demanded of it, CellaVuota for a free cell.
std::string LettereChieste(const Composizione& composizione, const Slot& slot);

/// In one Italian sentence of which length more words are wanted than there are places for, and how
/// many; empty where all lengths have enough.
std::string TroppeVolute(const Composizione& composizione);

/// The vocabulary of a composition's choice with the words of all lengths that its grid, and one
/// with other blacks in it, may have.
VocabolarioPronto VocabolarioPerVarianti(const Composizione& composizione,
                                         const SceltaParole& scelta, const Lessico& lessico,
                                         const Copertura* copertura);

/// The crossword with the letters of an answer, CellaVuota where it has none. A word that stays
/// keeps its clue, the others lose theirs; the author's own words of the fill are among its own
/// words.
Cruciverba ConLettere(const Composizione& composizione, const std::string& lettere);

}  // namespace telarium
