#include "platform/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/codepage.h"
#include "platform/descriptor.h"
#include "platform/text.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

std::error_code UltimoErrore() {
  return {errno, std::generic_category()};
}

// Recent systems keep what one call wrote in blocks as large as that, and whoever maps the file
// gets a whole block into memory with each byte that is looked at.
constexpr std::size_t MaxByteScrittura = 128u << 10;

std::error_code ScriviTutto(int file, std::string_view contenuto) {
  while (!contenuto.empty()) {
    const ssize_t scritti =
        ::write(file, contenuto.data(), std::min(contenuto.size(), MaxByteScrittura));
    // Also an interruption: a pipe that nobody empties must not hold a user who wants to stop.
    if (scritti < 0) return UltimoErrore();
    contenuto.remove_prefix(static_cast<std::size_t>(scritti));
  }
  return {};
}

// A pipe without anybody at its other end is no reason to wait for one. What is open is read and
// written as usual.
Descrittore ApriSenzaAttesa(const Percorso& nome, int modo) {
  Descrittore file(::open(nome.c_str(), modo | O_CLOEXEC | O_NONBLOCK));
  if (file) ::fcntl(file.Numero(), F_SETFL, modo);
  return file;
}

std::error_code ScriviDirettamente(const Percorso& nome, std::string_view contenuto) {
  const Descrittore file = ApriSenzaAttesa(nome, O_WRONLY);
  if (!file) return UltimoErrore();
  return ScriviTutto(file.Numero(), contenuto);
}

// The rights that the new file shall have: those of the file that it replaces, or the usual ones.
mode_t DirittiPer(const Percorso& nome) {
  struct stat stato {};
  if (::stat(nome.c_str(), &stato) == 0) return stato.st_mode & 07777;
  // The mask can only be read by setting it: of two threads at once one would take the other's 0
  // for it and leave that.
  static std::mutex unoPerVolta;
  const std::lock_guard blocco(unoPerVolta);
  const mode_t maschera = ::umask(0);
  ::umask(maschera);
  return 0666 & ~maschera;
}

std::error_code ScriviContenuto(const Descrittore& file, std::string_view contenuto,
                                const Percorso& definitivo, Permanenza permanenza) {
  if (const auto errore = ScriviTutto(file.Numero(), contenuto)) return errore;
  // A file system without such rights is no reason to lose the contents.
  [[maybe_unused]] const int ignorato = ::fchmod(file.Numero(), DirittiPer(definitivo));
  if (permanenza == Permanenza::SulDisco && ::fsync(file.Numero()) != 0) return UltimoErrore();
  return {};
}

// A file without a name until it is complete: a process that is killed leaves nothing. None where
// the file system has no such files.
std::optional<std::error_code> ScriviSenzaNome(const Percorso& nome, std::string_view contenuto,
                                               Permanenza permanenza) {
  const Percorso cartella = nome.parent_path();
  const Descrittore file(
      ::open(cartella.empty() ? "." : cartella.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600));
  if (!file) return std::nullopt;
  if (const auto errore = ScriviContenuto(file, contenuto, nome, permanenza)) return errore;
  const std::string aperto = Unisci("/proc/self/fd/", file.Numero());
  if (::linkat(AT_FDCWD, aperto.c_str(), AT_FDCWD, nome.c_str(), AT_SYMLINK_FOLLOW) == 0)
    return std::error_code();
  if (errno == EEXIST) return UltimoErrore();
  return std::nullopt;
}

// A file beside the one to be written, removed again unless it took that one's place.
class FileAccanto {
 public:
  FileAccanto(const Percorso& definitivo, const Percorso& accanto) : definitivo_(definitivo) {
    const bool nomeDato = !accanto.empty() && accanto != definitivo_.filename();
    nomeDato ? Crea(definitivo_.parent_path() / accanto) : CreaConNomeNuovo();
  }

  ~FileAccanto() {
    if (!nome_.empty()) ::unlink(nome_.c_str());
  }

  FileAccanto(const FileAccanto&) = delete;
  FileAccanto& operator=(const FileAccanto&) = delete;

  std::error_code Scrivi(std::string_view contenuto, Permanenza permanenza) {
    if (!file_) return UltimoErrore();
    if (const auto errore = ScriviContenuto(file_, contenuto, definitivo_, permanenza))
      return errore;
    return file_.Chiudi();
  }

  std::error_code PrendiIlPosto() {
    if (::rename(nome_.c_str(), definitivo_.c_str()) != 0) return UltimoErrore();
    nome_.clear();
    return {};
  }

