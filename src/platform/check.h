#pragma once

#include <string_view>

// Programming errors. Bad files, full disks and users who refuse are no such errors: they are
// ordinary outcomes of the routine that meets them.
namespace telarium {

/// Names the error on standard error and aborts, in release builds too: memory is never damaged in
/// silence.
[[noreturn]] void ErroreDiProgrammazione(std::string_view descrizione);

/// A condition that the program itself guarantees. Checked in every build.
inline void Verifica(bool condizione, std::string_view descrizione) {
  if (!condizione) ErroreDiProgrammazione(descrizione);
}

/// A condition inside a search, checked where TELARIUM_INVARIANTS is defined (debug and asan).
inline void VerificaInvariante([[maybe_unused]] bool condizione,
                               [[maybe_unused]] std::string_view descrizione) {
#ifdef TELARIUM_INVARIANTS
  Verifica(condizione, descrizione);
#endif
}

}  // namespace telarium
