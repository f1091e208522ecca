#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// Files for one operation: nothing stays open between two calls.
namespace telarium {

using Percorso = std::filesystem::path;

enum class EsitoLettura {
  Letto,
  Assente,       // there is no file of that name (a folder is none)
  Illeggibile,   // there is one, but it cannot be read, or it is a pipe or device
  TroppoGrande,  // more bytes than the caller takes
};

/// Reads a whole file of at most `massimo` bytes. `contenuto` is empty unless the outcome is Letto;
/// `errore` then says why, for a message. A pipe or device, which could keep a reader waiting for
/// ever or never end, is refused.
[[nodiscard]] EsitoLettura LeggiFile(const Percorso& nome, std::size_t massimo,
                                     std::string& contenuto, std::error_code& errore);

/// The same for a caller who tells no cause.
[[nodiscard]] EsitoLettura LeggiFile(const Percorso& nome, std::size_t massimo,
                                     std::string& contenuto);

/// The error of a pipe, a device or a socket in the place of a file that is to be read.
std::error_code ErroreNonUnFile();

/// Whether a written file must survive a power cut at once or may lag behind.
enum class Permanenza { SulDisco, Provvisoria };

/// Writes a whole file: beside it first, then renamed over it, so that a failure at any moment
/// leaves what was there. A device or pipe is written to directly. Gives the system's error, 0 for
/// none. `accanto` is the file name to write under until then, in the folder of the file; another
/// file of that name is removed first. Without one a new name is made.
[[nodiscard]] std::error_code ScriviFile(const Percorso& nome, std::string_view contenuto,
                                         Permanenza permanenza = Permanenza::SulDisco,
                                         const Percorso& accanto = {});

/// Writes a whole file where there is none: one that is there, or that another program makes
/// meanwhile, stays, with the error file_exists. Else as ScriviFile.
[[nodiscard]] std::error_code ScriviFileNuovo(const Percorso& nome, std::string_view contenuto,
                                              Permanenza permanenza = Permanenza::SulDisco);

/// What an error of the file system means, in Italian, as the end of a sentence.
std::string DescrizioneErrore(const std::error_code& errore);

/// A message about a file that could not be read or written, and behind it, as a sentence on a line
/// of its own, the file's name and the cause. The message alone when no cause is known.
std::string ConCausa(std::string_view messaggio, const Percorso& nome, std::string_view causa);
std::string ConCausa(std::string_view messaggio, const Percorso& nome,
                     const std::error_code& errore);

/// The file of that name in a folder, whatever the case of its letters: the exact name before all
/// others, else the first in the order of the bytes. `nome` may hold folders, which are taken as
/// they stand; an absolute `nome` leaves the folder out. None when there is no such file.
std::optional<Percorso> TrovaFile(const Percorso& cartella, const Percorso& nome);

/// TrovaFile, or where it finds nothing the name in the folder as it stands: for opening and
/// making.
Percorso PercorsoNellaCartella(const Percorso& cartella, const Percorso& nome);

/// The folder of that name in a folder, found likewise; the name in it as it stands when there is
/// none.
Percorso PercorsoDellaCartella(const Percorso& cartella, const Percorso& nome);

/// The names of the ordinary files of a folder that match a pattern with "*" and "?", whatever
/// their case, in the order of the bytes. An unreadable folder gives none.
std::vector<Percorso> ElencaFile(const Percorso& cartella, std::string_view modello);

/// The names of the folders in a folder but for hidden ones, in the order of the bytes. The error
/// of reading it, 0 for none; then `cartelle` stays as it was.
[[nodiscard]] std::error_code ElencaCartelle(const Percorso& cartella,
                                             std::vector<Percorso>& cartelle);

/// Why a folder cannot be read.
std::error_code ErroreDellaCartella(const Percorso& cartella);

/// Whether a name is that of an ordinary file, or of a link to one. A pipe or a terminal could keep
/// a reader waiting for ever.
bool FileOrdinario(const Percorso& nome);

/// Whether a file is there and not protected against changes.
bool FileModificabile(const Percorso& nome);

/// Whether the system's own lists leave a file or folder out.
bool FileNascosto(const Percorso& nome);

/// A file name as text for a message or a page: in the code page, "?" for what that cannot write.
std::string TestoPercorso(const Percorso& nome);

/// Whether new files can be made in a folder, found out by making one.
bool CartellaScrivibile(const Percorso& cartella);

/// What the names of the files end in that are written beside their target, before six letters of
/// the system's choice; they begin with a point.
inline constexpr std::string_view SegnoProvvisorio = ".telarium-";

}  // namespace telarium
