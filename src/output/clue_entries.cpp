#include "output/clue_entries.h"

namespace telarium {

std::string DefinizioneOTrattini(const Slot& slot, std::size_t trattini) {
  const auto [c, r] = slot.inizio;
  const std::string& definizione = Definizione(c, r, slot.direzione);
  return definizione.empty() ? std::string(trattini, '_') : definizione;
}

}  // namespace telarium
