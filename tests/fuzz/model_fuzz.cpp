#include "crossworddialogs/model_file.h"
#include "crossworddialogs/model_preview.h"
#include "crossworddialogs/new_crossword.h"
#include "fuzz/fuzz_target.h"
#include "model/crossword_file.h"
#include "platform/check.h"

using namespace telarium;

namespace {

void TryNew(const Percorso& file, int number) {
  try {
    if (NuovoDaModello(file, number) != EsitoNuovo::Fatto) return;
    Verifica(ApriCruciverba(PercorsoIstantanea()) == Apertura::Intera,
             "the new crossword cannot be read");
  } catch (const ProgramEnded&) {
    // A bad row or character.
  }
}

void TryPreviews(const Percorso& file) {
  RecordingSurface surface;
  try {
    for (const Modello& model : ModelliDaMostrare(file))
      DisegnaModello(model, surface);
  } catch (const ProgramEnded&) {
    // A bad row or character.
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartFresh();
  const std::string_view input = TextOf(data, size);
  const std::vector<Modello> models = InterpretaModelli(input);
  std::size_t cells = 0;
  for (const Modello& model : models) {
    if (!ModelloValido(model) || model.empty()) continue;
    cells += model.size() * model.front().size();
  }
  Verifica(cells <= size, "more cells than the file holds");
  if (!OneIn(8, input)) return 0;
  const Percorso file = CartellaProgramma / "fuzz.dfc";
  if (ScriviFile(file, input, Permanenza::Provvisoria)) return 0;
  TryPreviews(file);
  for (int n = -1; n <= static_cast<int>(models.size()); ++n) {
    TryNew(file, n);
  }
  return 0;
}
