#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/lexicon.h"
#include "lexicon/rules.h"
#include "platform/files.h"

// Lexicons, rules and lists by the names that a person gives them. Each routine tells in
// `messaggio`, in Italian, why there is no result; or beside one, a line for each list, what a
// person should know of it, as lines that hold no word. It is empty when there is nothing to tell.
namespace telarium {

// Names of layers that are no files of the user's: languages, the kit, the user's own list.
inline constexpr const char* LessicoIniziale = "italiano";
inline constexpr std::array<std::string_view, 4> LingueDeiLessici = {LessicoIniziale, "inglese",
                                                                     "latino", "francese"};
inline constexpr const char* NomeCorredo = "sigle";
inline constexpr const char* NomeParoleMie = "mio";

/// Where layers lie.
struct LuoghiLessico {
  Percorso lessici;    // the folder of the installed lexicons
  Percorso programma;  // the program folder
};

/// A lexicon of layers that are named: languages, of which the first one is that of the crossword;
/// dictionaries of the program folder, which end in ".dat" or ".priv"; and lists, whose path is
/// relative to the folder that the user is in. The kit is always there; the user's own list where a
/// language or a dictionary is named, or it itself: beside lists alone only its bans hold. The
/// layers lie in the order: languages, kit, dictionaries, lists, own list.
std::optional<Lessico> ComponiLessico(const std::vector<Percorso>& nomi,
                                      const LuoghiLessico& luoghi, std::string& messaggio);

/// A set of rules by its name, or from the file of that path.
std::optional<Regolamento> TrovaRegolamento(const Percorso& nome, std::string& messaggio);

/// The words of a list, whatever scores and clues it has.
std::optional<InsiemeDiParole> LeggiParole(const Percorso& lista, std::string& messaggio);

}  // namespace telarium
