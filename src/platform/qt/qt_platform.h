#pragma once

#include "platform/platform.h"
#include "platform/qt/qt_machine.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/qt_user.h"

namespace telarium {

/// The platform of the desktop.
class PiattaformaQt : public Piattaforma {
 public:
  UtenteQt& ChiUsa() override { return utente_; }
  Macchina& Sistema() override { return macchina_; }
  Superficie* FinestraPrincipale() override { return finestra_; }

  StampanteQt* LaStampante() override { return &stampante_; }

  /// The surface of the main window; the caller keeps it alive.
  void FinestraPrincipale(Superficie* finestra) { finestra_ = finestra; }

  /// Ends the process at once, with status 0 or, when it cannot go on, 1: what must not outlive it
  /// goes, and nothing of the windows runs any more.
  void Termina(Fine fine) override;

 private:
  UtenteQt utente_;
  MacchinaQt macchina_;
  StampanteQt stampante_;
  Superficie* finestra_ = nullptr;
};

}  // namespace telarium
