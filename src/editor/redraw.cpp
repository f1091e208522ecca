#include "editor/redraw.h"

#include "model/words.h"

namespace telarium {

void RidisegnaSchema() {
  if (NumColonne == 0) return;
  RicalcolaCaselle();
}

}  // namespace telarium
