#include "telarium/desktop_lock.h"

#include <charconv>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::size_t MaxByteBlocco = 1024;
constexpr int MaxTentativi = 20;  // a holder that ends removes the file between two steps of ours

std::error_code UltimoErrore() {
  return {errno, std::generic_category()};
}

// Also a file that may only be read can be locked, as that of another user.
Descrittore ApriBlocco(const Percorso& nome) {
  constexpr int modo = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  Descrittore file(::open(nome.c_str(), O_RDWR | O_CREAT | modo, 0644));
  if (!file && (errno == EACCES || errno == EROFS)) {
    const int prima = errno;
    file = Descrittore(::open(nome.c_str(), O_RDONLY | modo));
    if (!file) errno = prima;
  }
  return file;
}

bool EsisteVoce(const Percorso& nome) {
  struct stat stato {};
  return ::lstat(nome.c_str(), &stato) == 0;
}

// Whether the open file is still the one of that name.
bool StessoFile(const Descrittore& file, const Percorso& nome) {
  struct stat aperto {
  }, nominato{};
  return ::fstat(file.Numero(), &aperto) == 0 && ::stat(nome.c_str(), &nominato) == 0 &&
         aperto.st_dev == nominato.st_dev && aperto.st_ino == nominato.st_ino;
}

std::string QuestoComputer() {
  char nome[256] = "";
  ::gethostname(nome, sizeof nome - 1);
  return nome;
}

// What is none of our lines tells nothing.
Proprietario LeggiProprietario(const Descrittore& file) {
  std::string testo(MaxByteBlocco, '\0');
  const ssize_t letti = ::pread(file.Numero(), testo.data(), testo.size(), 0);
  testo.resize(letti > 0 ? static_cast<std::size_t>(letti) : 0);
  LettoreDiRighe righe(testo);
  std::string_view processo, programma, computer;
  Proprietario chi;
  if (!righe.Prossima(processo) || !righe.Prossima(programma) || !righe.Prossima(computer))
    return chi;
  const auto [fine, errore] =
      std::from_chars(processo.data(), processo.data() + processo.size(), chi.processo);
  const bool nostre = errore == std::errc() && fine == processo.data() + processo.size() &&
                      chi.processo > 0 && testo.find('\0') == std::string::npos;
  if (!nostre) return {};
  chi.computer = computer;
  return chi;
}

}  // namespace

BloccoDesktop::~BloccoDesktop() {
  if (nostro_ && StessoFile(file_, nome_)) ::unlink(nome_.c_str());
}

EsitoBlocco BloccoDesktop::Fallito(EsitoBlocco esito, const std::error_code& errore) {
  errore_ = errore;
  return esito;
}

EsitoBlocco BloccoDesktop::Prendi(const Percorso& nome) {
  nome_ = nome;
  for (int i = 0; i < MaxTentativi; ++i) {
    Descrittore file = ApriBlocco(nome);
    if (!file) {
      const std::error_code errore = UltimoErrore();
      return Fallito(EsisteVoce(nome) ? EsitoBlocco::Inservibile : EsitoBlocco::Impossibile,
                     errore);
    }
    struct stat stato {};
    if (::fstat(file.Numero(), &stato) != 0 || !S_ISREG(stato.st_mode))
      return Fallito(EsitoBlocco::Inservibile, ErroreNonUnFile());
    if (::flock(file.Numero(), LOCK_EX | LOCK_NB) != 0) {
      if (errno != EWOULDBLOCK) return Fallito(EsitoBlocco::Impossibile, UltimoErrore());
      chi_ = LeggiProprietario(file);
      return EsitoBlocco::Occupato;
    }
    if (!StessoFile(file, nome)) continue;
    file_ = std::move(file);
    chi_ = LeggiProprietario(file_);
    if (!chi_.computer.empty() && chi_.computer != QuestoComputer()) return EsitoBlocco::Estraneo;
    Firma();
    return EsitoBlocco::Preso;
  }
  return EsitoBlocco::Occupato;
}

// A disk that takes no lines costs nothing: the system holds the lock.
void BloccoDesktop::Firma() {
  nostro_ = true;
  const std::string righe = Unisci(::getpid(), "\ntelarium\n", QuestoComputer(), '\n');
  if (::ftruncate(file_.Numero(), 0) != 0) return;
  [[maybe_unused]] const auto ignorato = ::pwrite(file_.Numero(), righe.data(), righe.size(), 0);
}

}  // namespace telarium
