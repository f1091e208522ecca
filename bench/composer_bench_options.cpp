#include "composer_bench_options.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>

namespace telarium {
namespace {

constexpr const char* Usage =
    "composer_bench [ROW...] [--seeds N] [--first-seed N]\n"
    "    the table, or its rows by number or by a part of their text\n"
    "composer_bench --fill PATTERN [--cap N] [--clued] [--severe] [--seeds N] [--first-seed N]\n"
    "    [--steps N] [--workers N] [--seconds S]\n"
    "    each fill of a pattern of bench/patterns, of model1 to model12, or of a file\n";

[[noreturn]] void Refuse() {
  std::fputs(Usage, stderr);
  std::exit(2);
}

// Reads the whole of a word as a number, or refuses.
double Number(const std::string& word) {
  char* end = nullptr;
  const double number = std::strtod(word.c_str(), &end);
  if (word.empty() || *end != '\0' || number < 0) Refuse();
  return number;
}

}  // namespace

BenchOptions ParseOptions(int count, char** words) {
  BenchOptions options;
  const std::map<std::string, std::function<void()>> flags = {
      {"--clued", [&] { options.clued = true; }},
      {"--severe", [&] { options.severe = true; }},
  };
  const std::map<std::string, std::function<void(const std::string&)>> values = {
      {"--fill", [&](const std::string& value) { options.fill = value; }},
      {"--cap", [&](const std::string& value) { options.cap = static_cast<int>(Number(value)); }},
      {"--seeds",
       [&](const std::string& value) { options.seeds = static_cast<int>(Number(value)); }},
      {"--first-seed",
       [&](const std::string& value) { options.firstSeed = static_cast<int>(Number(value)); }},
      {"--steps",
       [&](const std::string& value) { options.steps = static_cast<std::int64_t>(Number(value)); }},
      {"--workers",
       [&](const std::string& value) { options.workers = static_cast<int>(Number(value)); }},
      {"--seconds", [&](const std::string& value) { options.seconds = Number(value); }},
  };
  for (int k = 1; k < count; ++k) {
    const std::string word = words[k];
    if (const auto flag = flags.find(word); flag != flags.end()) {
      flag->second();
    } else if (const auto value = values.find(word); value != values.end()) {
      if (++k == count) Refuse();
      value->second(words[k]);
    } else if (word.starts_with("--")) {
      Refuse();
    } else {
      options.rows.push_back(word);
    }
  }
  if (options.seeds < 1 || options.workers < 1) Refuse();
  return options;
}

}  // namespace telarium
