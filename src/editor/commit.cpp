#include "editor/commit.h"

#include "editor/redraw.h"
#include "model/crossword_file.h"

namespace telarium {

void ConsolidaSchema() {
  if (ScriviIstantanea()) LeggiIstantanea();
  RidisegnaSchema();
}

void RiprendiSchema() {
  if (NomeCruciverba.empty()) return;
  LeggiIstantanea();
  RidisegnaSchema();
}

}  // namespace telarium
