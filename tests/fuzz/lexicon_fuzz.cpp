#include <cstddef>
#include <cstring>

#include "fuzz/fuzz_target.h"
#include "laboratory/composer_words.h"
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

// The words of a lexicon as the composer takes them.
void Compose(const std::shared_ptr<const FileLessico>& file) {
  Lessico lexicon;
  lexicon.Aggiungi(file, Origine::Lingua);
  const auto words = VocabolarioDi({}, lexicon, nullptr, ~Lunghezze(), {});
  for (int length = MinLunghezzaVoce; length <= MaxLunghezzaVoce; ++length) {
    Verifica(words->Quante(length) <= file->Conta(length), "words that no entry is of");
    for (int number = 0; number < words->Quante(length); ++number) {
      for (const NumeroParola other : words->Parenti(words->Parola({length, number})))
        Verifica(other.numero < words->Quante(other.lunghezza), "akin to a word that is none");
    }
  }
}

}  // namespace

// An input is a lexicon file, and the source of one: what is built of it must be sound.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = TextOf(data, size);
  std::string cause;
  if (const auto lexicon = OpenLexicon(WithItsLength(input), cause)) {
    UseAll(*lexicon);
    Compose(lexicon);
  }
  if (const auto bytes = CostruisciLessico(input, cause)) {
    const auto built = OpenLexicon(*bytes, cause);
    Verifica(built && built->Verifica(cause), "a lexicon is built that is not sound");
    UseAll(*built);
  }
  return 0;
}
