#pragma once

#include <functional>
#include <string_view>

#include "model/cruciverba.h"

namespace telarium {

/// The current crossword as a value: what Schema holds of header and grid, Definizione,
/// ColoreCasella and LaboratorioDelCruciverba.
Cruciverba CruciverbaCorrente();

/// Makes a value the current crossword: afterwards CruciverbaCorrente gives it back. Lines of
/// Schema that it does not have stay, as do the derived tables until they are computed anew.
void PrendiCruciverba(const Cruciverba& cruciverba);

/// Calls the function with the current crossword to be changed; afterwards the derived tables
/// follow. `motivo` names the change in words ("Definizione di OVEST"). True when it is another one
/// than before.
bool ModificaCruciverba(std::string_view motivo, const std::function<void(Cruciverba&)>& funzione);

}  // namespace telarium
