#include "fuzz/fuzz_target.h"
#include "model/crossword_file.h"
#include "output/web_opening.h"
#include "platform/check.h"

using namespace telarium;

namespace {

// The walk by bytes that the search stands for.
std::optional<std::string> BlockByWalking(std::string_view page) {
  std::optional<std::string> block;
  std::string buffer;
  for (const char byte : page) {
    if (buffer.ends_with("sottostanti ####\r\n")) {
      buffer.clear();
      block.emplace();
    }
    buffer += byte;
    if (block) *block += byte;
  }
  return block;
}

void OpenPage(std::string_view input) {
  dynamic_cast<ScriptedMachine&>(Sistema()).fetches = input;
  dynamic_cast<ScriptedUser&>(ChiUsa()).AnswerText("http://somewhere");
  ApriDaIndirizzo();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartFresh();
  const std::string_view input = TextOf(data, size);
  Verifica(BloccoDiSalvataggio(input) == BlockByWalking(input), "another block");
  OpenPage(input);
  Verifica((NumColonne == 0) == NomeCruciverba.empty(), "a crossword without a name");
  if (NumColonne == 0) return 0;
  // What is written reads as the same.
  const auto first = TestoDelCruciverba();
  Verifica(first.has_value(), "a crossword that no file can hold");
  Verifica(ApriTestoDiCruciverba(*first), "it cannot be read again");
  return 0;
}
