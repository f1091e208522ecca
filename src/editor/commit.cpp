#include "editor/commit.h"

#include "editor/redraw.h"
#include "model/crossword_file.h"

namespace telarium {

bool ConsolidaSchema() {
  const bool scritta = ScriviIstantanea();
  if (scritta) LeggiIstantanea();
  RidisegnaSchema();
  return scritta;
}

void RiprendiSchema() {
  if (NomeCruciverba.empty()) return;
  LeggiIstantanea();
  RidisegnaSchema();
}

}  // namespace telarium
