#include "auxiliary/tips.h"
#include "fuzz/fuzz_target.h"
#include "platform/check.h"

using namespace telarium;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartFresh();
  const std::string_view input = TextOf(data, size);
  const Percorso file = CartellaProgramma / "TLRMTIPS.TXT";
  if (ScriviFile(file, input, Permanenza::Provvisoria)) return 0;
  Suggerimenti tips;
  tips.Carica();
  for (int draw = 0; draw < 3; ++draw) {
    Verifica(tips.Testo().find_first_of("\r\n") == std::string::npos, "a tip is one line");
    tips.Estrai();
  }
  return 0;
}
