#include "fuzz/fuzz_target.h"
#include "lexicon/rules.h"
#include "platform/check.h"

using namespace telarium;

// A file of rules is read or refused with a cause; shares are such that a grid may have.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string cause;
  const auto rules = InterpretaRegolamento(TextOf(data, size), "rules", cause);
  Verifica(rules.has_value() == cause.empty(), "refused without a cause");
  if (!rules) return 0;
  for (const Quota& quota : rules->quote) {
    const int allowed = quota.Ammesse(100);
    Verifica(allowed >= 0 && allowed <= 100, "a share of no grid");
  }
  Parola word;
  word.lettere = "XY";
  Verifica(Divieto(word, *rules).has_value() == (rules->due == DueLettere::Corredo), "two letters");
  return 0;
}
