#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/list_layer.h"
#include "lexicon/list_text.h"

// Lists of words of other programs: a word a line, or word, score and clue, divided by ";", TAB or
// ",".
namespace telarium {

/// The largest list that is read: millions of lines.
inline constexpr std::size_t MaxByteElenco = 256u << 20;

/// What scores of a list mean.
enum class Scala {
  Nessuna,    // it has none
  Cinquanta,  // from 0 to 50: no score is above that; doubled they are ours
  Cento,      // from 0 to 100
};

/// The highest score of the scale from 0 to 50.
inline constexpr int MassimoDiCinquanta = 50;

/// How scores are read.
enum class LetturaPunteggi {
  Riconosci,  // by the scale that they show
  ComeSono,   // from 0 to 100
};

struct ResocontoElenco {
  std::int64_t righe = 0;   // that hold something
  std::int64_t doppie = 0;  // whose word an earlier one has; the last score holds
  std::int64_t scartate = 0;
  std::int64_t primaScartata = 0;  // the number of the line in the text, from 1; 0 for none
  std::int64_t conPunteggio = 0;
  std::int64_t aZero = 0;  // with a score of 0, which is a ban in the user's own list
  int massimo = 0;         // the highest score as it stands there
  Scala scala = Scala::Nessuna;
  Codifica codifica = Codifica::Utf8;
};

/// A clue that stood behind a word, in the code page.
struct DefinizioneElenco {
  std::uint32_t parola;  // number of the word in the list
  std::string testo;
};

struct ElencoImportato {
  ElencoParole parole;
  std::vector<DefinizioneElenco> definizioni;  // in the order of the lines
  ResocontoElenco resoconto;
};

/// Reads a list in UTF-8 or in the code page, with any line ends. None for what is no text of
/// these, as UTF-16, or has lines of which none is a word's: `causa` then says so, as the end of a
/// sentence. A list without lines is an empty one.
std::optional<ElencoImportato> InterpretaElenco(std::string_view testo, LetturaPunteggi lettura,
                                                std::string& causa);

/// The same for words that are to be kept, of scales that are recognised: an empty list is refused
/// too.
std::optional<ElencoImportato> ImportaElenco(std::string_view testo, std::string& causa);

/// What was read and what was not, for a message: Italian sentences in the code page.
std::string TestoResoconto(const ElencoImportato& importato);

}  // namespace telarium
