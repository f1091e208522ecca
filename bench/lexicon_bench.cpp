#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

#include <benchmark/benchmark.h>

#include "comparison_table.h"
#include "lexicon/lexicon.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/list_import.h"
#include "median_keeper.h"
#include "process_cost.h"

// Measures the lexicon of the Italian language beside the plain way: its words read into a sorted
// table of strings, and each looked for there.
namespace telarium {
namespace {

const Percorso File = Percorso(TELARIUM_DATA_DIR) / "lexicon/italiano.lexicon";
constexpr int Words = 1000;  // looked for in an iteration

using Table = std::vector<std::pair<std::string, NumeroVoce>>;

std::shared_ptr<const FileLessico> Open() {
  std::string cause;
  auto lexicon = FileLessico::Apri(File, "italiano", cause);
  if (!lexicon) std::fprintf(stderr, "%s: %s\n", File.c_str(), cause.c_str());
  return lexicon;
}

Table ReadTable() {
  const auto lexicon = Open();
  Table table;
  for (int length = MinLunghezzaVoce; length <= MaxLunghezzaVoce; ++length) {
    for (int k = 0; k < lexicon->Conta(length); ++k) {
      const NumeroVoce number = lexicon->Prima(length) + static_cast<NumeroVoce>(k);
      table.emplace_back(lexicon->Parola(number), number);
    }
  }
  std::sort(table.begin(), table.end());
  return table;
}

bool Has(const Table& table, const std::string& word) {
  const auto found = std::lower_bound(table.begin(), table.end(), std::pair(word, NumeroVoce{0}));
  return found != table.end() && found->first == word;
}

// Words of the lexicon by chance, or such with one letter changed that it lacks.
std::vector<std::string> Drawn(const Table& table, bool present) {
  std::mt19937 random(20261124);
  std::vector<std::string> words;
  while (words.size() < Words) {
    std::string word = table[random() % table.size()].first;
    if (!present)
      word[random() % word.size()] = static_cast<char>('A' + random() % LettereAlfabeto);
    if (Has(table, word) == present) words.push_back(word);
  }
  return words;
}

void BM_OpenPlain(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(ReadTable());
}

void BM_Open(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(Open());
}

void BM_FindPlain(benchmark::State& state, const Table& table,
                  const std::vector<std::string>& words) {
  for (auto _ : state) {
    for (const std::string& word : words)
      benchmark::DoNotOptimize(Has(table, word));
  }
}

void BM_Find(benchmark::State& state, const std::vector<std::string>& words) {
  const auto lexicon = Open();
  for (auto _ : state) {
    for (const std::string& word : words)
      benchmark::DoNotOptimize(lexicon->Cerca(word));
  }
}

void BM_Read(benchmark::State& state, const std::vector<std::string>& words) {
  const auto lexicon = Open();
  for (auto _ : state) {
    for (const std::string& word : words)
      benchmark::DoNotOptimize(lexicon->Leggi(*lexicon->Cerca(word)));
  }
}

void BM_Family(benchmark::State& state, const std::vector<std::string>& words) {
  const auto lexicon = Open();
  for (auto _ : state) {
    for (const std::string& word : words)
      benchmark::DoNotOptimize(lexicon->Famiglia(*lexicon->Cerca(word)));
  }
}

// A list of another program: words of 3 to 12 letters, some of them twice, scores, accents.
std::string LargeList() {
  constexpr int lines = 500'000;
  std::mt19937 random(20261124);
  std::string text;
  for (int i = 0; i < lines; ++i) {
    for (auto letters = 3 + random() % 10; letters > 1; --letters)
      text += static_cast<char>('a' + random() % LettereAlfabeto);
    text += i % 10 == 0 ? "\xC3\xA0" : "o";
    text += ';' + std::to_string(random() % 51) + "\r\n";
  }
  return text;
}

ElencoImportato Import(const std::string& text) {
  std::string cause;
  return ImportaElenco(text, cause).value();
}

std::shared_ptr<const StratoElenco> AsLayer(const std::string& text) {
  return std::make_shared<StratoElenco>("list", Import(text).parole);
}

void BM_Import(benchmark::State& state, const std::string& text) {
  for (auto _ : state)
    benchmark::DoNotOptimize(Import(text));
}

void BM_AsLayer(benchmark::State& state, const std::string& text) {
  for (auto _ : state)
    benchmark::DoNotOptimize(AsLayer(text));
}

// A word as the language, a large list and the list of its first words together know it.
void BM_FindInLayers(benchmark::State& state, const std::string& text,
                     const std::vector<std::string>& words) {
  Lessico lexicon;
  lexicon.Aggiungi(Open(), Origine::Lingua);
  lexicon.Aggiungi(AsLayer(text), Origine::Elenco);
  lexicon.Aggiungi(AsLayer(text.substr(0, 1000)), Origine::Mio);
  for (auto _ : state) {
    for (const std::string& word : words)
      benchmark::DoNotOptimize(lexicon.Cerca(word));
  }
}

constexpr ComparisonRow Rows[] = {
    {"the Italian lexicon opened", "open/plain", "open/telarium", 1, "under 5,000"},
    {"a word looked for that is there", "there/plain", "there/telarium", Words, "under 2"},
    {"one that is not", "absent/plain", "absent/telarium", Words, "under 2"},
    {"a word looked for and read whole", nullptr, "read/telarium", Words, ""},
    {"the other forms of its lemmas", nullptr, "family/telarium", Words, ""},
    {"a word of three layers, read whole", nullptr, "layers/telarium", Words, "under 2"},
    {"a list of 500,000 lines imported", nullptr, "import/telarium", 1, "under 1,000,000"},
    {"the same as a layer", nullptr, "list/telarium", 1, "under 1,000,000"},
};

void PrintTable(const std::map<std::string, double>& medians, const ProcessCost& process) {
  PrintComparison(Rows, medians, {"µs", 1000, 2});
  if (!process.succeeded) return;
  std::printf("| `telar lessico CASA`, whole process | | %.0f | | |\n",
              process.milliseconds * 1000);
  std::printf("| its peak memory | | %.1f MiB | | under 16 MiB |\n", process.peakMebibytes);
}

int Main() {
  const std::vector<std::string> command = {TELAR_PROGRAM, "--cartella", TELARIUM_DATA_DIR,
                                            "lessico", "CASA"};
  MeasureProcess(command, 1);  // makes the index of the words that have clues
  const ProcessCost process = MeasureProcess(command, 5);
  if (!Open()) return 1;
  const Table table = ReadTable();
  const auto there = Drawn(table, true), absent = Drawn(table, false);
  Register("open/plain", BM_OpenPlain);
  Register("open/telarium", BM_Open);
  Register("there/plain", BM_FindPlain, table, there);
  Register("there/telarium", BM_Find, there);
  Register("absent/plain", BM_FindPlain, table, absent);
  Register("absent/telarium", BM_Find, absent);
  Register("read/telarium", BM_Read, there);
  Register("family/telarium", BM_Family, there);
  const std::string list = LargeList();
  Register("layers/telarium", BM_FindInLayers, list, there);
  Register("import/telarium", BM_Import, list);
  Register("list/telarium", BM_AsLayer, list);
  MedianKeeper reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  PrintTable(reporter.medians, process);
  return 0;
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  return telarium::Main();
}
