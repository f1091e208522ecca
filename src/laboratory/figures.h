#pragma once

#include <string>
#include <vector>

#include "laboratory/entries.h"
#include "model/derivation.h"

// The figures of a crossword.
namespace telarium {

/// A figure as it is printed. The value is a number but for `piazza` (columns x rows), and empty
/// where there is nothing to measure.
struct Cifra {
  std::string nome;
  std::string valore;

  bool operator==(const Cifra&) const = default;
};

/// The mean of numbers with one decimal; empty when there are none.
std::string MediaConDecimale(const std::vector<int>& numeri);

/// All figures, in this order:
///   nere        black cells, in per cent with one decimal
///   media       mean length of the entries, one decimal
///   punteggio   mean score of those that are judged, one decimal
///   minimo      lowest score
///   facili      entries for which the store or the kit has an easy clue
///   difficili   likewise, a hard one
///   lettere     different letters in use
///   piazza      the largest rectangle of white cells, "5x3"
///   difficolta  mean difficulty of the complete entries, from 1 to 5, one decimal
///   voci-N      entries of N letters, for each N that there is
std::vector<Cifra> CifreDi(const Derivati& griglia, const std::vector<VoceDiGriglia>& voci,
                           const Criteri& criteri);

}  // namespace telarium
