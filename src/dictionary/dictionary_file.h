#pragma once

#include <cstddef>
#include <cstdint>

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

}  // namespace telarium
