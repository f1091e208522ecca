#include "editor/commit.h"

#include "editor/redraw.h"
#include "model/crossword_file.h"

namespace telarium {

void ConsolidaSchema() {
  const Percorso istantanea = PercorsoIstantanea();
  if (ScriviCruciverba(istantanea, Permanenza::Provvisoria)) LeggiCruciverba(istantanea);
  RidisegnaSchema();
}

void RiprendiSchema() {
  if (NomeCruciverba.empty()) return;
  LeggiCruciverba(PercorsoIstantanea());
  RidisegnaSchema();
}

}  // namespace telarium
