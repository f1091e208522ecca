#pragma once

#include <span>
#include <string_view>

// The menu bar of Form1 as data.
namespace telarium {

/// An entry with its place in the tree: level 0 on the bar, the entries of a menu one level below
/// it and behind it. A caption "-" is a separator; "&" stands before the letter that chooses the
/// entry. An entry without a caption gets one when the program runs.
struct VoceDiMenu {
  int livello;
  const char* nome;
  std::string_view testo;  // in the code page
  const char* tasti = "";  // in Qt's notation
};

/// All entries in order, each menu before its own.
std::span<const VoceDiMenu> VociDelMenu();

/// Entries that nothing ever shows.
std::span<const std::string_view> VociNascoste();

/// Whether an entry carries a check mark.
bool ConSpunta(std::string_view nome);

/// The picture that a menu entry carries once the crossword's commands are there, or from the first
/// activation on.
struct GraficaDiVoce {
  std::string_view voce;
  const char* immagine;
};
std::span<const GraficaDiVoce> GraficaDeiMenu();
std::span<const GraficaDiVoce> GraficaDelMenuFile();

}  // namespace telarium
