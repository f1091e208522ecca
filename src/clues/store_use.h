#pragma once

#include <functional>

namespace telarium {

/// Runs an operation on the encyclopedia. An error of the store ends it, shows Form6 and then the
/// error's description, and gives false; what was written until then stays.
bool ConEnciclopedia(const std::function<void()>& operazione);

}  // namespace telarium
