#pragma once

#include <functional>
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

namespace telarium {

/// Whether something holds for a user whom the rights of files stop, as they do not stop root: root
/// asks it as nobody, in a process of its own. What the test wants known outside it has to give.
inline bool AsOrdinaryUser(const std::function<bool()>& what) {
  constexpr unsigned nobody = 65534;
  const pid_t child = ::fork();
  if (child == 0) {
    if (::geteuid() == 0) {
      // Where groups cannot be given up there are none that matter.
      [[maybe_unused]] const int ignored = ::setgroups(0, nullptr);
      if (::setgid(nobody) != 0 || ::setuid(nobody) != 0) ::_exit(2);
    }
    ::_exit(what() ? 0 : 1);
  }
  int status = 0;
  return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace telarium
