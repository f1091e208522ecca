#include <cstdio>
#include <set>
#include <string>
#include <utility>

#include "clues/clue_list.h"
#include "clues/clue_search.h"
#include "platform/files.h"
#include "platform/text.h"

// Checks the project's own clue lists when the encyclopedia is built: each line is an entry, fits
// the box in which clues are typed, does not give its answer away and stands there once.
using namespace telarium;

namespace {

constexpr std::size_t MaxBytes = 64u << 20;

// What is wrong with a line; null when nothing is.
const char* Fault(std::string_view line, std::set<std::pair<std::string, std::string>>& seen) {
  const auto entry = InterpretaVoce(line);
  if (!entry) return "no entry: word TAB F or D TAB clue";
  if (entry->definizione.size() > MaxCaratteriDefinizione) return "longer than 60 characters";
  if (ContieneRisposta(entry->definizione, entry->parola)) return "holds its answer";
  if (!seen.insert({entry->parola, entry->definizione}).second) return "stands there twice";
  return nullptr;
}

// Tells the faults of a file and gives their number. `seen` holds the clues of the files before.
int Check(const char* file, std::set<std::pair<std::string, std::string>>& seen) {
  std::string text;
  if (LeggiFile(file, MaxBytes, text) != EsitoLettura::Letto) {
    std::fprintf(stderr, "%s: cannot be read\n", file);
    return 1;
  }
  LettoreDiRighe lines(text);
  int faults = 0, number = 0;
  for (std::string_view line; lines.Prossima(line);) {
    ++number;
    const char* const fault = Fault(line, seen);
    if (!fault) continue;
    ++faults;
    std::fprintf(stderr, "%s:%d: %s\n", file, number, fault);
  }
  return faults;
}

}  // namespace

int main(int argc, char** argv) {
  int faults = argc < 2;
  std::set<std::pair<std::string, std::string>> seen;
  for (int i = 1; i < argc; ++i)
    faults += Check(argv[i], seen);
  return faults > 0 ? 1 : 0;
}
