#pragma once

#include <string>

#include "platform/machine.h"

namespace telarium {

/// The bytes behind an address in UTF-8: a page of an http or https one, redirections followed, or
/// the file that a "file://" one names, with "%" escapes or as its name stands. None when it cannot
/// be fetched whole within the limits, when `prosegue` (which may be empty) breaks it off, and for
/// any other address.
Prelevato PrelevaIndirizzo(const std::string& indirizzo, const LimitiDiPrelievo& limiti,
                           const ProseguePrelievo& prosegue);

}  // namespace telarium
