#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "model/cruciverba.h"
#include "platform/files.h"

// How tests, benchmarks and fuzz targets set the crossword that is open. What follows from it is in
// line with it afterwards; windows and snapshot are as they were.
namespace telarium {

/// Calls the function with the crossword to be changed. It must not come back here.
void Change(const std::function<void(Cruciverba&)>& how);

/// One clue; one colour; the character of one cell of the grid, whose companion mark stays.
void SetClue(int column, int row, int direction, std::string_view clue);
void SetColour(int column, int row, Colore colour);
void SetCell(int column, int row, char character);

/// All cells of the grid, and the clues of all its words.
void SetCells(const std::function<char(int column, int row)>& characterAt);
void SetClues(const std::function<std::string(const Slot&)>& clueOf);

/// A row of the grid as its file holds it, of any length, and a line of the header; from 1.
void SetLine(int row, std::string_view line);
void SetHeader(int line, std::string_view text);

/// Takes the grid away, as a damaged snapshot does; name, clues and colours stay.
void NoGrid();

/// The path of its file, whose bytes count as known if there is one, and whether it is to be saved.
void SetName(const Percorso& path);
void MarkModified(bool modified = true);

/// Where the grid lies on the window: side of a cell, left, top.
void SetGeometry(int side, int left = 0, int top = 0);

/// Everything as at program start.
void Forget();

/// The snapshot as another program leaves it.
void SnapshotFromOutside(std::string_view bytes);

}  // namespace telarium
