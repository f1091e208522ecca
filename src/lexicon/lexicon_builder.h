#pragma once

#include <optional>
#include <string>
#include <string_view>

// The file of a lexicon from its source text. A source is UTF-8, one entry a line, four fields
// divided by TAB:
//
//   1  the form as a dictionary spells it: "città", "L'Aquila", "luna park"
//   2  its score, 0 to 100
//   3  its marks (see SegnoDiNome), divided by commas; may be empty
//   4  its readings, divided by ";", the commonest first; may be empty. One is CODE or CODE=lemma;
//      without a lemma the form itself is it
//
// CODE is a category and its attributes, divided by points:
//
//   category  s noun, a adjective, v verb, avv, pron, art, prep, cong, inter, num, np proper noun,
//             sig abbreviation
//   inflexion ms fs mp fp; m f when invariable in number, s p in gender; then comp for comparative
//             or absolute superlative
//   verbs     inf, ger, part.pres or part.pass with inflexion; ind.pres ind.impf ind.pass ind.fut
//             cong.pres cong.impf cond.pres imp.pres with 1s 2s 3s 1p 2p 3p; fin for a finite form
//             of which no more is known; then cli with pronouns attached
//
// "amato TAB 74 TAB TAB v.part.pass.ms=amare;a.ms". The lines stand by the length of the folded
// form, in a length by falling score, then by the folded form, which occurs once.
namespace telarium {

/// The bytes of the lexicon file of a source; the same source always gives the same ones. None for
/// a source that breaks the format or has no entries: `causa` then says in Italian in which line
/// and why.
std::optional<std::string> CostruisciLessico(std::string_view sorgenteUtf8, std::string& causa);

}  // namespace telarium
