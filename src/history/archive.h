#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include "history/journal.h"
#include "history/journal_file.h"

// The files of steps of a user, one for each crossword, in one folder. Several programs may use it
// at once; each file belongs to the one that has it open. Their names begin with a digest of the
// crossword's path, so that they are found from it; two programs with the same crossword have one
// each.
namespace telarium {

/// How long and how much is kept; the oldest goes first. Work that nobody saved and nobody gave up
/// stays for all of the days, however much there is.
struct LimitiDellArchivio {
  std::chrono::days giorni{30};
  std::size_t cruciverba = 50;
  std::uintmax_t byte = std::uintmax_t{256} << 20;
};

/// Work that is in no file of a crossword: what a crash, a kill or a discarded end has left.
struct LavoroPerso {
  Percorso giornale;                // its file of steps
  Percorso nome;                    // that the crossword had
  bool maiSalvato = false;          // the name was none of a file yet
  std::chrono::sys_seconds quando;  // of the last change
  Cruciverba cruciverba;
};

/// A file of steps in the hands of this program, and what it holds.
struct GiornaleTrovato {
  FileBloccato file;
  Giornale giornale;
};

class ArchivioDelleCronologie {
 public:
  explicit ArchivioDelleCronologie(Percorso cartella) : cartella_(std::move(cartella)) {}

  const Percorso& Cartella() const { return cartella_; }

  /// Whether two paths are those of one crossword.
  static bool StessoCruciverba(const Percorso& uno, const Percorso& altro);

  /// A new file of steps for a crossword of that path; for one that was never saved without a path.
  /// None, with the cause, when none can be made.
  std::optional<FileBloccato> Crea(const Percorso& nome, std::error_code& errore) const;

  /// The youngest one for a crossword of that path, but for those that a program has open or a
  /// newer version has written. What is damaged is cut off.
  std::optional<GiornaleTrovato> Trova(const Percorso& nome) const;

  /// That very file, as LavoriPersi tells it.
  static std::optional<GiornaleTrovato> Apri(const Percorso& giornale);

  /// What can be recovered, the youngest first, but for what a program has open.
  std::vector<LavoroPerso> LavoriPersi() const;

  /// Gives lost work up: the steps stay behind what the file of the crossword holds; of one that
  /// was never saved nothing does.
  std::error_code Scarta(const LavoroPerso& lavoro) const;

  /// The file of a crossword has been written: lost work that is in it now is lost no more.
  void Salvato(const FileDelCruciverba& file) const;

  /// Removes what is past the limits, but for files in use and those of newer versions.
  void Sfoltisci(const LimitiDellArchivio& limiti, std::chrono::sys_seconds adesso) const;

 private:
  Percorso cartella_;
};

}  // namespace telarium
