#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "clues/coverage_index.h"
#include "platform/files.h"

// Which words have clues, from a side index of the encyclopedia, so that nobody reads a store of
// half a million clues to know that.
namespace telarium {

/// The words of a store that have clues, and how many: those from which a fetch draws, of the first
/// row of a word, and the kit's clues that are not among them. Words are looked up as the store's
/// search does, letter by letter. A value that never changes; copies share it, threads too.
class Copertura {
 public:
  /// None: no word has a clue.
  Copertura() = default;
  explicit Copertura(std::shared_ptr<const IndiceCopertura> indice) : indice_(std::move(indice)) {}
  /// Of these words, the first one of equal ones.
  explicit Copertura(std::span<const VoceCopertura> voci);

  ConteggioDefinizioni Di(std::string_view parola) const;
  bool Ha(std::string_view parola, QualiDefinizioni quali) const {
    return Di(parola).Di(quali) > 0;
  }
  /// How many words have clues.
  int Parole() const;

  /// Calls `visita` with each word that has clues, in the order of the store.
  void PerOgniParola(const IndiceCopertura::Visita& visita) const;

  /// Which of so many words have clues: bit k of number j is the (64j+k)th one. `parola` gives a
  /// word by its number, from 0; it is asked once for each, and the text must stay a while. Several
  /// times sooner than word by word.
  std::vector<std::uint64_t> Insieme(std::size_t quante,
                                     const std::function<std::string_view(std::size_t)>& parola,
                                     QualiDefinizioni quali) const;

 private:
  std::shared_ptr<const IndiceCopertura> indice_;
};

/// Where a coverage comes from.
struct FontiCopertura {
  Percorso enciclopedia;  // the store's file
  Percorso corredo;       // the list of the kit's clues, which may be missing
  Percorso cache;         // the folder of the side indexes; empty to make it in memory
};

/// The coverage of an encyclopedia, from its side index when that is of the store as it stands,
/// else from the store, whose index is then written anew; where that cannot be, it is made in
/// memory. A store that is held by another program is waited for, a second at most. A store that
/// cannot be read gives none and its cause, a sentence in Italian; a reading that `ferma` breaks
/// off gives none and no cause. May be called in any thread.
std::shared_ptr<const Copertura> CoperturaDa(const FontiCopertura& fonti, std::string& causa,
                                             const std::stop_token& ferma = {});

/// The same of the file of an encyclopedia with the installed kit, its index in the user's cache
/// folder.
std::shared_ptr<const Copertura> CoperturaDi(const Percorso& enciclopedia, std::string& causa,
                                             const std::stop_token& ferma = {});

}  // namespace telarium
