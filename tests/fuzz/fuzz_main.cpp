#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

#include "fuzz/fuzz_target.h"

// fuzz_NAME CORPUS [ROUNDS [SEED]]
//
// Gives the target each file of the folder CORPUS (or the one file of that name), then ROUNDS
// mutations of them. The same seed gives the same inputs. An input that ends the process is left in
// fuzz-input.bin.
namespace {

std::string current;  // the input under way

void KeepInput() {
  std::ofstream("fuzz-input.bin", std::ios::binary) << current;
  std::fprintf(stderr, "the input is in fuzz-input.bin\n");
}

void Try(std::string input) {
  current = std::move(input);
  // A copy of its exact size, so that a read behind it is seen.
  const std::vector<std::uint8_t> bytes(current.begin(), current.end());
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

std::vector<std::string> ReadCorpus(const std::filesystem::path& path) {
  std::vector<std::filesystem::path> files = {path};
  if (is_directory(path)) files = {std::filesystem::directory_iterator(path), {}};
  std::sort(files.begin(), files.end());
  std::vector<std::string> corpus;
  for (const auto& file : files) {
    std::ifstream stream(file, std::ios::binary);
    corpus.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
  }
  return corpus;
}

class Mutator {
 public:
  Mutator(const std::vector<std::string>& corpus, std::uint64_t seed)
      : corpus_(corpus), random_(seed) {}

  std::string Next() {
    std::string input = AnyOf(corpus_);
    for (std::size_t changes = 1 + Below(4); changes > 0; --changes) {
      Change(input);
    }
    return input;
  }

 private:
  void Change(std::string& input) {
    const std::size_t at = Below(input.size());
    const std::size_t length = Below(std::min<std::size_t>(input.size() - at, 64) + 1);
    const std::string& other = AnyOf(corpus_);
    switch (Below(8)) {
      case 0:
        if (!input.empty()) input[at] ^= static_cast<char>(1 << Below(8));
        break;
      case 1:
        if (!input.empty()) input[at] = AnyOf("\r\n\t *.AZaz09-,\xFF\x1A");
        break;
      case 2:
        input.resize(at);
        break;
      case 3:
        input.erase(at, length);
        break;
      case 4:
        input.insert(at, input.substr(at, length));
        break;
      case 5:
        input = input.substr(0, at) + other.substr(Below(other.size()));
        break;
      default:
        ReplaceNumber(input, at);
    }
  }

  // Puts another number in place of the next one from there on, in half of the cases right-aligned
  // where that one was, so that nothing behind it moves.
  void ReplaceNumber(std::string& input, std::size_t from) {
    const std::size_t at = input.find_first_of("0123456789", from);
    if (at == input.npos) return;
    const std::size_t end = std::min(input.find_first_not_of("0123456789", at), input.size());
    constexpr std::uint64_t numbers[] = {
        0,     1,     2,     3,     30,    31,    53,     54,      99,       440,       455,
        32767, 32768, 65537, 98741, 98744, 99999, 197051, 9999999, 10000000, 2147483648};
    const std::string number = std::to_string(numbers[Below(std::size(numbers))]);
    if (Below(2) == 0 && number.size() <= end) {
      input.replace(at, end - at, end - at, ' ');
      input.replace(end - number.size(), number.size(), number);
    } else {
      input.replace(at, end - at, number);
    }
  }

  std::size_t Below(std::size_t end) { return end == 0 ? 0 : random_() % end; }

  char AnyOf(std::string_view characters) { return characters[Below(characters.size())]; }

  const std::string& AnyOf(const std::vector<std::string>& list) {
    return list[Below(list.size())];
  }

  const std::vector<std::string>& corpus_;
  std::mt19937_64 random_;
};

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> corpus = ReadCorpus(count > 1 ? arguments[1] : ".");
  const long rounds = count > 2 ? std::atol(arguments[2]) : 1000;
  const std::uint64_t seed = count > 3 ? std::strtoull(arguments[3], nullptr, 10) : 20240305;
  if (std::filesystem::is_directory("/dev/shm")) ::setenv("TMPDIR", "/dev/shm", 0);
  std::signal(SIGABRT, [](int) { KeepInput(); });
#if defined(__SANITIZE_ADDRESS__)
  __sanitizer_set_death_callback(KeepInput);
#endif
  for (const std::string& input : corpus) {
    Try(input);
  }
  Mutator mutator(corpus, seed);
  for (long round = 0; round < rounds; ++round) {
    Try(mutator.Next());
  }
  std::printf("%zu corpus files, %ld rounds\n", corpus.size(), rounds);
  return corpus.empty();
}
