#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "dictionary/dictionary_format.h"
#include "platform/random_access_file.h"

namespace telarium {

/// A dictionary file open for reading, for the time of one operation.
class FileDizionario : public FileAdAccessoDiretto {
 public:
  using FileAdAccessoDiretto::FileAdAccessoDiretto;

  /// As that of the base from a 1-based position on; none for one before the first byte.
  std::size_t Leggi(std::int64_t posizione, char* destinazione, std::size_t byte) const {
    return FileAdAccessoDiretto::Leggi(posizione - 1, destinazione, byte);
  }
};

/// What the table of a dictionary says of the section of one length, believed or not: the position
/// of its first word, 0 for none, and how many words it has, which may be any number.
struct SezioneDizionario {
  std::int32_t inizio = 0;
  std::int32_t conta = 0;

  /// The last word number that a scan goes to: the low 16 bits of the count, as a signed number.
  /// Counts past 32,767 thus scan less, or nothing.
  int UltimoNumero() const { return static_cast<std::int16_t>(conta & 0xFFFF); }
};

/// The sections by their length less 3.
using SezioniDizionario = std::array<SezioneDizionario, MaxLunghezza - MinLunghezza + 1>;

/// What the table says of each. What a short file lacks counts as zeros.
SezioniDizionario LeggiSezioni(const FileDizionario& file);

}  // namespace telarium
