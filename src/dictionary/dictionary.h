#pragma once

#include <cstdint>
#include <string>

#include "dictionary/dictionary_format.h"
#include "model/state.h"

// The open dictionary.
namespace telarium {

/// Tables of the word lengths 3 to 15 are indexed by the length less 3.
using AsseLunghezze = Indici<0, MaxLunghezza - MinLunghezza>;

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

/// Says that the open dictionary cannot be read, and why; tells the user so.
std::string TestoDizionarioIlleggibile();
void AvvisaDizionarioIlleggibile();

}  // namespace telarium
