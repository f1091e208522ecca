#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "dictionary/dictionary_format.h"
#include "platform/descriptor.h"
#include "platform/files.h"

namespace telarium {

/// A dictionary file open for reading, for the time of one operation.
class FileDizionario {
 public:
  /// Opens the file; Aperto tells whether it could be. A pipe or device is refused.
  explicit FileDizionario(const Percorso& nome);

  bool Aperto() const { return static_cast<bool>(descrittore_); }

  /// Whether it could be opened and no read has failed, which is not the same as its end.
  bool Leggibile() const { return Aperto() && !guasto_; }

  /// Why it could not be opened.
  const std::error_code& Errore() const { return errore_; }

  /// Reads up to `byte` bytes from a 1-based position on and gives how many there were: fewer at
  /// the end of the file, none for a position before its first byte.
  std::size_t Leggi(std::int64_t posizione, char* destinazione, std::size_t byte) const;

 private:
  Descrittore descrittore_;
  mutable bool guasto_ = false;
  std::error_code errore_;
};

/// What the table of a dictionary says of the section of one length, believed or not: the position
/// of its first word, 0 for none, and how many words it has, which may be any number.
struct SezioneDizionario {
  std::int32_t inizio = 0;
  std::int32_t conta = 0;

  /// The last word number that a scan goes to: the low 16 bits of the count, as a signed number.
  int UltimoNumero() const { return static_cast<std::int16_t>(conta & 0xFFFF); }
};

/// The sections by their length less 3. What a short file lacks counts as zeros.
std::array<SezioneDizionario, MaxLunghezza - MinLunghezza + 1> LeggiSezioni(
    const FileDizionario& file);

}  // namespace telarium
