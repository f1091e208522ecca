#include <cstring>

#include "fuzz/fuzz_target.h"
#include "history/difference.h"
#include "history/journal.h"
#include "model/crossword_writer.h"
#include "platform/check.h"
#include "platform/digest.h"

using namespace telarium;

namespace {

constexpr std::size_t SignBytes = 12, LengthBytes = 4, DigestBytes = 8;
constexpr std::size_t RecordBytes = 2 * LengthBytes + DigestBytes;  // without content

// Whatever was read can be written, and read again as the same.
void Read(std::string_view input) {
  SenzaLavoroPerso(input, input);
  const auto [outcome, read] = LeggiGiornale(input);
  if (!read) return;
  Verifica(read->byteSani <= input.size(), "more sound bytes than there are");
  read->HaLavoroPerso();
  const auto again = LeggiGiornale(InizioDelGiornale(read->file, read->linea)).giornale;
  Verifica(again && again->file == read->file, "another file comes back");
  Verifica(again->linea.Quanti() == read->linea.Quanti(), "other steps come back");
  Verifica(again->linea.Posto() == read->linea.Posto(), "another place comes back");
  for (std::size_t i = 0; i < read->linea.Quanti(); ++i)
    Verifica(again->linea[i] == read->linea[i], "another step comes back");
}

// The input with the digests that its records should have, so that their contents are looked at.
std::string WithSoundDigests(std::string_view input) {
  std::string bytes(input);
  for (std::size_t at = SignBytes; at + RecordBytes <= bytes.size();) {
    std::uint32_t length;
    std::memcpy(&length, &bytes[at], sizeof length);
    const std::size_t content = at + LengthBytes + DigestBytes;
    if (length > bytes.size() - at - RecordBytes) break;
    const std::uint64_t digest = ImprontaDi(std::string_view(bytes).substr(content, length));
    std::memcpy(&bytes[at + LengthBytes], &digest, sizeof digest);
    std::memcpy(&bytes[content + length], &length, sizeof length);
    at = content + length + LengthBytes;
  }
  return bytes;
}

// What turns one crossword into another, taken from the input, turns it back too.
void Change(std::string_view input) {
  const auto first = ConDifferenza({}, input.substr(0, input.size() / 2));
  const Cruciverba before = first.value_or(Cruciverba());
  const auto after = ConDifferenza(before, input.substr(input.size() / 2));
  if (!after) return;
  Verifica(ConDifferenza(*after, DifferenzaTra(*after, before)) == before, "no way back");
  ContenutoDelFile(*after);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = TextOf(data, size);
  Read(input);
  Read(WithSoundDigests(input));
  Change(input);
  return 0;
}
