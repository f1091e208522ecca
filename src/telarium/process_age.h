#pragma once

#include <chrono>

namespace telarium {

/// How long ago the system started this process, to its own clock tick of some 10 ms.
std::chrono::milliseconds EtaDelProcesso();

}  // namespace telarium
