#pragma once

#include <optional>

namespace telarium {

/// Whether the lock keys are on; nothing where the platform does not tell.
struct TastiDiBlocco {
  std::optional<bool> scorrimento;
  std::optional<bool> maiuscole;
  std::optional<bool> numeri;
};

TastiDiBlocco LeggiTastiDiBlocco();

}  // namespace telarium
