#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "dictionary/dictionary.h"

namespace telarium {

/// What happened to a masked search.
struct EsitoRicerca {
  bool dizionarioLetto = false;
  int trovate = 0;
};

/// Lists the words of a dictionary that fit a mask of 3 to 15 characters, in the order of
/// the section; PostoLibero is a free place, and all places free list the whole section. `accogli`
/// gets each word; `avanzamento`, which may be empty, the last word number looked at and the count,
/// now and then and at the end.
EsitoRicerca CercaParole(const Dizionario& dizionario, std::string_view maschera,
                         const std::function<void(std::string_view)>& accogli,
                         const std::function<void(int numero, int conto)>& avanzamento = {});

/// The closing text of a search: "Trov.:" and the number, with a blank for its sign.
std::string TestoTrovate(int trovate);

}  // namespace telarium
