#pragma once

#include "model/cruciverba.h"

namespace telarium {

/// The current crossword as a value: what Schema holds of header and grid, Definizione,
/// ColoreCasella and LaboratorioDelCruciverba.
Cruciverba CruciverbaCorrente();

/// Makes a value the current crossword: afterwards CruciverbaCorrente gives it back. Lines of
/// Schema that it does not have stay, as do the derived tables until they are computed anew.
void PrendiCruciverba(const Cruciverba& cruciverba);

}  // namespace telarium
