#include "history/journal_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace telarium {
namespace {

std::error_code UltimoErrore() {
  return {errno, std::generic_category()};
}

std::error_code EsitoDi(int risultato) {
  return risultato == 0 ? std::error_code() : UltimoErrore();
}

bool Blocca(int numero) {
  while (::flock(numero, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EINTR) return errno != EWOULDBLOCK;
  }
  return true;
}

// All of the bytes, in as many calls as the system wants.
std::error_code ScriviTutto(int numero, std::string_view byte, std::size_t dove) {
  while (!byte.empty()) {
    const ssize_t scritti = ::pwrite(numero, byte.data(), byte.size(), static_cast<off_t>(dove));
    if (scritti < 0 && errno == EINTR) continue;
    if (scritti < 0) return UltimoErrore();
    if (scritti == 0) return std::make_error_code(std::errc::no_space_on_device);
    byte.remove_prefix(static_cast<std::size_t>(scritti));
    dove += static_cast<std::size_t>(scritti);
  }
  return {};
}

}  // namespace

std::optional<FileBloccato> FileBloccato::Prendi(const Percorso& nome, int modo,
                                                 std::error_code& errore) {
  Descrittore aperto(
      ::open(nome.c_str(), modo | O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, S_IRUSR | S_IWUSR));
  struct stat dati;
  if (!aperto || ::fstat(aperto.Numero(), &dati) != 0) {
    errore = UltimoErrore();
    return std::nullopt;
  }
  if (!S_ISREG(dati.st_mode)) {
    errore = ErroreNonUnFile();
    return std::nullopt;
  }
  // Who had it before may have taken it away meanwhile.
  const bool preso = Blocca(aperto.Numero()) && ::fstat(aperto.Numero(), &dati) == 0;
  if (!preso || dati.st_nlink == 0) {
    errore = std::make_error_code(std::errc::resource_unavailable_try_again);
    return std::nullopt;
  }
  FileBloccato file(nome, std::move(aperto));
  file.byte_ = static_cast<std::size_t>(dati.st_size);
  return file;
}

std::optional<FileBloccato> FileBloccato::Apri(const Percorso& nome, std::error_code& errore) {
  return Prendi(nome, 0, errore);
}

std::optional<FileBloccato> FileBloccato::Crea(const Percorso& nome, std::error_code& errore) {
  return Prendi(nome, O_CREAT | O_EXCL, errore);
}

std::error_code FileBloccato::Leggi(std::string& contenuto) {
  contenuto.clear();
  if (byte_ > MaxByte) return std::make_error_code(std::errc::file_too_large);
  return Leggi(0, byte_, contenuto);
}

std::error_code FileBloccato::Leggi(std::size_t da, std::size_t quanti, std::string& contenuto) {
  contenuto.resize(quanti);
  std::size_t letti = 0;
  while (letti < contenuto.size()) {
    const ssize_t ora = ::pread(aperto_.Numero(), contenuto.data() + letti,
                                contenuto.size() - letti, static_cast<off_t>(da + letti));
    if (ora < 0 && errno == EINTR) continue;
    if (ora < 0) return UltimoErrore();
    if (ora == 0) break;
    letti += static_cast<std::size_t>(ora);
  }
  contenuto.resize(letti);
  return {};
}

std::error_code FileBloccato::Tronca(std::size_t byte) {
  if (byte == byte_) return {};
  const auto errore = EsitoDi(::ftruncate(aperto_.Numero(), static_cast<off_t>(byte)));
  if (!errore) byte_ = byte;
  return errore;
}

std::error_code FileBloccato::Aggiungi(std::string_view byte) {
  if (const auto errore = ScriviTutto(aperto_.Numero(), byte, byte_)) {
    // What came through of it would be read as damage.
    [[maybe_unused]] const int ignorato = ::ftruncate(aperto_.Numero(), static_cast<off_t>(byte_));
    return errore;
  }
  byte_ += byte.size();
  return {};
}

std::error_code FileBloccato::Consolida() {
  return EsitoDi(::fdatasync(aperto_.Numero()));
}

std::error_code FileBloccato::Elimina() {
  return EsitoDi(::unlink(nome_.c_str()));
}

void FileBloccato::Libera() {
  ::flock(aperto_.Numero(), LOCK_UN);
}

}  // namespace telarium
