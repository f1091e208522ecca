#include "telarium/own_folder.h"

#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/text.h"

namespace telarium {
namespace {

// Empty when the variable holds no whole path, which then is to be ignored.
Percorso Ambiente(const char* variabile) {
  const char* valore = std::getenv(variabile);
  const Percorso percorso = valore ? valore : "";
  return percorso.is_absolute() ? percorso : Percorso();
}

// Whether nobody else can put another folder in the place of one in it.
bool NessunoScambia(const Percorso& sopra) {
  struct stat stato {};
  if (::stat(sopra.c_str(), &stato) != 0 || !S_ISDIR(stato.st_mode)) return false;
  const bool sicura = (stato.st_mode & 022) == 0 || (stato.st_mode & S_ISVTX) != 0;
  return sicura && (stato.st_uid == ::geteuid() || stato.st_uid == 0);
}

// Makes the folder, or takes it when it is this user's and no link.
bool Prepara(const Percorso& cartella) {
  struct stat stato {};
  if (!NessunoScambia(cartella.parent_path())) return false;
  ::mkdir(cartella.c_str(), 0700);
  if (::lstat(cartella.c_str(), &stato) != 0 || !S_ISDIR(stato.st_mode)) return false;
  if (stato.st_uid != ::geteuid()) return false;
  return (stato.st_mode & 077) == 0 || ::chmod(cartella.c_str(), 0700) == 0;
}

}  // namespace

Percorso CartellaPropria(std::size_t massimo) {
  const std::string utente = Unisci(::geteuid());
  const Percorso casa = Ambiente("HOME"), temporanea = Ambiente("TMPDIR");
  Percorso cache = Ambiente("XDG_CACHE_HOME");
  if (cache.empty() && !casa.empty()) cache = casa / ".cache";
  const Percorso sopra[] = {Ambiente("XDG_RUNTIME_DIR"), Percorso("/run/user") / utente, cache};
  for (const Percorso& una : sopra) {
    const Percorso cartella = una / "telarium";
    if (!una.empty() && cartella.native().size() <= massimo && Prepara(cartella)) return cartella;
  }
  for (const Percorso& una : {temporanea, Percorso("/tmp")}) {
    const Percorso cartella = una / ("telarium." + utente);
    if (!una.empty() && cartella.native().size() <= massimo && Prepara(cartella)) return cartella;
  }
  return {};
}

}  // namespace telarium
