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

void CelleInUnaParola(Esame& esame) {
  for (const Casella casella : CelleSole(esame.griglia)) {
    const int orizzontale = esame.griglia.ParolaPer(casella, Orizzontale);
    const int parola = orizzontale != Derivati::NessunaParola
                           ? orizzontale
                           : esame.griglia.ParolaPer(casella, Verticale);
    esame.Rileva(
        Codice::CellaSola, casella,
        Unisci("La casella ", casella.colonna, ',', casella.riga, " sta in una parola sola: ",
               esame.voci[static_cast<std::size_t>(parola)].Nome(), '.'));
  }
}

void VociDiDueLettere(Esame& esame) {
  const auto due = std::count_if(esame.voci.begin(), esame.voci.end(), [](const auto& voce) {
    return voce.slot.lunghezza == MinLunghezzaVoce;
  });
  const int ammesse = DueLettereAmmesse(esame.QuanteVoci());
  if (due <= ammesse) return;
  esame.Rileva(Codice::DueLettere,
               Unisci("Troppe voci di due lettere: ", due, " su ", esame.QuanteVoci(),
                      ", meglio non più di "_cp, ammesse, '.'));
}

}  // namespace

void EsaminaSchema(Esame& esame) {
  Separate(esame);
  CelleInUnaParola(esame);
  VociDiDueLettere(esame);
}

}  // namespace telarium
