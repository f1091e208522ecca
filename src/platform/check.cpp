#include "platform/check.h"

#include <cstdio>
#include <cstdlib>

namespace telarium {

void ErroreDiProgrammazione(std::string_view descrizione) {
  std::fprintf(stderr, "Telarium: errore di programmazione: %.*s\n",
               static_cast<int>(descrizione.size()), descrizione.data());
  std::abort();
}

}  // namespace telarium
