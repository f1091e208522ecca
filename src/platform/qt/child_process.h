#pragma once

#include <chrono>
#include <future>
#include <string>
#include <system_error>
#include <vector>

namespace telarium {

/// A program that runs on its own, in a session of its own, also when this one ends.
struct ProcessoAvviato {
  std::error_code errore;         // why it could not be started, 0 for none
  std::shared_future<int> esito;  // its exit status, once it has ended; -1 after a signal
};

/// Starts a program: a path, or a name that is looked for in PATH. The first word of `parole` is
/// the program.
ProcessoAvviato Avvia(const std::vector<std::string>& parole);

}  // namespace telarium
