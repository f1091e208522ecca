#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "history/journal_file.h"

namespace telarium {

/// A file that a writer adds records to.
class FileDiGiornale;

/// Brings records to the disk in threads of its own, so that no command waits for it. Each one is
/// handed over to the system before the next is taken, and is on the disk within a second. A file
/// whose write fails keeps what it had and takes no more. Called by one thread.
class ScrittoreDiGiornali {
 public:
  using File = std::shared_ptr<FileDiGiornale>;

  ScrittoreDiGiornali();
  /// When all is on the disk.
  ~ScrittoreDiGiornali();

  /// From now on adds to this file, whose lock it holds until Chiudi.
  File Prendi(FileBloccato file);

  /// Adds bytes. Waits for what was added before, which the system has long had as a rule, so that
  /// a kill loses these bytes at most; but not for long.
  void Aggiungi(const File& file, std::string byte);

  /// Lets go of a file when all that was added is in it.
  void Chiudi(const File& file);

  /// Removes a file, and lets go of it, when another one that takes its place is on the disk. If
  /// that one has failed it stays.
  void Elimina(const File& file, const File& dopo);

  /// Waits until all that was asked for is in the hands of the system.
  void Attendi();

  /// Why a file takes no more; none when nothing is wrong.
  static std::error_code Guasto(const File& file);

 private:
  // Bytes to be added, or the end of a file.
  struct Incarico {
    File file;
    std::string byte;
    bool chiusura = false;
  };
  struct Scambio {
    File file, dopo;
  };

  void Incarica(Incarico incarico);
  void Scrivi(const std::stop_token& fine);
  void Consolida(const std::stop_token& fine);
  void Consolida(const std::vector<File>& file, const std::vector<Scambio>& scambi);

  std::mutex mutex_;
  std::condition_variable_any cambiato_;
  std::deque<Incarico> coda_;  // the first one is in hand
  std::vector<File> daConsolidare_;
  std::vector<Scambio> daScambiare_;
  bool lento_ = false;  // the system did not take something in time: nobody waits until it has
  std::jthread scrive_;
  std::jthread consolida_;
};

}  // namespace telarium
