#include "platform/program_folder.h"

#include <cstdlib>
#include <limits>
#include <pwd.h>
#include <unistd.h>

#include "platform/platform.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

Percorso Ambiente(const char* variabile) {
  const char* valore = std::getenv(variabile);
  return valore ? Percorso(valore) : Percorso();
}

Percorso CartellaUtente() {
  const Percorso dati = Ambiente("XDG_DATA_HOME");
  if (dati.is_absolute()) return dati / "telarium";  // a relative value is to be ignored
  Percorso casa = Ambiente("HOME");
  if (casa.empty()) {
    const passwd* utente = ::getpwuid(::getuid());
    if (utente && utente->pw_dir) casa = utente->pw_dir;
  }
  return casa.is_absolute() ? casa / ".local/share/telarium" : Percorso();
}

bool CopiaFile(const Percorso& da, const Percorso& a) {
  std::string contenuto;
  return LeggiFile(da, std::numeric_limits<std::int32_t>::max(), contenuto) ==
             EsitoLettura::Letto &&
         !ScriviFile(a, contenuto, Permanenza::Provvisoria);
}

}  // namespace

Percorso CartellaEseguibile() {
  std::error_code errore;
  return fs::read_symlink("/proc/self/exe", errore).parent_path();
}

Percorso CartellaDatiInstallati() {
  return (CartellaEseguibile() / "../share/telarium").lexically_normal();
}

SceltaCartella ScegliCartellaProgramma() {
  std::error_code errore;
  if (const Percorso nominata = Ambiente("TELARIUM_CARTELLA"); !nominata.empty()) {
    return {fs::absolute(nominata, errore), false};
  }
  const Percorso accanto = CartellaEseguibile();
  if (!accanto.empty() && TrovaFile(accanto, "telarium.INI")) return {accanto, false};
  const Percorso utente = CartellaUtente();
  return {utente, !utente.empty()};
}

std::vector<Percorso> RiempiCartella(const Percorso& installati, const Percorso& cartella) {
  std::vector<Percorso> falliti;
  std::error_code errore;
  fs::create_directories(cartella, errore);
  for (fs::recursive_directory_iterator
           voce(installati, fs::directory_options::skip_permission_denied, errore),
       fine;
       !errore && voce != fine; voce.increment(errore)) {
    std::error_code ignorato;
    const Percorso relativo = voce->path().lexically_relative(installati);
    if (voce->is_directory(ignorato)) {
      fs::create_directories(cartella / relativo, ignorato);
    } else if (!TrovaFile(cartella, relativo) && !CopiaFile(voce->path(), cartella / relativo)) {
      falliti.push_back(relativo);
    }
  }
  if (errore) falliti.push_back(installati);
  return falliti;
}

Percorso PreparaCartellaProgramma() {
  const SceltaCartella scelta = ScegliCartellaProgramma();
  if (scelta.cartella.empty()) {
    Avvisa("Impossibile stabilire la cartella programma: manca la cartella dell'utente (HOME).");
    return {};
  }
  if (!scelta.daRiempire) return scelta.cartella;
  std::string falliti;
  for (const Percorso& fallito : RiempiCartella(CartellaDatiInstallati(), scelta.cartella))
    falliti += (falliti.empty() ? "" : ", ") + TestoPercorso(fallito);
  if (!falliti.empty()) Avvisa("Impossibile copiare nella cartella programma: " + falliti);
  return scelta.cartella;
}

}  // namespace telarium
