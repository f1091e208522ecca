#include "editor/main_window.h"

namespace telarium {
namespace {

FinestraEditor assente;
FinestraEditor* corrente = &assente;

}  // namespace

FinestraEditor& LaFinestra() {
  return *corrente;
}

void ImpostaFinestra(FinestraEditor* finestra) {
  corrente = finestra ? finestra : &assente;
}

}  // namespace telarium
