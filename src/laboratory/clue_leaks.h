#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "laboratory/clue_quality.h"
#include "laboratory/entries.h"
#include "laboratory/kinship.h"

// What clues give away, and which of their words are banned.
namespace telarium {

/// What a clue says that it should not.
struct Rivelazione {
  enum class Specie {
    Risposta,   // holds the answer
    Parente,    // holds a word with its lemma or its stem
    AltraVoce,  // holds another entry of the crossword, `voce`
    Vietata,    // holds a banned word that has a meaning of its own
  };
  Specie specie;
  std::string_view parola;              // as it stands in the clue
  const VoceDiGriglia* voce = nullptr;  // the other entry
};

/// Compares clues with the entries of one crossword. What it looks up in the lexicon it keeps. All
/// that is handed to it must outlive it.
class Rivelatore {
 public:
  Rivelatore(const Lessico& lessico, const ParoleVietate& vietate,
             const std::vector<VoceDiGriglia>& voci);

  /// What a clue of an entry gives away, each kind and each other entry once, at the first word;
  /// the answer hides what is akin to it.
  std::vector<Rivelazione> Esamina(const VoceDiGriglia& voce, std::string_view definizione);

 private:
  using Parole = std::vector<ParolaDiDefinizione>;

  // What is kept of a word of clues.
  struct Nota {
    bool vietata = false;
    std::vector<LemmaDiCategoria> lemmi;
  };
  // An entry that is written with several words.
  struct Locuzione {
    const VoceDiGriglia* voce;
    Parole parole;
  };

  const Nota& NotaDi(const std::string& parola);
  bool Parente(const VoceDiGriglia& voce, const ParolaDiDefinizione& parola);
  void AggiungiAltra(const VoceDiGriglia& voce, const VoceDiGriglia& altra, std::string_view parola,
                     std::vector<Rivelazione>& trovate) const;
  void EsaminaParola(const VoceDiGriglia& voce, const ParolaDiDefinizione& parola,
                     std::vector<Rivelazione>& trovate);
  void EsaminaLocuzioni(const VoceDiGriglia& voce, const Parole& parole,
                        std::vector<Rivelazione>& trovate) const;

  const Lessico& lessico_;
  const ParoleVietate& vietate_;
  std::unordered_map<std::string, const VoceDiGriglia*> voci_;  // by their letters
  std::vector<Locuzione> locuzioni_;
  std::unordered_map<std::string, Nota> note_;
};

}  // namespace telarium
