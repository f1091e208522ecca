#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/descriptor.h"
#include "platform/files.h"

namespace telarium {

/// A file open for reading anywhere in it, for the time of one operation.
class FileAdAccessoDiretto {
 public:
  /// Opens the file; Aperto tells whether it could be. A pipe or device, which could keep a reader
  /// waiting, is refused.
  explicit FileAdAccessoDiretto(const Percorso& nome);

  bool Aperto() const { return static_cast<bool>(descrittore_); }

  /// Whether it could be opened and no read has failed, which is not the same as its end.
  bool Leggibile() const { return Aperto() && !guasto_; }

  /// Why it could not be opened.
  const std::error_code& Errore() const { return errore_; }

  /// Reads up to `byte` bytes from an offset on, which counts from 0, and gives how many there
  /// were: fewer at the end of the file, none for an offset below 0.
  std::size_t Leggi(std::int64_t posto, char* destinazione, std::size_t byte) const;

 private:
  Descrittore descrittore_;
  mutable bool guasto_ = false;
  std::error_code errore_;
};

}  // namespace telarium
