#include "composer_bench_grids.h"

#include <fstream>
#include <map>
#include <sstream>

#include "composer_bench_measure.h"
#include "crossworddialogs/model_file.h"
#include "model/derivation.h"
#include "platform/files.h"

namespace telarium {
namespace {

constexpr std::string_view ModelPrefix = "model";

std::string Contents(const Percorso& file) {
  std::ifstream in(file, std::ios::binary);
  Demand(in.good(), "cannot read " + file.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

Pattern ReadPattern(const Percorso& file) {
  std::istringstream lines(Contents(file));
  Pattern pattern;
  for (std::string row; std::getline(lines, row);)
    if (!row.empty()) pattern.push_back(row);
  return pattern;
}

const std::vector<Modello>& Models() {
  static const std::vector<Modello> models =
      InterpretaModelli(Contents(Percorso(TELARIUM_DATA_DIR) / "STANDARD.dfc"));
  Demand(models.size() == NumModels, "the model file has another number of models");
  return models;
}

// Numbers the cells of the slots as they come.
class CellNumbers {
 public:
  int Of(Casella cell) {
    const auto [place, isNew] =
        numbers_.try_emplace({cell.riga, cell.colonna}, static_cast<int>(numbers_.size()));
    return place->second;
  }
  std::size_t Count() const { return numbers_.size(); }

 private:
  std::map<std::pair<int, int>, int> numbers_;
};

}  // namespace

std::string ModelName(int number) {
  return std::string(ModelPrefix) + std::to_string(number);
}

Pattern PatternNamed(const std::string& name) {
  for (int number = 1; number <= NumModels; ++number)
    if (name == ModelName(number)) return Models()[static_cast<std::size_t>(number) - 1];
  const Percorso ours = Percorso(COMPOSER_BENCH_DIR) / "patterns" / (name + ".txt");
  Pattern pattern = ReadPattern(std::filesystem::exists(ours) ? ours : Percorso(name));
  Demand(!pattern.empty() && ModelloValido(pattern), "no pattern in " + name);
  return pattern;
}

Problema ProblemOf(const Pattern& pattern, std::shared_ptr<const Vocabolario> vocabulary) {
  std::string cells;
  for (const std::string& row : pattern)
    cells += row;
  const Derivati grid(static_cast<int>(pattern.front().size()), static_cast<int>(pattern.size()),
                      cells);
  Problema problem;
  problem.vocabolario = std::move(vocabulary);
  CellNumbers numbers;
  for (const Slot& run : grid.Parole()) {
    if (problem.vocabolario->Quante(run.lunghezza) == 0) continue;
    SlotDaRiempire slot;
    for (int k = 1; k <= run.lunghezza; ++k)
      slot.caselle.push_back(numbers.Of(run.Cella(k)));
    problem.slot.push_back(std::move(slot));
  }
  problem.lettere.assign(numbers.Count(), TutteLeLettere);
  return problem;
}

}  // namespace telarium
