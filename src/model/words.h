#pragma once

#include "model/state.h"

// The words of the grid: runs of at least two white cells in a row or a column.
namespace telarium {

/// Whether a cell lies in the current grid.
inline bool NelloSchema(Casella casella) {
  return casella.colonna >= 1 && casella.colonna <= NumColonne && casella.riga >= 1 &&
         casella.riga <= NumRighe;
}

/// Whether, by TipoCasella, a word starts at the cell in that direction.
bool IniziaParola(Casella casella, int direzione);

/// The word that starts at the cell in that direction; its length is that of ParolaCasella.
Slot SlotDa(Casella casella, int direzione);

/// Calls `visita` with each word of the grid: by rows, in a row by columns, at a cell the
/// horizontal word before the vertical one.
template <class Visita>
void PerOgniParola(Visita visita) {
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c) {
      for (const int d : Direzioni) {
        if (IniziaParola({c, r}, d)) visita(SlotDa({c, r}, d));
      }
    }
  }
}

/// The same with the words of one direction alone.
template <class Visita>
void PerOgniParola(int direzione, Visita visita) {
  PerOgniParola([&](const Slot& slot) {
    if (slot.direzione == direzione) visita(slot);
  });
}

}  // namespace telarium
