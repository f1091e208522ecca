#include <cstdio>
#include <string>

#include "lexicon/lexicon_builder.h"
#include "lexicon/lexicon_file.h"
#include "platform/codepage.h"
#include "platform/files.h"

// lexicon_maker SOURCE.tsv OUTPUT
//
// Makes the lexicon file of a source and checks what was written, all of it.
using namespace telarium;

namespace {

constexpr std::size_t MaxBytes = 256u << 20;

// Says what is wrong with a file; the result is the exit status.
int Fail(const char* file, std::string_view cause) {
  std::fprintf(stderr, "%s: %s\n", file, AUtf8(cause).c_str());
  return 1;
}

int Make(const char* source, const char* output) {
  std::string text, cause;
  std::error_code error;
  if (LeggiFile(source, MaxBytes, text, error) != EsitoLettura::Letto)
    return Fail(source, DescrizioneErrore(error));
  const auto bytes = CostruisciLessico(text, cause);
  if (!bytes) return Fail(source, cause);
  if ((error = ScriviFile(output, *bytes, Permanenza::Provvisoria)))
    return Fail(output, DescrizioneErrore(error));
  const auto lexicon = FileLessico::Apri(output, output, cause);
  if (lexicon && lexicon->Verifica(cause)) return 0;
  std::filesystem::remove(output, error);
  return Fail(output, cause);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "lexicon_maker SOURCE.tsv OUTPUT\n");
    return 2;
  }
  return Make(argv[1], argv[2]);
}
