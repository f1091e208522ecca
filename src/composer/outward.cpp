#include "composer/outward.h"

#include <algorithm>
#include <cstdint>

namespace telarium {
namespace {

// A tie is a whole number of parts of one in 2 to this.
constexpr int UnitaDiLegame = 20;

std::size_t Indice(int slot) {
  return static_cast<std::size_t>(slot);
}

template <typename Ricevi>
void PerOgniIncrocio(const Reticolo& reticolo, int slot, Ricevi&& ricevi) {
  for (const PostoDiSlot& incrocio : reticolo.IncrociDi(slot)) {
    if (incrocio.slot >= 0) ricevi(incrocio.slot);
  }
}

// Of all slots from some of them, in crossings; of those that no way leads to, more than any.
std::vector<int> DistanzeDa(const Reticolo& reticolo, std::vector<int> slot) {
  std::vector<int> distanze(Indice(reticolo.Slot()), reticolo.Slot());
  for (const int uno : slot)
    distanze[Indice(uno)] = 0;
  for (std::size_t k = 0; k < slot.size(); ++k) {
    const int prossima = distanze[Indice(slot[k])] + 1;
    PerOgniIncrocio(reticolo, slot[k], [&](int altro) {
      if (distanze[Indice(altro)] < reticolo.Slot()) return;
      distanze[Indice(altro)] = prossima;
      slot.push_back(altro);
    });
  }
  return distanze;
}

}  // namespace

std::vector<int> VersoFuori(const Reticolo& reticolo, const std::vector<int>& slot,
                            const std::vector<int>& centro) {
  const std::vector<int> distanze = DistanzeDa(reticolo, centro);
  std::vector<std::int64_t> incrociati(Indice(reticolo.Slot()));
  std::vector<int> ordine;
  const auto prendi = [&](int uno) {
    PerOgniIncrocio(reticolo, uno, [&](int altro) { ++incrociati[Indice(altro)]; });
    ordine.push_back(uno);
  };
  const auto legame = [&](int uno) {
    const std::int64_t incroci = incrociati[Indice(uno)];
    const std::int64_t distanza = distanze[Indice(uno)] + 1;
    return (incroci * incroci << UnitaDiLegame) / (reticolo.Lunghezza(uno) * distanza * distanza);
  };
  std::for_each(centro.begin(), centro.end(), prendi);
  std::vector<int> rimasti;
  std::copy_if(slot.begin(), slot.end(), std::back_inserter(rimasti),
               [&](int uno) { return distanze[Indice(uno)] > 0; });
  while (!rimasti.empty()) {
    const auto prossimo = std::max_element(rimasti.begin(), rimasti.end(), [&](int uno, int altro) {
      return legame(uno) < legame(altro);
    });
    prendi(*prossimo);
    rimasti.erase(prossimo);
  }
  return ordine;
}

}  // namespace telarium
