#include "platform/qt/qt_platform.h"

#include <cstdio>
#include <cstdlib>

namespace telarium {

void PiattaformaQt::Termina() {
  std::fflush(nullptr);
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace telarium
