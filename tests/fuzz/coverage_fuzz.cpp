#include <algorithm>
#include <bit>
#include <cstring>
#include <map>

#include "clues/coverage_index.h"
#include "fuzz/fuzz_target.h"
#include "platform/check.h"
#include "platform/text.h"

using namespace telarium;

namespace {

constexpr std::size_t HeaderBytes = 40, SlotBytes = 8;

// Goes through all that an index gives, which it has to do within its bytes.
void Use(const std::string& bytes) {
  const auto index = IndiceCopertura::Apri(bytes);
  if (!index) return;
  std::size_t letters = 0;
  std::string last;
  index->PerOgniParola([&](std::string_view word, ConteggioDefinizioni count) {
    Verifica(count.Alcuna(), "a word without clues");
    letters += word.size();
    last = word;
  });
  Verifica(letters <= bytes.size(), "more words than the file holds");
  for (const std::string& word : {last, last + "A", std::string(), std::string("CASA")})
    index->Cerca(word);
}

// The input as slots and entries behind a header that is sound.
std::string WithSoundHeader(std::string_view input) {
  std::string bytes = ComponiIndice({}, {}).substr(0, HeaderBytes);
  const std::size_t most = std::bit_floor(std::max<std::size_t>(input.size() / SlotBytes, 1));
  const std::size_t slots = std::min<std::size_t>(most, 1u << (input.size() % 8));
  bytes += std::string(input) + std::string(SlotBytes, '\0');
  const std::uint32_t lengths[] = {
      0, static_cast<std::uint32_t>(slots),
      static_cast<std::uint32_t>(bytes.size() - HeaderBytes - slots * SlotBytes), 0};
  std::memcpy(bytes.data() + HeaderBytes - sizeof lengths, lengths, sizeof lengths);
  SegnaImpronta(bytes);
  Verifica(IndiceCopertura::Apri(bytes) != nullptr, "a sound header is refused");
  return bytes;
}

// An index of the lines as words finds each again, the first of equal ones.
void TryWords(std::string_view input) {
  std::vector<VoceCopertura> entries;
  std::map<std::string, ConteggioDefinizioni> expected;
  LettoreDiRighe lines(input);
  for (std::string_view line; lines.Prossima(line);) {
    const int clues = static_cast<int>(line.size() % 5);
    entries.push_back({std::string(line), {clues, static_cast<int>(entries.size() % 2)}});
    if (line.size() <= MaxLunghezzaIndice) expected.emplace(line, entries.back().conteggio);
  }
  const auto index = IndiceCopertura::Apri(ComponiIndice(entries, "stamp"));
  Verifica(index && index->Timbro() == "stamp", "no index");
  for (const auto& [word, count] : expected)
    Verifica(index->Cerca(word) == count, "another count");
  std::erase_if(expected, [](const auto& one) { return !one.second.Alcuna(); });
  Verifica(index->Parole() == static_cast<int>(expected.size()), "another number of words");
  index->PerOgniParola([&](std::string_view word, ConteggioDefinizioni count) {
    Verifica(expected.at(std::string(word)) == count, "another word");
  });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartFresh();
  const std::string_view input = TextOf(data, size);
  std::string bytes(input);
  Use(bytes);
  SegnaImpronta(bytes);
  Use(bytes);
  Use(WithSoundHeader(input));
  TryWords(input);
  return 0;
}
