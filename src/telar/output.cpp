#include "telar/output.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium::telar {

void StampaCampi(std::initializer_list<std::string_view> campi) {
  std::string riga;
  for (const std::string_view campo : campi) {
    std::string testo = SenzaInterruzioni(campo);
    std::replace(testo.begin(), testo.end(), '\t', ' ');
    if (!riga.empty()) riga += '\t';
    riga += AUtf8(testo);
  }
  riga += '\n';
  std::fwrite(riga.data(), 1, riga.size(), stdout);
}

}  // namespace telarium::telar
