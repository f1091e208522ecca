#include "auxiliary/information.h"

#include <algorithm>
#include <vector>

#include "platform/platform.h"
#include "telarium_version.h"

namespace telarium {
namespace {

// Programs with their arguments. Those that tell about the whole system come before those that show
// its load alone.
const std::vector<std::string> programmi[] = {
    {"kinfocenter"},
    {"gnome-control-center", "info-overview"},
    {"cinnamon-settings", "info"},
    {"hardinfo2"},
    {"hardinfo"},
    {"xfce4-about"},
    {"plasma-systemmonitor"},
    {"gnome-system-monitor"},
    {"mate-system-monitor"},
    {"xfce4-taskmanager"},
    {"lxtask"},
};

}  // namespace

std::string TitoloConVersione() {
  std::string titolo = "Telarium - Versione  ";
  for (const char cifra : std::string_view(TELARIUM_VERSION)) {
    titolo += cifra;
    if (cifra == '.') titolo += ' ';
  }
  return titolo;
}

void StartSysInfo() {
  const auto parte = [](const std::vector<std::string>& parole) {
    return Sistema().ApriProgramma(parole);
  };
  if (std::any_of(std::begin(programmi), std::end(programmi), parte)) return;
  Avvisa("Informazioni di sistema non disponibili in questo momento");
}

}  // namespace telarium
