#pragma once

#include <cstddef>
#include <cstdint>

#include "dictionary/dictionary.h"

namespace telarium {

/// Some words of one section, one behind the other in the order of the file.
struct BloccoDiParole {
  const char* inizio = nullptr;
  int lunghezza = 0;    // of each word
  int primoNumero = 0;  // word number of the first one, from 1
  int quante = 0;

  const char* Parola(int i) const {
    return inizio + static_cast<std::size_t>(i) * static_cast<std::size_t>(lunghezza);
  }
};

/// Goes through the section of one length of a dictionary, from its first word to its last, a few
/// thousand words to a read. Ends early where the file ends.
class ScansioneSezione {
 public:
  /// `lunghezza` is one of 3 to 15. Opens the file.
  ScansioneSezione(const Dizionario& dizionario, int lunghezza);

  /// Whether it could be opened and, as far as the scan has come, read.
  bool Leggibile() const { return file_.Leggibile(); }

  /// The next words; they are valid until the next call. False when there are none any more.
  bool Prossimo(BloccoDiParole& blocco);

 private:
  // Large enough that the cost of a read does not count, small enough to stay in the cache.
  static constexpr std::size_t ByteBlocco = 64 * 1024;

  FileDizionario file_;
  int lunghezza_;
  std::int64_t inizio_;
  int ultimo_;
  int prossimo_ = 1;
  char blocco_[ByteBlocco];
};

}  // namespace telarium
