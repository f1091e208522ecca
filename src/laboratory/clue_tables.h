#pragma once

#include <span>
#include <string_view>

// What is known of the language of clues, as data. Words are folded, in capitals.
namespace telarium::tabelle {

/// Clues that say no more than what kind of word is looked for, without their article.
std::span<const std::string_view> Riempitive();

/// How a letter play opens: its words in capitals of the code page, without an article in front,
/// prepositions in their simple form; and what it is called. `sola` for one that is a play only
/// with a single word behind it.
struct Apertura {
  std::string_view parole;
  std::string_view nome;
  bool sola = false;
};
std::span<const Apertura> ApertureDiGiochi();

/// Beginnings that words share without being akin.
std::span<const std::string_view> PrefissiComuni();

/// Words that stand in clues for their grammar: they share no lemma with an answer.
bool ParolaVuota(std::string_view parola);

/// Verbs whose forms are everywhere, in small letters.
bool LemmaVuoto(std::string_view lemma);

}  // namespace telarium::tabelle
