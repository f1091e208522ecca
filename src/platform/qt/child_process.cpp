#include "platform/qt/child_process.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace telarium {
namespace {

// Waits for the process in a thread, so that none is left behind as a zombie.
std::shared_future<int> Aspetta(pid_t pid) {
  std::promise<int> promessa;
  std::shared_future<int> esito = promessa.get_future().share();
  std::thread([pid, promessa = std::move(promessa)]() mutable {
    int stato = 0;
    while (::waitpid(pid, &stato, 0) < 0 && errno == EINTR) {
    }
    promessa.set_value(WIFEXITED(stato) ? WEXITSTATUS(stato) : -1);
  }).detach();
  return esito;
}

}  // namespace

ProcessoAvviato Avvia(const std::vector<std::string>& parole) {
  std::vector<char*> argomenti;
  for (const std::string& parola : parole)
    argomenti.push_back(const_cast<char*>(parola.c_str()));
  argomenti.push_back(nullptr);

  posix_spawn_file_actions_t azioni;
  posix_spawn_file_actions_init(&azioni);
  posix_spawn_file_actions_addopen(&azioni, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawnattr_t attributi;
  posix_spawnattr_init(&attributi);
  sigset_t predefiniti;  // what this program ignores is not for the other one
  sigemptyset(&predefiniti);
  sigaddset(&predefiniti, SIGPIPE);
  sigaddset(&predefiniti, SIGXFSZ);
  posix_spawnattr_setsigdefault(&attributi, &predefiniti);
  posix_spawnattr_setflags(&attributi, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF);

  pid_t pid = 0;
  const int errore =
      ::posix_spawnp(&pid, argomenti.front(), &azioni, &attributi, argomenti.data(), environ);
  posix_spawnattr_destroy(&attributi);
  posix_spawn_file_actions_destroy(&azioni);
  if (errore != 0) return {std::error_code(errore, std::generic_category()), {}};
  return {{}, Aspetta(pid)};
}

}  // namespace telarium
