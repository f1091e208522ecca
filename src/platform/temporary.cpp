#include "platform/temporary.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace telarium {
namespace {

namespace fs = std::filesystem;

constexpr std::time_t UnGiorno = 24 * 60 * 60;  // seconds
constexpr std::string_view InizioCartella = "telarium-";
constexpr std::size_t LettereCasuali = 6;  // what mkstemp and mkdtemp put into a name

// Whether a name ends in a mark of ours and the letters that the system chose.
bool HaCodaCasuale(const std::string& nome, std::string_view segno) {
  if (nome.size() < segno.size() + LettereCasuali) return false;
  const std::string_view coda = std::string_view(nome).substr(nome.size() - LettereCasuali);
  const auto alfanumerico = [](unsigned char c) {
    return (c >= '0' && c <= '9') || ((c | 32) >= 'a' && (c | 32) <= 'z');
  };
  return std::string_view(nome).substr(0, nome.size() - LettereCasuali).ends_with(segno) &&
         std::all_of(coda.begin(), coda.end(), alfanumerico);
}

// Whether something of that kind is this user's and has not changed for a day.
bool VecchioENostro(const Percorso& nome, mode_t tipo) {
  struct stat stato {};
  return ::lstat(nome.c_str(), &stato) == 0 && (stato.st_mode & S_IFMT) == tipo &&
         stato.st_uid == ::geteuid() && std::time(nullptr) - stato.st_mtime > UnGiorno;
}

std::vector<Percorso> Voci(const Percorso& cartella) {
  std::vector<Percorso> voci;
  std::error_code errore;
  for (fs::directory_iterator voce(cartella, errore), fine; !errore && voce != fine;
       voce.increment(errore))
    voci.push_back(voce->path());
  return voci;
}

bool FermaDaUnGiorno(const Percorso& cartella) {
  const std::vector<Percorso> voci = Voci(cartella);
  return VecchioENostro(cartella, S_IFDIR) &&
         std::none_of(voci.begin(), voci.end(), [](const Percorso& voce) {
           struct stat stato {};
           return ::lstat(voce.c_str(), &stato) != 0 ||
                  std::time(nullptr) - stato.st_mtime <= UnGiorno;
         });
}

Descrittore ApriCartella(const Percorso& cartella) {
  return Descrittore(::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

// A lock of the kind that goes with the descriptor. Whoever writes in a folder takes the other kind
// (flock), which this one does not get in the way of.
struct flock Blocco(short tipo) {
  struct flock blocco {};
  blocco.l_type = tipo;
  blocco.l_whence = SEEK_SET;
  return blocco;
}

bool TenutaDaQualcuno(const Descrittore& cartella) {
  struct flock blocco = Blocco(F_WRLCK);
  return ::fcntl(cartella.Numero(), F_OFD_GETLK, &blocco) != 0 || blocco.l_type != F_UNLCK;
}

}  // namespace

CartellaTemporanea::CartellaTemporanea()
    : rimozione_([this] {
        std::error_code ignorato;
        if (!nome_.empty()) fs::remove_all(nome_, ignorato);
      }) {
  std::error_code errore;
  const Percorso sopra = fs::temp_directory_path(errore);
  std::string modello = (sopra / (std::string(InizioCartella) + "XXXXXX")).string();
  if (errore || !::mkdtemp(modello.data())) return;
  nome_ = modello;
  blocco_ = ApriCartella(nome_);
  struct flock condiviso = Blocco(F_RDLCK);
  if (blocco_) ::fcntl(blocco_.Numero(), F_OFD_SETLK, &condiviso);
}

void TogliScrittureInterrotte(const Percorso& cartella) {
  for (const Percorso& voce : Voci(cartella)) {
    const std::string nome = voce.filename().string();
    if (FileNascosto(nome) && HaCodaCasuale(nome, SegnoProvvisorio) &&
        VecchioENostro(voce, S_IFREG))
      ::unlink(voce.c_str());
  }
}

void TogliCartelleAbbandonate() {
  std::error_code errore;
  const Percorso sopra = fs::temp_directory_path(errore);
  if (errore) return;
  for (const Percorso& voce : Voci(sopra)) {
    const std::string nome = voce.filename().string();
    const bool nostra = nome.size() == InizioCartella.size() + LettereCasuali &&
                        HaCodaCasuale(nome, InizioCartella);
    if (!nostra || !FermaDaUnGiorno(voce)) continue;
    const Descrittore aperta = ApriCartella(voce);
    if (aperta && !TenutaDaQualcuno(aperta)) fs::remove_all(voce, errore);
  }
}

}  // namespace telarium