  // The same unless something has that name.
  std::error_code PrendiIlPostoLibero() {
    if (::renameat2(AT_FDCWD, nome_.c_str(), AT_FDCWD, definitivo_.c_str(), RENAME_NOREPLACE) ==
        0) {
      nome_.clear();
      return {};
    }
    // A file system that cannot do both in one step.
    if (errno != EINVAL && errno != ENOSYS) return UltimoErrore();
    std::error_code ignorato;
    if (fs::exists(fs::symlink_status(definitivo_, ignorato)))
      return std::make_error_code(std::errc::file_exists);
    return PrendiIlPosto();
  }

 private:
  void CreaConNomeNuovo() {
    // Shortened, so that a name of the greatest length has room for what is put round it.
    const std::string nome =
        Unisci('.', definitivo_.filename().string().substr(0, 200), SegnoProvvisorio, "XXXXXX");
    std::string modello = (definitivo_.parent_path() / nome).string();
    file_ = Descrittore(::mkostemp(modello.data(), O_CLOEXEC));
    if (file_) nome_ = modello;
  }

  void Crea(const Percorso& nome) {
    ::unlink(nome.c_str());
    file_ = Descrittore(::open(nome.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (file_) nome_ = nome;
  }

  Percorso definitivo_;
  Percorso nome_;
  Descrittore file_;
};

// The file that the user means by a symbolic link, whether it exists yet or not.
Percorso DietroICollegamenti(Percorso nome) {
  std::error_code errore;
  for (int i = 0; i < 40 && fs::is_symlink(fs::symlink_status(nome, errore)); ++i) {
    nome = nome.parent_path() / fs::read_symlink(nome, errore);
  }
  return nome;
}

// The rename itself reaches the disk with the folder. A file system that cannot do this has done
// all it can.
void FissaCartella(const Percorso& cartella) {
  Descrittore aperta(::open(cartella.empty() ? "." : cartella.c_str(), O_RDONLY | O_CLOEXEC));
  if (aperta) ::fsync(aperta.Numero());
}

std::string InMaiuscole(const Percorso& nome) {
  if (const auto testo = DaUtf8Esatto(nome.string())) return Maiuscole(*testo);
  // In a name that the code page cannot write only the letters of ASCII have two cases.
  std::string byte = nome.string();
  for (char& uno : byte)
    if (static_cast<unsigned char>(uno) < 0x80) uno = Maiuscola(uno);
  return byte;
}

bool CorrispondeAlModello(std::string_view nome, std::string_view modello) {
  if (modello.empty()) return nome.empty();
  if (modello.front() == '*') {
    return CorrispondeAlModello(nome, modello.substr(1)) ||
           (!nome.empty() && CorrispondeAlModello(nome.substr(1), modello));
  }
  return !nome.empty() && (modello.front() == '?' || modello.front() == nome.front()) &&
         CorrispondeAlModello(nome.substr(1), modello.substr(1));
}

bool EsisteFile(const Percorso& nome) {
  std::error_code errore;
  const auto stato = fs::status(nome, errore);
  return fs::exists(stato) && !fs::is_directory(stato);
}

// The names of the entries of a folder for which `condizione` holds, in the order of the bytes.
template <class Condizione>
std::vector<Percorso> NomiDelleVoci(const Percorso& cartella, std::error_code& errore,
                                    Condizione condizione) {
  std::vector<Percorso> nomi;
  const fs::path aperta = cartella.empty() ? fs::path(".") : cartella;
  for (fs::directory_iterator voce(aperta, errore), fine; !errore && voce != fine;
       voce.increment(errore)) {
    if (condizione(*voce)) nomi.push_back(voce->path().filename());
  }
  std::sort(nomi.begin(), nomi.end());
  return nomi;
}

// The first entry, a folder or none, of that name whatever the case of the letters behind the last
// separator.
std::optional<Percorso> TrovaVoce(const Percorso& esatto, bool unaCartella) {
  if (esatto.filename().empty()) return std::nullopt;
  const std::string cercato = InMaiuscole(esatto.filename());
  std::error_code ignorato;
  const auto trovati =
      NomiDelleVoci(esatto.parent_path(), ignorato, [&](const fs::directory_entry& voce) {
        std::error_code nonCartella;
        return InMaiuscole(voce.path().filename()) == cercato &&
               voce.is_directory(nonCartella) == unaCartella;
      });
  if (trovati.empty()) return std::nullopt;
  return esatto.parent_path() / trovati.front();
}

// How many bytes an open file has, and the error when it is none that can be read.
std::error_code MisuraDaLeggere(const Descrittore& file, std::uintmax_t& misura) {
  struct stat stato {};
  if (!file || ::fstat(file.Numero(), &stato) != 0)
    return errno == ENXIO ? ErroreNonUnFile() : UltimoErrore();
  if (S_ISDIR(stato.st_mode)) return std::make_error_code(std::errc::is_a_directory);
  if (!S_ISREG(stato.st_mode)) return ErroreNonUnFile();
  misura = static_cast<std::uintmax_t>(stato.st_size);
  return {};
}

EsitoLettura EsitoDi(const std::error_code& errore) {
  for (const int assente : {ENOENT, ENOTDIR, ENAMETOOLONG, EISDIR})
    if (errore.value() == assente) return EsitoLettura::Assente;
  return EsitoLettura::Illeggibile;
}

}  // namespace

EsitoLettura LeggiFile(const Percorso& nome, std::size_t massimo, std::string& contenuto,
                       std::error_code& errore) {
  contenuto.clear();
  const Descrittore file = ApriSenzaAttesa(nome, O_RDONLY);
  std::uintmax_t misura = 0;
  if ((errore = MisuraDaLeggere(file, misura))) return EsitoDi(errore);
  if (misura > massimo) {
    errore = std::make_error_code(std::errc::file_too_large);
    return EsitoLettura::TroppoGrande;
  }
  // One byte more than the file should have, so that a file of the told size ends in one read.
  std::size_t letti = 0;
  contenuto.resize(static_cast<std::size_t>(misura) + 1);
  for (;;) {
    const ssize_t n = ::read(file.Numero(), contenuto.data() + letti, contenuto.size() - letti);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) errore = UltimoErrore();
    if (n <= 0) {
      contenuto.resize(n == 0 ? letti : 0);
      return n == 0 ? EsitoLettura::Letto : EsitoLettura::Illeggibile;
    }
    letti += static_cast<std::size_t>(n);
    if (letti > massimo) {
      contenuto.clear();
      errore = std::make_error_code(std::errc::file_too_large);
      return EsitoLettura::TroppoGrande;
    }
    if (letti == contenuto.size()) contenuto.resize(std::min(2 * letti, massimo + 1));
  }
}

