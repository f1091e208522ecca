#include "platform/check.h"

#include <cstdio>
#include <cstdlib>

#include "platform/codepage.h"

namespace telarium {

void ErroreDiProgrammazione(std::string_view descrizione) {
  std::fprintf(stderr, "Telarium: errore di programmazione: %s\n", AUtf8(descrizione).c_str());
  std::abort();
}

}  // namespace telarium
