#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include "history/journal.h"
#include "platform/files.h"

// The files of steps of a user, one for each crossword, in one folder. Several programs may use it
// at once; each file belongs to the one that has it open.
namespace telarium {

/// How long and how much is kept; the oldest goes first. What nobody saved and nobody gave up is
/// not counted and stays 30 days too.
struct LimitiDellArchivio {
  std::chrono::days giorni{30};
  std::size_t cruciverba = 50;
  std::uintmax_t byte = std::uintmax_t{256} << 20;
};

/// Work that is in no file of a crossword: found after a crash, a kill or a discarded end.
struct LavoroPerso {
  Percorso giornale;                // its file of steps
  Percorso nome;                    // that the crossword had
  std::chrono::sys_seconds quando;  // of the last change
  Cruciverba cruciverba;
};

class ArchivioDelleCronologie {
 public:
  explicit ArchivioDelleCronologie(Percorso cartella) : cartella_(std::move(cartella)) {}

  /// The file of steps for a crossword of that path, whether it exists or not; for one that was
  /// never saved a new name each time.
  Percorso FilePer(const Percorso& nome) const;

  /// What can be recovered, the youngest first, but for what another program has open.
  std::vector<LavoroPerso> LavoriPersi() const;

  /// Gives lost work up: the crossword goes back to what its file holds.
  std::error_code Scarta(const Percorso& giornale);

  /// Removes what is past the limits, but for files in use and those of newer versions.
  void Sfoltisci(const LimitiDellArchivio& limiti, std::chrono::sys_seconds adesso);

 private:
  Percorso cartella_;
};

}  // namespace telarium
