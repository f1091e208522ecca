#pragma once

#include <cstdint>
#include <string>

#include "model/boolean.h"
#include "model/cells.h"
#include "model/laboratory_section.h"
#include "model/table.h"
#include "platform/files.h"
#include "platform/surface.h"
#include "platform/user.h"

// The one current crossword and what is shared about it. There is one thread, and every routine
// reads and writes these variables directly. Tables count from 1: (column, row), (column, row,
// direction).
namespace telarium {

inline constexpr int RigheSchema = 350;  // lines of Schema, of which NumRighe + 4 have a meaning

// --- The grid as text: the primary copy ---

/// Line 1 author, 2 date, 3 kind, 4 size; from line 5 on one line per grid row. In a row line cell
/// c has its character at 2c-1 and a companion mark at 2c ("*" black, "." else), which decides
/// nothing and may be out of date.
extern Tabella<std::string, Indici<1, RigheSchema>> Schema;
extern std::int16_t NumColonne;  // 0 while there is no crossword
extern std::int16_t NumRighe;    // 0 while there is no crossword
/// Path of the crossword file; empty: no crossword; NomeMaiSalvato: never saved.
extern Percorso NomeCruciverba;
extern Booleano16 SchemaModificato;

// --- Primary side tables ---

/// The clue of the word that starts at the cell in that direction; empty if it has none.
extern Tabella<std::string, AsseColonne, AsseRighe, AsseDirezioni> Definizione;
/// Fill colour of a black cell; 0 is plain black. No effect on white cells.
extern Tabella<Colore, AsseColonne, AsseRighe> ColoreCasella;
/// What the laboratory keeps with the crossword.
extern Laboratorio LaboratorioDelCruciverba;

// --- Derived from Schema by RicalcolaCaselle ---

extern Tabella<char, AsseColonne, AsseRighe> LetteraCasella;
/// 0 black, 1 white without a start, 2 horizontal start, 3 vertical start, 5 both. There is no 4.
extern Tabella<std::int16_t, AsseColonne, AsseRighe> TipoCasella;
/// Clue number of a start cell, from 1 in reading order; 0 elsewhere.
extern Tabella<std::int16_t, AsseColonne, AsseRighe> NumeroCasella;
/// The characters from the cell to the end of its run in that direction: the whole word at a start
/// cell, empty where no white cell follows.
extern Tabella<std::string, AsseColonne, AsseRighe, AsseDirezioni> ParolaCasella;

// --- Position and mode ---

// Side of a cell as last drawn, and left and top of the grid: on the main window in pixels, behind
// a print or in a preview in the units of the sheet (see CediGeometria of the editor). 0 before the
// first redraw.
extern std::int16_t LatoCasella;
extern std::int16_t OrigineX;
extern std::int16_t OrigineY;

// Values of ModoGriglia. Only ModoModifica and ModoAnteprima are ever tested; the others tell which
// command was the last.
inline constexpr std::int16_t ModoAnteprima = -1;  // the surface shows a print preview, or nothing
inline constexpr std::int16_t ModoNeutro = 0;
inline constexpr std::int16_t ModoModifica = 1;  // the mouse finds and edits words
inline constexpr std::int16_t ModoAggiungiColonna = 3;
inline constexpr std::int16_t ModoTogliColonna = 4;
inline constexpr std::int16_t ModoAggiungiRiga = 5;
inline constexpr std::int16_t ModoTogliRiga = 6;
inline constexpr std::int16_t ModoCasellaNera = 7;  // the tool itself is told by PuntatoreMouse
inline constexpr std::int16_t ModoCasellaBianca = 8;
inline constexpr std::int16_t ModoTabella = 20;
/// What the mouse does on the grid.
extern std::int16_t ModoGriglia;
/// Shape of the mouse pointer, a value of platform/user.h, by which the mouse routines decide what
/// a click means. Set it through ImpostaPuntatoreMouse, which keeps the visible shape in step.
extern std::int16_t PuntatoreMouse;

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

/// Empties all clues, as a new crossword needs it.
void SvuotaDefinizioni();

/// Empties the grid lines, clues, colours, what the laboratory keeps and the derived tables, so
/// that a crossword that is opened shows nothing of an earlier one, even if its file breaks off.
/// Cells that its file does not hold count as empty white ones.
void SvuotaCruciverba();

/// Sets PuntatoreMouse and the visible shape.
void ImpostaPuntatoreMouse(int forma);

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