EsitoLettura LeggiFile(const Percorso& nome, std::size_t massimo, std::string& contenuto) {
  std::error_code ignorato;
  return LeggiFile(nome, massimo, contenuto, ignorato);
}

std::error_code ErroreNonUnFile() {
  return std::make_error_code(std::errc::invalid_seek);  // what has no beginning to go to
}

std::error_code ScriviFile(const Percorso& nome, std::string_view contenuto, Permanenza permanenza,
                           const Percorso& accanto) {
  std::error_code errore;
  const auto stato = fs::status(nome, errore);
  if (fs::is_directory(stato)) return std::make_error_code(std::errc::is_a_directory);
  if (fs::exists(stato) && !fs::is_regular_file(stato)) return ScriviDirettamente(nome, contenuto);

  const Percorso definitivo = DietroICollegamenti(nome);
  // The folder would allow it, but whoever protected the file does not want it written over.
  if (!FileModificabile(definitivo) && errno != ENOENT) return UltimoErrore();
  FileAccanto nuovo(definitivo, accanto);
  if ((errore = nuovo.Scrivi(contenuto, permanenza))) return errore;
  if ((errore = nuovo.PrendiIlPosto())) return errore;
  if (permanenza == Permanenza::SulDisco) FissaCartella(definitivo.parent_path());
  return {};
}

std::error_code ScriviFileNuovo(const Percorso& nome, std::string_view contenuto,
                                Permanenza permanenza) {
  std::error_code errore;
  if (fs::exists(fs::symlink_status(nome, errore)))
    return std::make_error_code(std::errc::file_exists);
  if (const auto esito = ScriviSenzaNome(nome, contenuto, permanenza)) {
    errore = *esito;
  } else {
    FileAccanto nuovo(nome, {});
    errore = nuovo.Scrivi(contenuto, permanenza);
    if (!errore) errore = nuovo.PrendiIlPostoLibero();
  }
  if (!errore && permanenza == Permanenza::SulDisco) FissaCartella(nome.parent_path());
  return errore;
}

