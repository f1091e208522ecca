#pragma once

#include <cstdint>
#include <string>

#include "model/boolean.h"
#include "model/cells.h"
#include "model/pointer.h"
#include "model/tables.h"

// The given names: the crossword that is open, which the document holds (model/documento.h) and
// alone can change, and what is shared about it. Tables count from 1: (column, row), (column, row,
// direction).
namespace telarium {

// --- The grid as text ---

/// Line 1 author, 2 date, 3 kind, 4 size; from line 5 on one line per grid row. In a row line cell
/// c has its character at 2c-1 and a companion mark at 2c ("*" black, "." else), which decides
/// nothing.
extern const Tabella<std::string, Indici<1, RigheSchema>>& Schema;
extern const std::int16_t& NumColonne;  // 0 while there is no crossword
extern const std::int16_t& NumRighe;    // 0 while there is no crossword
/// Path of the crossword file; empty: no crossword; NomeMaiSalvato: never saved.
extern const Percorso& NomeCruciverba;
extern const Booleano16& SchemaModificato;

/// The clue of the word that starts at the cell in that direction; empty if it has none.
extern const Tabella<std::string, AsseColonne, AsseRighe, AsseDirezioni>& Definizione;
/// Fill colour of a black cell; 0 is plain black. No effect on white cells.
extern const Tabella<Colore, AsseColonne, AsseRighe>& ColoreCasella;

// --- What follows from the grid; outside of it as in an empty one ---

extern const Tabella<char, AsseColonne, AsseRighe>& LetteraCasella;
/// 0 black, 1 white without a start, 2 horizontal start, 3 vertical start, 5 both. There is no 4.
extern const Tabella<std::int16_t, AsseColonne, AsseRighe>& TipoCasella;
/// Clue number of a start cell, from 1 in reading order; 0 elsewhere.
extern const Tabella<std::int16_t, AsseColonne, AsseRighe>& NumeroCasella;
/// The characters from the cell to the end of its run in that direction: the whole word at a start
/// cell, empty where no white cell follows.
extern const Tabella<std::string, AsseColonne, AsseRighe, AsseDirezioni>& ParolaCasella;

// --- Position and mode ---

// Values of ModoGriglia. Only ModoModifica and ModoAnteprima are ever tested; the others tell which
// command was the last.
inline constexpr std::int16_t ModoAnteprima = -1;  // the surface shows a print preview, or nothing
inline constexpr std::int16_t ModoNeutro = 0;
inline constexpr std::int16_t ModoModifica = 1;  // the mouse finds and edits words
inline constexpr std::int16_t ModoAggiungiColonna = 3;
inline constexpr std::int16_t ModoTogliColonna = 4;
inline constexpr std::int16_t ModoAggiungiRiga = 5;
inline constexpr std::int16_t ModoTogliRiga = 6;
inline constexpr std::int16_t ModoCasellaNera = 7;  // the tool itself is StrumentoAttivo
inline constexpr std::int16_t ModoCasellaBianca = 8;
inline constexpr std::int16_t ModoTabella = 20;
/// What the mouse does on the grid.
extern std::int16_t ModoGriglia;

// --- Folders ---

/// Program folder; empty until it is known. File names that a routine forms itself are looked for
/// here.
extern Percorso CartellaProgramma;
/// Where the snapshot lies; empty: in the program folder.
extern Percorso CartellaIstantanea;

inline constexpr const char* NomeMaiSalvato = "NuovoCruciverba.tlrm";
inline constexpr const char* NomeIstantanea = "_tlma_32.tmp";

/// Path of the snapshot, the crossword file through which windows hand the crossword on.
Percorso PercorsoIstantanea();

/// Puts every shared variable, also those that a subsystem owns, as at program start.
void AzzeraStato();

/// Registers, by its construction at program start, what AzzeraStato does for the variables that a
/// subsystem owns: one static object beside their definitions.
class AzzeramentoDiSottosistema {
 public:
  explicit AzzeramentoDiSottosistema(void (*azzera)());

 private:
  friend void AzzeraStato();
  void (*azzera_)();
  const AzzeramentoDiSottosistema* prossimo_;
};

}  // namespace telarium
