#include "platform/qt/qt_platform.h"

#include <cstdio>
#include <cstdlib>

#include "platform/commitment.h"

namespace telarium {

// The calls that lead here come from the window library, which no exception may cross, and its
// windows hold what destructors at exit would use: so neither is the way out.
void PiattaformaQt::Termina(Fine fine) {
  AssolviImpegni();
  std::fflush(nullptr);
  std::_Exit(fine == Fine::Regolare ? EXIT_SUCCESS : EXIT_FAILURE);
}

}  // namespace telarium
