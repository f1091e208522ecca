#pragma once

#include <memory>
#include <string>

#include "platform/files.h"

namespace telarium {

/// A file that records are added to; opened, locked for this program and closed by the writer.
class FileDiGiornale;

/// The thread that brings records to the disk, so that no command waits for it: they are handed
/// over to the system at once and reach the disk within a second. A write that fails is told once,
/// by Guasto, and the file takes no more.
class ScrittoreDiGiornali {
 public:
  ScrittoreDiGiornali();
  ~ScrittoreDiGiornali();  // when all has been written

  /// Opens, or makes, a file of steps for adding behind its first `byteSani` bytes; what lies
  /// behind them goes. Null when another program has it, or it cannot be opened.
  std::shared_ptr<FileDiGiornale> Apri(const Percorso& nome, std::size_t byteSani);

  /// Adds bytes; returns at once.
  void Aggiungi(const std::shared_ptr<FileDiGiornale>& file, std::string byte);

  /// Waits until all that was added is in the hands of the system.
  void Attendi();

  /// What went wrong since the last call, as the end of a sentence; empty when nothing did.
  std::string Guasto();
};

}  // namespace telarium
