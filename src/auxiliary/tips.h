#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/files.h"

// The tips of the day: a text file beside the program, one tip to a line.
namespace telarium {

/// Whether the user wants tips, not 0 for yes. Kept for this user from one run to the next.
extern std::int32_t MostraSuggerimenti;

/// Takes MostraSuggerimenti from the settings of the user; 1 when there is no such setting yet.
void LeggiMostraSuggerimenti();

/// Sets MostraSuggerimenti and saves it at once.
void ScriviMostraSuggerimenti(bool voluti);

/// The tips as the tip window holds them while it is open, and the text that it shows.
class Suggerimenti {
 public:
  /// Takes the tips of the program folder and draws one. What cannot be read leaves the reason as
  /// the text.
  void Carica();

  /// Adds each line of a file as a tip and draws one. Anything but Letto leaves all as it was.
  [[nodiscard]] EsitoLettura LoadTips(const Percorso& file, std::error_code& errore);

  /// Draws a tip, each with the same chance whatever came before. Nothing happens without tips.
  void Estrai();

  /// What the window shows, with a line feed at each line's end; it may be empty.
  const std::string& Testo() const { return testo_; }

 private:
  std::vector<std::string> suggerimenti_;
  std::string testo_;
};

}  // namespace telarium
