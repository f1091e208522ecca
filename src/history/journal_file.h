#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/descriptor.h"
#include "platform/files.h"

namespace telarium {

/// A file of steps that this program has open, alone: another one, or a second opening here, is
/// refused as long as it lives. On a file system without locks nobody is refused.
class FileBloccato {
 public:
  /// Larger ones are none of ours.
  static constexpr std::size_t MaxByte = std::size_t{512} << 20;

  /// Opens one that is there, or makes a new one for the user alone. None, with the cause, when it
  /// cannot be had.
  static std::optional<FileBloccato> Apri(const Percorso& nome, std::error_code& errore);
  static std::optional<FileBloccato> Crea(const Percorso& nome, std::error_code& errore);

  const Percorso& Nome() const { return nome_; }

  std::size_t Byte() const { return byte_; }

  /// All of it, or so many bytes from a place on, as far as there are.
  std::error_code Leggi(std::string& contenuto);
  std::error_code Leggi(std::size_t da, std::size_t quanti, std::string& contenuto);

  /// What is added goes behind the first `byte` bytes; what lay behind them goes.
  std::error_code Tronca(std::size_t byte);

  /// Adds bytes at the end. A failure leaves the file as it was.
  std::error_code Aggiungi(std::string_view byte);

  /// When all of it is on the disk.
  std::error_code Consolida();

  /// Takes the file away; it stays locked.
  std::error_code Elimina();

  /// Lets others have it from now on; nothing may be added any more.
  void Libera();

 private:
  FileBloccato(Percorso nome, Descrittore aperto)
      : nome_(std::move(nome)), aperto_(std::move(aperto)) {}
  static std::optional<FileBloccato> Prendi(const Percorso& nome, int modo,
                                            std::error_code& errore);

  Percorso nome_;
  Descrittore aperto_;
  std::size_t byte_ = 0;
};

}  // namespace telarium
