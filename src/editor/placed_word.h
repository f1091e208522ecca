#pragma once

#include <string_view>

#include "model/words.h"
#include "platform/surface.h"

namespace telarium {

/// Paints the words of a fill on the main window as they are placed, letter by letter, straight on
/// the screen. Without a window it does nothing.
class PittoreDiParole {
 public:
  /// `finestra` may be null. Takes the half side of the eraser from its type as it is now.
  explicit PittoreDiParole(Superficie* finestra);
  /// Back to the persistent surface, whatever ended the fill before Fine.
  ~PittoreDiParole();
  PittoreDiParole(const PittoreDiParole&) = delete;
  PittoreDiParole& operator=(const PittoreDiParole&) = delete;

  /// Draws from now on on the screen alone, so that what is painted appears at once.
  void DirettoSulloSchermo();

  /// Sets the type for the letters.
  void PreparaCarattere();

  /// Wipes the middle of each cell of the slot and writes the word's letter there.
  void Dipingi(const Slot& slot, std::string_view parola);

  /// Back to the persistent surface, which is cleared.
  void Fine();

 private:
  void DipingiLettera(Casella cella, char lettera);

  Superficie* finestra_;
  int semilatoGomma_ = 0;  // pixels
  bool diretto_ = false;
};

}  // namespace telarium
