#include <cstdio>
#include <cstdlib>
#include <fstream>

#include <benchmark/benchmark.h>

#include "clues/clue_family.h"
#include "clues/encyclopedia.h"
#include "clues/hard_clues.h"
#include "laboratory/checks.h"
#include "lexicon/composition.h"
#include "median_keeper.h"
#include "model/crossword_writer.h"
#include "model/state.h"
#include "platform/temporary.h"
#include "process_cost.h"
#include "support/drawn_crossword.h"

// Measures the check of a full crossword of the largest size, each entry with a clue, on the real
// lexicon and encyclopedia.
namespace telarium {
namespace {

void Expect(bool condition) {
  if (!condition) abort();
}

struct Entry {
  std::string word, clue;
};

// Words of five letters with one of their clues.
std::vector<Entry> EntriesOfTheStore(std::size_t many) {
  const EnciclopediaAperta store = ApriEnciclopedia();
  std::vector<Entry> entries;
  for (const auto& [number, word] : store->Chiavi()) {
    if (word.size() != 5 || number % 17 != 0) continue;
    const std::string family = store->LeggiRiga(number).facili.value_or("");
    const auto clues = DefinizioniDellaFamiglia(family);
    if (!clues.empty()) entries.push_back({word, std::string(clues.back())});
    if (entries.size() == many) break;
  }
  return entries;
}

// Each horizontal word of five letters is one of the store's; the vertical ones are as they come.
Cruciverba FullCrossword(const std::vector<Entry>& entries) {
  std::vector<std::string> rows(MaxRighe, std::string(MaxColonne, 'A'));
  for (int r = 0; r < MaxRighe; ++r)
    for (int c = 0; c < MaxColonne; ++c)
      if ((c + r) % 6 == 0) rows[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)] = '#';
  Cruciverba crossword = DrawnCrossword(rows);
  std::size_t next = 0;
  const Derivati grid = Deriva(crossword);
  for (const Slot& slot : grid.Parole()) {
    const auto& [word, clue] = entries[next++ % entries.size()];
    crossword.definizioni.Imposta(clue, slot.inizio.colonna, slot.inizio.riga, slot.direzione);
    if (slot.direzione == Verticale) continue;
    for (int k = 1; k <= slot.lunghezza; ++k)
      ScriviCarattere(crossword, slot.Cella(k), word[static_cast<std::size_t>(k) - 1]);
  }
  return crossword;
}

Criteri RealCriteria() {
  std::string cause;
  const auto lexicon =
      ComponiLessico({LessicoIniziale},
                     {.lessici = Percorso(TELARIUM_DATA_DIR) / "lexicon", .programma = {}}, cause);
  Expect(lexicon.has_value());
  return {.lessico = *lexicon, .regole = *RegolamentoDiNome(RegolamentoIniziale)};
}

void BM_Check(benchmark::State& state, const Cruciverba& crossword, bool withStore) {
  Criteri criteria = RealCriteria();
  for (auto _ : state) {
    DefinizioniDifficili hard;
    if (withStore) {
      criteria.grado = [&](std::string_view word, std::string_view clue) {
        return GradoDefinizione{.difficile = hard.Ha(word, clue)};
      };
    }
    benchmark::DoNotOptimize(Controlla(crossword, criteria));
  }
}

int Main() {
  const CartellaTemporanea folder;
  const Percorso file = folder.Nome() / "full.tlrm";
  CartellaProgramma = TELARIUM_DATA_DIR;
  const Cruciverba crossword = FullCrossword(EntriesOfTheStore(600));
  std::ofstream(file, std::ios::binary) << ContenutoDelFile(crossword).value();
  const ProcessCost process = MeasureProcess(
      {TELAR_PROGRAM, "--cartella", TELARIUM_DATA_DIR, "controlla", file.string()}, 20);

  Register("check", BM_Check, crossword, false);
  Register("with_store", BM_Check, crossword, true);
  MedianKeeper reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  auto& ms = reporter.medians;
  std::printf("\n| a full 53x30, %zu entries | Telarium | wanted |\n|---|---|---|\n",
              Deriva(crossword).Parole().size());
  std::printf("| `Controlla` | %.1f ms | |\n", ms["check"]);
  std::printf("| and how hard its clues are, by the store | %.1f ms | |\n", ms["with_store"]);
  std::printf("| `telar controlla`, whole process | %.1f ms | under 30 |\n", process.milliseconds);
  return 0;
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  return telarium::Main();
}
