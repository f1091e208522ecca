#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace telarium {

/// The bytes behind an http, https or file address, redirections followed; none when it cannot be
/// fetched whole within the time, or when it is too big for anything that the program reads.
std::optional<std::string> PrelevaIndirizzo(const std::string& indirizzo,
                                            std::chrono::milliseconds limite);

}  // namespace telarium
