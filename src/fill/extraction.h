#pragma once

#include "model/state.h"

namespace telarium {

/// The check mark of MenuInf: at a dead end the fill starts again by itself.
extern Booleano16 ProvaInfinita;

/// How a fill ended.
enum class EsitoEstrazione {
  Rifiutata,      // Cancel at the first question, or no crossword: nothing has changed
  Completa,       // no white cell is empty
  Annullata,      // Cancel at a dead end: what was placed stays
  Interrotta,     // the user asked for a stop: likewise
  NonRegistrata,  // the snapshot of the emptied grid could not be written; told
  SenzaParole,    // the dictionary could not be read any more: likewise
};

/// Asks first, then fills as EseguiEstrazione does.
EsitoEstrazione EstraiSchema();

/// Fills the whole grid of the current crossword with words of the open dictionary: erases all
/// letters and clues, takes the slots from the longest to the shortest, puts one random fitting
/// word in each and never takes one back. Dead ends are put to the user. Then every cell still
/// empty gets a random letter. There must be a crossword and an open dictionary. Leaves ModoGriglia
/// 0 and SchemaModificato set.
EsitoEstrazione EseguiEstrazione();

}  // namespace telarium
