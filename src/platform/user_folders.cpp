#include "platform/user_folders.h"

#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace telarium {
namespace {

Percorso Ambiente(const char* variabile) {
  const char* valore = std::getenv(variabile);
  return valore ? Percorso(valore) : Percorso();
}

Percorso Casa() {
  Percorso casa = Ambiente("HOME");
  if (casa.empty()) {
    const passwd* utente = ::getpwuid(::getuid());
    if (utente && utente->pw_dir) casa = utente->pw_dir;
  }
  return casa;
}

Percorso CartellaXdg(const char* variabile, const char* nellaCasa) {
  const Percorso nominata = Ambiente(variabile);
  if (nominata.is_absolute()) return nominata / "telarium";  // a relative value is to be ignored
  const Percorso casa = Casa();
  return casa.is_absolute() ? casa / nellaCasa / "telarium" : Percorso();
}

}  // namespace

Percorso CartellaDatiUtente() {
  return CartellaXdg("XDG_DATA_HOME", ".local/share");
}

Percorso CartellaCacheUtente() {
  return CartellaXdg("XDG_CACHE_HOME", ".cache");
}

Percorso CartellaStatoUtente() {
  return CartellaXdg("XDG_STATE_HOME", ".local/state");
}

std::error_code CreaCartellaPrivata(const Percorso& cartella) {
  std::error_code ignorato;
  if (std::filesystem::is_directory(cartella, ignorato)) return {};
  if (cartella.has_relative_path() && cartella.has_parent_path()) {
    if (const auto errore = CreaCartellaPrivata(cartella.parent_path())) return errore;
  }
  // Another program may have been faster.
  if (::mkdir(cartella.c_str(), 0700) == 0 || errno == EEXIST) return {};
  return {errno, std::generic_category()};
}

}  // namespace telarium
