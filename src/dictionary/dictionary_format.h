#pragma once

// A dictionary: a file of words of 3 to 15 letters, grouped by length.
//
//   position (1-based)  bytes  content
//   1                   199    banner, one byte per character
//   200                 1      zero
//   201                 208    section table, 16 bytes for each length from 3 to 15
//   409                 31     zero
//   440                 rest   the sections, words of L bytes one after the other
//
// A table entry is the position of the section's first word and the position behind its last one,
// each as a decimal number right-aligned in 8 bytes; a length without words has 16 zero bytes. The
// table is never trusted: scans stop at the end of the file whatever it says.
namespace telarium {

inline constexpr int MinLunghezza = 3;
inline constexpr int MaxLunghezza = 15;
inline constexpr int PrimaPosizione = 440;      // of the first word
inline constexpr int MaxPosizione = 9'999'999;  // the most that a table field can hold
inline constexpr int MaxParole = 32'767;        // of one length: word numbers are signed 16-bit
inline constexpr int ByteCampo = 8;             // of a field of the section table

/// Position of the table entry of a word length.
constexpr int PosizioneVoce(int lunghezza) {
  return 153 + 16 * lunghezza;
}

constexpr bool LunghezzaAmmessa(int lunghezza) {
  return lunghezza >= MinLunghezza && lunghezza <= MaxLunghezza;
}

}  // namespace telarium
