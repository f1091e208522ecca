#include "platform/folder_lock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>

namespace telarium {
namespace {

constexpr std::chrono::milliseconds Pausa{20};
constexpr int Tentativi = 150;

bool Blocca(const Descrittore& cartella) {
  if (!cartella) return true;  // the writing will tell why
  for (int i = 0; ::flock(cartella.Numero(), LOCK_EX | LOCK_NB) != 0; ++i) {
    if (errno != EWOULDBLOCK && errno != EINTR) return true;
    if (i == Tentativi) return false;
    std::this_thread::sleep_for(Pausa);
  }
  return true;
}

}  // namespace

BloccoCartella::BloccoCartella(const Percorso& cartella)
    : aperta_(::open(cartella.empty() ? "." : cartella.c_str(), O_RDONLY | O_CLOEXEC)),
      preso_(Blocca(aperta_)) {}

}  // namespace telarium
