#include "editor/activation.h"

#include "editor/startup.h"
#include "model/state.h"

namespace telarium {
namespace {

int comandiInCorso = 0;
bool attivazioneInCoda = false;

const AzzeramentoDiSottosistema azzeramento([] {
  comandiInCorso = 0;
  attivazioneInCoda = false;
});

// Counts a running command, also on the way out by an exception.
class Conteggio {
 public:
  Conteggio() { ++comandiInCorso; }
  ~Conteggio() {
    --comandiInCorso;
    if (!riuscito_) attivazioneInCoda = false;
  }
  void Riuscito() { riuscito_ = true; }

 private:
  bool riuscito_ = false;
};

// The activation counts as a command too: a window that it shows, as the first one does, queues the
// next activation for its end.
void AttivaSeInCoda() {
  while (comandiInCorso == 0 && attivazioneInCoda) {
    attivazioneInCoda = false;
    Conteggio conteggio;
    AttivaForm1();
    conteggio.Riuscito();
  }
}

}  // namespace

void EseguiComandoDiFinestra(const std::function<void()>& comando) {
  {
    Conteggio conteggio;
    comando();
    conteggio.Riuscito();
  }
  AttivaSeInCoda();
}

bool ComandoInCorso() {
  return comandiInCorso > 0;
}

void AccodaAttivazione() {
  attivazioneInCoda = true;
  AttivaSeInCoda();
}

}  // namespace telarium
