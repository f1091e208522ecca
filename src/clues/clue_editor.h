#pragma once

#include <string>
#include <string_view>

#include "model/words.h"

// What the clue editor does with the word handed to it: CursoreX, CursoreY and Direzione name its
// start cell and its direction. It works on that cell's ParolaCasella and Definizione alone;
// whoever opened it carries a changed word into the grid.
namespace telarium {

/// The word and the clue being edited.
std::string& ParolaInEsame();
std::string& DefinizioneInEsame();

/// Number of the start cell and direction of the word, as the editor's heading.
std::string TitoloParola();

/// Takes what was typed over, unless the word is refused, which has been told: false then.
/// `iniziale` is the word at the opening of the editor; the same one is not written again.
bool AccettaDefinizione(const std::string& parola, const std::string& definizione,
                        const std::string& iniziale);

/// The help text of the editor.
std::string_view AiutoDefinizione();

/// Measures on the screen in logical pixels.
struct Misura {
  double larghezza, altezza;
};
struct Punto {
  double x, y;
};

/// Where the editor opens, from the left top corner of the screen: at the lower right of the word's
/// first cell, or well inside the screen where it would pass the right edge, or come below
/// `barraDiStato` from the lower one. `area` is where the main window's surface begins.
Punto PostoDelDialogo(Misura dialogo, Misura schermo, double barraDiStato, Punto area);

}  // namespace telarium
