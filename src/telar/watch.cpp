#include "telar/watch.h"

#include <algorithm>
#include <utility>

namespace telarium::telar {
namespace {

constexpr std::chrono::milliseconds Intervallo{20};

}  // namespace

Sorveglianza::Sorveglianza(const UtenteConsole& utente, std::optional<Istante> fine,
                           std::function<bool()> altro)
    : utente_(utente), fine_(fine), altro_(std::move(altro)) {
  AscoltaInterruzione();
  Guarda();  // a time of nothing is over before anything begins
  guardia_ = std::jthread([this](std::stop_token basta) { Attendi(std::move(basta)); });
}

void Sorveglianza::Guarda() {
  if (utente_.Interrotto() || (fine_ && std::chrono::steady_clock::now() >= *fine_) ||
      (altro_ && altro_()))
    richiesta_.request_stop();
}

void Sorveglianza::Attendi(std::stop_token basta) {
  std::unique_lock lucchetto(serratura_);
  while (!basta.stop_requested() && !Fermata()) {
    const Istante prossimo = std::chrono::steady_clock::now() + Intervallo;
    sveglia_.wait_until(lucchetto, basta, fine_ ? std::min(*fine_, prossimo) : prossimo,
                        [] { return false; });
    Guarda();
  }
}

}  // namespace telarium::telar