std::string DescrizioneErrore(const std::error_code& errore) {
  struct Voce {
    int codice;
    std::string_view testo;
  };
  constexpr Voce voci[] = {
      {ENOSPC, "il disco è pieno"_cp},
      {EDQUOT, "lo spazio concesso sul disco è esaurito"_cp},
      {EACCES, "manca il permesso"_cp},
      {EPERM, "manca il permesso"_cp},
      {EROFS, "il disco è di sola lettura"_cp},
      {ENOENT, "il file o la cartella non esiste"_cp},
      {ENOTDIR, "il percorso non è una cartella"_cp},
      {EISDIR, "il nome è quello di una cartella"_cp},
      {EEXIST, "il nome è già occupato"_cp},
      {EFBIG, "il file è troppo grande"_cp},
      {ENAMETOOLONG, "il nome è troppo lungo"_cp},
      {EIO, "il disco ha un difetto"_cp},
      {ELOOP, "il collegamento porta a se stesso"_cp},
      {EMFILE, "troppi file sono aperti"_cp},
      {ESPIPE, "non è un file ma una pipe o un dispositivo"_cp},
      {ENXIO, "nessuno legge all'altro capo"_cp},
      {EPIPE, "nessuno legge all'altro capo"_cp},
      {EINTR, "l'operazione è stata interrotta"_cp},
      {ENOMEM, "la memoria è esaurita"_cp},
  };
  for (const auto& [codice, testo] : voci) {
    if (errore.value() == codice) return std::string(testo);
  }
  return "errore di sistema " + std::to_string(errore.value());
}

std::string ConCausa(std::string_view messaggio, const Percorso& nome, std::string_view causa) {
  if (causa.empty()) return std::string(messaggio);
  return Unisci(messaggio, '\n', TestoPercorso(nome), ": ", causa, '.');
}

std::string ConCausa(std::string_view messaggio, const Percorso& nome,
                     const std::error_code& errore) {
  return ConCausa(messaggio, nome, errore ? DescrizioneErrore(errore) : std::string());
}

std::optional<Percorso> TrovaFile(const Percorso& cartella, const Percorso& nome) {
  const Percorso esatto = cartella / nome;
  if (EsisteFile(esatto)) return esatto;
  return TrovaVoce(esatto, false);
}

Percorso PercorsoDellaCartella(const Percorso& cartella, const Percorso& nome) {
  const Percorso esatto = cartella / nome;
  std::error_code ignorato;
  if (fs::is_directory(esatto, ignorato)) return esatto;
  return TrovaVoce(esatto, true).value_or(esatto);
}

Percorso PercorsoNellaCartella(const Percorso& cartella, const Percorso& nome) {
  return TrovaFile(cartella, nome).value_or(cartella / nome);
}

std::vector<Percorso> ElencaFile(const Percorso& cartella, std::string_view modello) {
  const std::string capitali = Maiuscole(modello);
  std::error_code ignorato;
  return NomiDelleVoci(cartella, ignorato, [&](const fs::directory_entry& voce) {
    std::error_code nonFile;
    return CorrispondeAlModello(InMaiuscole(voce.path().filename()), capitali) &&
           voce.is_regular_file(nonFile);
  });
}

std::error_code ElencaCartelle(const Percorso& cartella, std::vector<Percorso>& cartelle) {
  std::error_code errore;
  std::vector<Percorso> nomi = NomiDelleVoci(cartella, errore, [](const fs::directory_entry& voce) {
    std::error_code illeggibile;
    return !FileNascosto(voce.path()) && voce.is_directory(illeggibile);
  });
  if (!errore) cartelle = std::move(nomi);
  return errore;
}

std::error_code ErroreDellaCartella(const Percorso& cartella) {
  std::vector<Percorso> ignorate;
  return ElencaCartelle(cartella, ignorate);
}

bool FileOrdinario(const Percorso& nome) {
  std::error_code ignorato;
  return fs::is_regular_file(nome, ignorato);
}

bool FileModificabile(const Percorso& nome) {
  return ::faccessat(AT_FDCWD, nome.c_str(), W_OK, AT_EACCESS) == 0;
}

bool FileNascosto(const Percorso& nome) {
  return nome.filename().native().starts_with('.');
}

std::string TestoPercorso(const Percorso& nome) {
  return DaUtf8(nome.string());
}

bool CartellaScrivibile(const Percorso& cartella) {
  std::string modello = (cartella / Unisci(".prova", SegnoProvvisorio, "XXXXXX")).string();
  const int descrittore = ::mkstemp(modello.data());
  if (descrittore < 0) return false;
  ::close(descrittore);
  ::unlink(modello.c_str());
  return true;
}

}  // namespace telarium
