#include <cstddef>
#include <cstring>

#include "fuzz/fuzz_target.h"
#include "lexicon/lexicon_builder.h"
#include "support/lexicon_use.h"

using namespace telarium;

namespace {

// Most changes of a file change its length, which would be all that a reader looks at.
std::string WithItsLength(std::string_view input) {
  std::string bytes(input);
  const std::uint64_t length = bytes.size();
  const std::size_t offset = offsetof(lessico_interno::Testata, byte);
  if (bytes.size() >= offset + sizeof length) std::memcpy(&bytes[offset], &length, sizeof length);
  return bytes;
}

}  // namespace

// An input is a lexicon file, and the source of one: what is built of it must be sound.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = TextOf(data, size);
  std::string cause;
  if (const auto lexicon = OpenLexicon(WithItsLength(input), cause)) UseAll(*lexicon);
  if (const auto bytes = CostruisciLessico(input, cause)) {
    const auto built = OpenLexicon(*bytes, cause);
    Verifica(built && built->Verifica(cause), "a lexicon is built that is not sound");
    UseAll(*built);
  }
  return 0;
}
