#include "telarium/orderly_end.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace telarium {
namespace {

constexpr int Segnali[] = {SIGTERM, SIGINT, SIGHUP};

volatile std::sig_atomic_t doveScrivere = -1;

void Annota(int) {
  const int errore = errno;
  const char byte = 0;
  // A full pipe has been told of a signal before.
  [[maybe_unused]] const ssize_t scritti = ::write(doveScrivere, &byte, 1);
  errno = errore;
}

void Raccogli(bool raccogli) {
  for (const int segnale : Segnali) {
    struct sigaction azione = {};
    ::sigaction(segnale, nullptr, &azione);
    if (azione.sa_handler == SIG_IGN) continue;
    azione = {};
    azione.sa_handler = raccogli ? Annota : SIG_DFL;
    azione.sa_flags = SA_RESTART;
    ::sigaction(segnale, &azione, nullptr);
  }
}

}  // namespace

FineOrdinata::FineOrdinata(std::function<void()> termina) {
  int capi[2];
  if (::pipe2(capi, O_CLOEXEC | O_NONBLOCK) != 0) return;  // a signal ends the program as ever
  lettura_ = Descrittore(capi[0]);
  scrittura_ = Descrittore(capi[1]);
  avviso_ = std::make_unique<QSocketNotifier>(capi[0], QSocketNotifier::Read);
  QObject::connect(avviso_.get(), &QSocketNotifier::activated,
                   [termina = std::move(termina)] { termina(); });
  doveScrivere = capi[1];
  Raccogli(true);
}

FineOrdinata::~FineOrdinata() {
  if (!avviso_) return;
  Raccogli(false);
  doveScrivere = -1;
}

}  // namespace telarium
