#include "clues/store_use.h"

#include "clues/encyclopedia.h"
#include "editor/main_window.h"
#include "platform/platform.h"

namespace telarium {

bool ConEnciclopedia(const std::function<void()>& operazione) {
  try {
    operazione();
    return true;
  } catch (const ErroreEnciclopedia& errore) {
    LaFinestra().MostraModale(Modale::Form6);
    Avvisa(errore.Descrizione());
    return false;
  }
}

}  // namespace telarium
