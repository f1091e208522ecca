#include "platform/qt/lock_keys.h"

#include <QGuiApplication>

// Xlib's macros (Bool, None, ...) come last: they would break other headers.
#include <X11/XKBlib.h>

namespace telarium {
namespace {

bool Accesa(Display* schermo, const char* spia) {
  int accesa = 0;
  const Atom nome = XInternAtom(schermo, spia, True);
  return nome != 0 && XkbGetNamedIndicator(schermo, nome, nullptr, &accesa, nullptr, nullptr) &&
         accesa != 0;
}

}  // namespace

TastiDiBlocco LeggiTastiDiBlocco() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (!x11 || !x11->display()) return {};
  Display* schermo = x11->display();
  return {Accesa(schermo, "Scroll Lock"), Accesa(schermo, "Caps Lock"),
          Accesa(schermo, "Num Lock")};
}

}  // namespace telarium
