#include <algorithm>

#include "laboratory/examination.h"
#include "platform/codepage.h"
#include "platform/text.h"

// Faults and warnings that lie in the pattern of black cells.
namespace telarium {
namespace {

// The largest area is the crossword, of equal ones the first; each other one is cut off from it.
void Separate(Esame& esame) {
  const auto aree = Aree(esame.griglia);
  const auto maggiore = std::max_element(
      aree.begin(), aree.end(),
      [](const auto& una, const auto& altra) { return una.size() < altra.size(); });
  for (auto area = aree.begin(); area != aree.end(); ++area) {
    if (area == maggiore) continue;
    const bool una = area->size() == 1;
    esame.Rileva(
        Codice::Separate, area->front(),
        una ? "Da questa casella non si arriva al resto dello schema."
            : Unisci("Da queste ", area->size(), " caselle non si arriva al resto dello schema."));
  }
}

// The word that runs through a cell which has but one, and where it does, from 1.
std::pair<const VoceDiGriglia*, int> UnicaVoce(const Esame& esame, Casella casella) {
  for (const int direzione : Direzioni) {
    const int parola = esame.griglia.ParolaPer(casella, direzione);
    if (parola == Derivati::NessunaParola) continue;
    const VoceDiGriglia& voce = esame.voci[static_cast<std::size_t>(parola)];
    const Casella inizio = voce.slot.inizio;
    return {&voce, casella.colonna - inizio.colonna + casella.riga - inizio.riga + 1};
  }
  return {};
}

void CelleInUnaParola(Esame& esame) {
  for (const Casella casella : CelleSole(esame.griglia)) {
    const auto [voce, posto] = UnicaVoce(esame, casella);
    esame.Rileva(Codice::CellaSola, casella,
                 Unisci("La casella ", posto, " di ", voce->Nome(), " non ha un incrocio."));
  }
}

void VociDiDueLettere(Esame& esame) {
  const auto due = std::count_if(esame.voci.begin(), esame.voci.end(), [](const auto& voce) {
    return voce.slot.lunghezza == MinLunghezzaVoce;
  });
  const int ammesse = DueLettereAmmesse(esame.QuanteVoci());
  if (due <= ammesse) return;
  esame.Rileva(Codice::DueLettere, Unisci("Troppe voci di due lettere: ", due, " su ",
                                          esame.QuanteVoci(), ", ", MeglioAlMassimo(ammesse), '.'));
}

}  // namespace

void EsaminaSchema(Esame& esame) {
  Separate(esame);
  CelleInUnaParola(esame);
  VociDiDueLettere(esame);
}

}  // namespace telarium
