#include "platform/console/console_platform.h"

#include <atomic>
#include <cstdio>

#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

// Signal handlers write it, other threads read it.
std::atomic<bool> interruzione = false;
static_assert(std::atomic<bool>::is_always_lock_free);

void SegnaInterruzione(int) {
  interruzione = true;
}

class AttesaConsole : public Attesa {
 public:
  bool Prosegue(std::size_t) override { return !interruzione; }
  bool ProsegueFino(double) override { return !interruzione; }
};

}  // namespace

Risposta UtenteConsole::MostraMessaggio(const Messaggio& messaggio) {
  const std::string riga = AUtf8(SenzaInterruzioni(messaggio.testo)) + "\n";
  std::fwrite(riga.data(), 1, riga.size(), stderr);
  const bool siNo =
      messaggio.pulsanti == Pulsanti::SiNo || messaggio.pulsanti == Pulsanti::SiNoAnnulla;
  return siNo ? Risposta::Si : Risposta::Ok;
}

std::optional<std::string> UtenteConsole::ChiediTesto(const RichiestaDiTesto&) {
  return std::nullopt;
}

std::unique_ptr<Attesa> UtenteConsole::IniziaAttesa(const std::string&) {
  return std::make_unique<AttesaConsole>();
}

bool UtenteConsole::Interrotto() const {
  return interruzione;
}

void AscoltaInterruzione() {
  for (const int segnale : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction prima {};
    ::sigaction(segnale, nullptr, &prima);
    if (prima.sa_handler == SIG_IGN) continue;  // as under nohup
    struct sigaction nostra {};
    nostra.sa_handler = SegnaInterruzione;  // no restart: a call that waits comes back
    ::sigaction(segnale, &nostra, nullptr);
  }
  std::signal(SIGPIPE, SIG_IGN);
}

}  // namespace telarium
