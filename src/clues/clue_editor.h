#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/word_edit.h"

namespace telarium {

/// What the clue editor does with the word handed to it. It works on values: whoever opened it
/// carries what was accepted into the grid.
class EsameDiParola {
 public:
  explicit EsameDiParola(ParolaInEsame parola) : parola_(std::move(parola)) {}

  /// The word and its clue at the opening of the editor.
  const std::string& ParolaIniziale() const { return parola_.testo.parola; }
  const std::string& DefinizioneIniziale() const { return parola_.testo.definizione; }

  /// Number of the first cell and direction of the word, as the editor's heading.
  std::string TitoloParola() const;

  /// The mask with which the search of the dictionaries begins: the letters of the word, and
  /// PostoLibero for each empty cell. Empty for a word of a length that no dictionary has.
  std::string MascheraIniziale() const;

  /// Takes what was typed over, unless the word is refused, which has been told: false then.
  bool AccettaDefinizione(ParolaDefinita scritta);

  /// What was taken over, if anything was.
  const std::optional<ParolaDefinita>& Accettata() const { return accettata_; }

  /// The lower right corner of the word's first cell on the main window's surface, in pixels.
  double Destra() const { return parola_.destra; }
  double Fondo() const { return parola_.fondo; }

 private:
  ParolaInEsame parola_;
  std::optional<ParolaDefinita> accettata_;
};

/// The help text of the editor.
std::string_view AiutoDefinizione();

/// Measures on the screen in logical pixels.
struct Misura {
  double larghezza, altezza;
};
struct Punto {
  double x, y;
};

/// Where the editor opens, from the left top corner of the screen: at `angolo`, the lower right of
/// the word's first cell there, or well inside the screen where it would pass the right edge, or
/// come below `barraDiStato` from the lower one.
Punto PostoDelDialogo(Misura dialogo, Misura schermo, double barraDiStato, Punto angolo);

}  // namespace telarium
