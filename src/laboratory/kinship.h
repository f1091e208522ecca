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
struct LemmaDiCategoria {
  std::string_view lemma;
  Categoria categoria = Categoria::Ignota;
  auto operator<=>(const LemmaDiCategoria&) const = default;
};

/// The lemmas by which a word may be akin to another one: those of its readings as a noun, an
/// adjective, a verb or an adverb, the commonest first. Views into the layer of its readings.
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
  struct LemmaNumerato {
    NumeroLemma lemma = 0;
    Categoria categoria = Categoria::Ignota;
    bool operator==(const LemmaNumerato&) const = default;
  };
  using Lemmi = std::vector<LemmaNumerato>;

  static void LeggiLemmi(const FileLessico& file, NumeroVoce voce,
                         std::vector<LetturaNumerata>& letture, Lemmi& lemmi);
  std::optional<NumeroParola> ParolaDi(std::size_t livello, NumeroVoce voce) const;
  void AggiungiParenti(std::size_t livello, const LemmaNumerato& lemma, std::size_t posto,
                       std::vector<NumeroParola>& parenti) const;

  Lessico lessico_;
  bool dueLibere_;
  // By layer: its file, null when it has no readings, and the words of its entries.
  std::vector<const FileLessico*> file_;
  std::vector<std::vector<std::uint32_t>> parole_;  // length and number in one; 0 for none
};

}  // namespace telarium
