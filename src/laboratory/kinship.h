#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "composer/vocabulary.h"
#include "lexicon/lexicon.h"
#include "lexicon/lexicon_file.h"

// Which words are forms of one lemma, so that a crossword had better not have both.
namespace telarium {

/// A lemma as a part of speech: CORSO the noun is not the adjective of which CORSA is a form.
/// Pronouns are adjectives here: the lexicon has MIO as the one, SUE as the other.
struct LemmaDiCategoria {
  std::string_view lemma;
  Categoria categoria = Categoria::Ignota;
  auto operator<=>(const LemmaDiCategoria&) const = default;
};

/// The lemmas by which a word may be akin to another one: those of its readings as a part of speech
/// that has forms, the commonest first. ALLO and ALLE have one that stands for AL and its like.
/// Views into the layer of its readings.
std::vector<LemmaDiCategoria> LemmiDi(const Parola& parola);

/// Whether two words are akin by a lemma that is the one and the other among those of LemmiDi, from
/// 0: words meet by many readings, so it must be the commonest of at least one of them.
constexpr bool Lega(std::size_t posto, std::size_t altroPosto) {
  return posto == 0 || altroPosto == 0;
}

/// The kinship of the words of a vocabulary, by the lexicon that it is made of. When it is made, a
/// value that threads share.
class Parentele {
 public:
  /// `dueLibere`: entries of two letters are no words, and akin to none.
  Parentele(Lessico lessico, bool dueLibere);

  /// Tells the number in the vocabulary of an entry from which a word has its readings. Threads may
  /// do so at once for different entries.
  void Metti(const Lessico::Fonte& fonte, NumeroParola parola);

  /// The words of the vocabulary that are akin to any word, without itself, by length and number.
  std::vector<NumeroParola> Di(std::string_view parola) const;

 private:
  // A layer with readings.
  struct Lemmario {
    std::uint32_t livello = 0;  // in the lexicon
    const FileLessico* file = nullptr;
    std::vector<std::uint32_t> parole;  // by entry its word, length and number in one; 0 for none

    void LeggiLemmi(NumeroVoce voce, std::vector<LemmaDiCategoria>& lemmi) const;
    std::optional<NumeroParola> ParolaDi(NumeroVoce voce) const;
  };

  bool NonParola(int lunghezza) const { return dueLibere_ && lunghezza == MinLunghezzaVoce; }
  const Lemmario* LemmarioDi(std::uint32_t livello) const;
  void AggiungiParenti(const Lemmario& lemmario, const LemmaDiCategoria& lemma, std::size_t posto,
                       std::vector<NumeroParola>& parenti) const;

  Lessico lessico_;
  bool dueLibere_;
  std::vector<Lemmario> lemmari_;
};

}  // namespace telarium
