#pragma once

#include <cstddef>
#include <span>
#include <system_error>

#include "platform/files.h"

namespace telarium {

/// The bytes of a file, read-only, without reading them: a page comes into memory when it is
/// touched, and programs share it. They stay as they are when another file takes the place of this
/// one by a rename, which is how packages and ScriviFile replace files.
class FileMappato {
 public:
  FileMappato() = default;
  /// Maps an ordinary file. An empty one maps to no bytes. After a failure `errore` is set and
  /// there are none.
  FileMappato(const Percorso& nome, std::error_code& errore);
  ~FileMappato();
  FileMappato(FileMappato&& altro) noexcept;
  FileMappato& operator=(FileMappato&& altro) noexcept;

  std::span<const std::byte> Byte() const { return byte_; }

  /// Lets go of the memory of all pages that were touched: they come back when they are touched
  /// again. For whoever has gone through the whole file and now needs little of it.
  void LasciaPagine() const;

 private:
  std::span<const std::byte> byte_;
};

}  // namespace telarium
