#include "telarium/process_age.h"

#include <ctime>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>

namespace telarium {

std::chrono::milliseconds EtaDelProcesso() {
  std::ifstream file("/proc/self/stat");
  std::string testo;
  std::getline(file, testo);
  // The second field, the program's name in brackets, may hold blanks; the start time is the 22nd.
  std::istringstream campi(testo.substr(testo.rfind(')') + 1));
  std::string campo;
  for (int i = 3; i < 22; ++i)
    campi >> campo;
  long long avvio = 0;
  campi >> avvio;
  timespec adesso{};
  ::clock_gettime(CLOCK_BOOTTIME, &adesso);
  const long long millisecondi = adesso.tv_sec * 1000LL + adesso.tv_nsec / 1'000'000;
  return std::chrono::milliseconds(millisecondi - avvio * 1000 / ::sysconf(_SC_CLK_TCK));
}

}  // namespace telarium
