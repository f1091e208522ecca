#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "composer/vocabulary.h"

// What a composition is to find letters for: slots that share cells, and the demands on their
// words. It knows no columns and rows: those who make it number the cells as they like.
namespace telarium {

/// A run of cells that is to become a word.
struct SlotDaRiempire {
  std::vector<int> caselle;  // two or more, by their numbers
  int minimo = 0;            // the least score of its word
  /// Some cell of it is left empty: some word must fit that could stand beside all that are placed,
  /// and none is placed.
  bool aperto = false;
};

/// How many entries of a kind there may be.
inline constexpr int SenzaLimite = -1;

struct Problema {
  std::shared_ptr<const Vocabolario> vocabolario;
  /// The slots, from 0. A cell lies in one or two of them. A slot that is longer than any word has
  /// none.
  std::vector<SlotDaRiempire> slot;
  /// For each cell the letters that it may have: one of a given letter. None: what stands there is
  /// no letter, and no word fits.
  std::vector<Lettere> lettere;
  /// The cells that are left as they are, by number: those of open slots that stay empty. Empty:
  /// all cells are to be filled.
  std::vector<bool> lasciate = {};
  /// Words that stand elsewhere: none of them may stand in a slot, nor one akin to them.
  std::vector<std::string> altrove;
  /// Words that must stand in some slot.
  std::vector<std::string> volute;
  /// Words that are words without a clue too, as wanted ones are.
  std::vector<std::string> esenti = {};
  /// The most entries of each kind, by Genia.
  std::array<int, NumGenie> alMassimo = {SenzaLimite, SenzaLimite, SenzaLimite, SenzaLimite,
                                         SenzaLimite};
  bool soloDefinite = false;  // words without a clue are no words, but for `volute` and `esenti`
  bool ammetteForme = false;  // words akin to each other may stand together

  int Caselle() const { return static_cast<int>(lettere.size()); }
  int Slot() const { return static_cast<int>(slot.size()); }
  /// Whether a word needs no clue where others do.
  bool Esente(std::string_view parola) const;
  bool Lasciata(int casella) const {
    return !lasciate.empty() && lasciate[static_cast<std::size_t>(casella)];
  }
};

/// A cell of an answer: a letter from 'A', or none.
inline constexpr char SenzaLettera = 0;

/// What letters an answer has in a slot, '.' for none.
std::string Maschera(const Problema& problema, int slot, const std::string& lettere);

/// What is wrong with an answer, each as an English sentence for developers; empty for a fill that
/// keeps all of the demands. It knows nothing of the search: every slot is read again, letter by
/// letter.
std::vector<std::string> Difetti(const Problema& problema, const std::string& lettere);

}  // namespace telarium
