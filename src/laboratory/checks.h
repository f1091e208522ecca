#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "clues/coverage.h"
#include "lexicon/lexicon.h"
#include "lexicon/rules.h"
#include "model/cruciverba.h"

// Whether a crossword is fit for print, and its figures.
namespace telarium {

/// What can be wrong, in the order in which it is told; the code words stand beside them.
enum class Codice {
  // Faults.
  Inesistente,
  Ripetuta,
  Regola,
  Separate,
  SenzaDefinizione,
  DefinizioneRipetuta,
  DefinizioneRivela,
  Vietata,
  DefinizioneVietata,
  DefinizioneLunga,
  // Warnings.
  LemmaRipetuto,
  TrattoComune,
  Rare,
  SchemaRipetuto,
  Riempitiva,
  DefinizioneOltre,
  CellaSola,
  DueLettere,
  IncrocioDuro,
};

/// "inesistente", "ripetuta" ...
std::string_view NomeDi(Codice codice);
bool Errore(Codice codice);

/// A fault or a warning: its place is the first cell of an entry, or a cell (direction 0), or none
/// (column 0).
struct Rilievo {
  Codice codice;
  Casella inizio;
  int direzione = 0;
  std::string testo;  // one Italian sentence in the code page: what, and why
};

/// The figures of a crossword: names and values as printed.
struct Cifra {
  std::string nome;
  std::string valore;
};

struct Verdetto {
  std::vector<Rilievo> errori;  // in reading order, at a place in the order of the codes
  std::vector<Rilievo> avvisi;
  std::vector<Cifra> cifre;

  bool Stampabile() const { return errori.empty(); }
};

/// What the check goes by.
struct Criteri {
  Lessico lessico;
  Regolamento regole;
  const Copertura* copertura = nullptr;  // none: no word has a clue in the store
  // options on words: least scores, forms of one lemma ...
};

Verdetto Controlla(const Cruciverba& cruciverba, const Criteri& criteri);

}  // namespace telarium
