#pragma once

#include <cstdint>
#include <string>

#include "model/state.h"

// The open dictionary: a file of words of 3 to 15 letters, grouped by length.
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

/// Tables of the word lengths 3 to 15 are indexed by the length less 3.
using AsseLunghezze = Indici<0, MaxLunghezza - MinLunghezza>;

constexpr bool LunghezzaAmmessa(int lunghezza) {
  return lunghezza >= MinLunghezza && lunghezza <= MaxLunghezza;
}

inline constexpr int NumLingue = 4;
/// File names of the dictionaries of the system, by LinguaDizionario less 1.
inline constexpr const char* DizionariDiSistema[NumLingue] = {
    "LessicoItaliano.dat", "LessicoInglese.dat", "LessicoLatino.dat", "LessicoFrancese.dat"};

/// File name of the open dictionary, in the program folder; "LessicoItaliano.dat" at start.
extern Percorso NomeDizionario;
/// 1 Italian, 2 English, 3 Latin, 4 French, LinguaDeiPrivati for a private dictionary.
extern std::int16_t LinguaDizionario;
inline constexpr std::int16_t LinguaDeiPrivati = 4;
/// Position of the first word of each length, as the file says; 0 when the section is empty.
extern Tabella<std::int32_t, AsseLunghezze> OffsetLunghezza;
/// Number of words of each length, as the file says: hostile files give any number here.
extern Tabella<std::int32_t, AsseLunghezze> ContaLunghezza;

/// Path of the open dictionary's file.
Percorso PercorsoDizionario();

/// Fills OffsetLunghezza and ContaLunghezza from NomeDizionario. A missing file ends the program;
/// one that cannot be read shows a message, counts as empty and gives false.
bool ApriDizionario();

/// Word number n, from 1, of a length: that many characters, of which those that the file does not
/// hold are blanks. Empty when the file cannot be read.
std::string LeggiParola(std::int16_t numero, int lunghezza);

/// Whether the open dictionary's file is there and can be read.
bool DizionarioLeggibile();

/// Tells the user that the open dictionary cannot be read.
void AvvisaDizionarioIlleggibile();

}  // namespace telarium
