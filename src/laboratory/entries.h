#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "clues/coverage.h"
#include "laboratory/measures.h"
#include "lexicon/lexicon.h"
#include "lexicon/rules.h"
#include "model/cruciverba.h"
#include "model/derivation.h"

// The entries of a crossword with what is known of each.
namespace telarium {

/// What a crossword is judged by.
struct Criteri {
  Lessico lessico;
  Regolamento regole;
  /// None: no word has a clue in the store.
  const Copertura* copertura = nullptr;
  /// How hard the clue of a word is; none: no clue is hard.
  std::function<GradoDefinizione(std::string_view parola, std::string_view definizione)> grado = {};
  /// The least score of an entry, by its length.
  std::array<int, MaxLunghezzaVoce + 1> minimi{};
  bool vuoleDefinizioni = true;  // an entry without a clue is a fault
  bool ammetteForme = false;     // two forms of one lemma may stand in a grid
};

struct VoceDiGriglia {
  Slot slot;
  int numero = 0;                // of its first cell
  std::string caselle;           // the cell characters
  std::string lettere;           // folded; empty when a cell is empty or holds no letter
  std::string definizione;       // without blanks at its ends
  std::optional<Parola> parola;  // as the lexicon knows it
  bool propria = false;          // the author's own word for this crossword: it is not questioned
  bool vietata = false;
  bool libera = false;  // of two letters where the rules take any: needs no lexicon and no clue

  bool Intera() const { return !lettere.empty(); }
  bool HaVuote() const { return caselle.find(CellaVuota) != std::string::npos; }

  /// Its score as far as it is judged: none for a word that no layer has, an own one, a free one.
  std::optional<int> Punteggio() const;
  bool Rara() const;
  /// Whether rules judge it.
  bool Giudicata() const { return parola && !propria && !libera; }

  /// "SEGUO (5 verticale)", and "5 verticale" alone, which is the name of an entry without letters
  /// too.
  std::string Nome() const;
  std::string Luogo() const;
};

/// The words of a crossword's own list, folded; one that is no word of letters stands for nothing.
InsiemeDiParole Piegate(const std::vector<std::string>& parole);

/// The words that a crossword must not have: bans and marks of the lexicon, and those that stand in
/// the crossword itself; the lexicon's admissions lift them. Holds a reference to the lexicon.
class ParoleVietate {
 public:
  ParoleVietate(const Lessico& lessico, const Cruciverba& cruciverba);
  ParoleVietate(const Lessico& lessico, InsiemeDiParole delCruciverba);
  bool Ha(std::string_view parola) const;

 private:
  const Lessico& lessico_;
  InsiemeDiParole delCruciverba_;
};

/// The cells of an entry as a word; empty when one of them holds no letter.
std::string LettereDiCaselle(std::string_view caselle);

/// All runs of two and more white cells, in reading order, at a cell the horizontal one first.
std::vector<VoceDiGriglia> VociDi(const Cruciverba& cruciverba, const Derivati& griglia,
                                  const Criteri& criteri);

}  // namespace telarium
