#include "telar/output.h"

#include <algorithm>
#include <cstdio>
#include <poll.h>
#include <string>
#include <unistd.h>

#include "model/cells.h"
#include "platform/codepage.h"

namespace telarium::telar {
namespace {

bool Separa(char c) {
  return c == '\t' || c == '\r' || c == '\n' || c == '\0';
}

}  // namespace

void StampaCampi(std::initializer_list<std::string_view> campi) {
  std::string riga;
  for (const std::string_view campo : campi) {
    // Character by character: a field of cells keeps its length.
    std::string testo(campo);
    std::replace_if(testo.begin(), testo.end(), Separa, ' ');
    riga += AUtf8(testo);
    riga += '\t';
  }
  riga.back() = '\n';
  std::fwrite(riga.data(), 1, riga.size(), stdout);
}

bool LettoreAndato() {
  pollfd uscita = {STDOUT_FILENO, 0, 0};
  return ::poll(&uscita, 1, 0) > 0 && (uscita.revents & (POLLERR | POLLHUP)) != 0;
}

std::string_view Sigla(int direzione) {
  if (direzione == Orizzontale) return "O";
  return direzione == Verticale ? "V" : "";
}

}  // namespace telarium::telar
