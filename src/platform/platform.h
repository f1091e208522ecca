#pragma once

#include "platform/machine.h"
#include "platform/printer.h"
#include "platform/surface.h"
#include "platform/user.h"

namespace telarium {

/// How the program ends: as the user wanted, or because it cannot go on, after a message.
enum class Fine { Regolare, Fatale };

/// The one object that stands between the core and the machine. `main` or a test fixture sets it.
class Piattaforma {
 public:
  virtual ~Piattaforma() = default;

  virtual Utente& ChiUsa() = 0;
  virtual Macchina& Sistema() = 0;

  /// The surface of the main window; null where there is no window.
  virtual Superficie* FinestraPrincipale() = 0;

  /// The printer; null where there is none.
  virtual Stampante* LaStampante() { return nullptr; }

  /// Ends the program: the process in the desktop, by an exception in tests and in `telar`. What
  /// comes behind the call never runs.
  virtual void Termina(Fine fine) = 0;
};

/// Sets the platform of this process; null takes it away. The caller keeps it alive.
void ImpostaPiattaforma(Piattaforma* piattaforma);

/// The platform in use. To ask for one before it is set is a programming error.
Piattaforma& LaPiattaforma();

inline Utente& ChiUsa() {
  return LaPiattaforma().ChiUsa();
}
inline Macchina& Sistema() {
  return LaPiattaforma().Sistema();
}
inline Superficie* FinestraPrincipale() {
  return LaPiattaforma().FinestraPrincipale();
}
inline Stampante* LaStampante() {
  return LaPiattaforma().LaStampante();
}
[[noreturn]] void TerminaProgramma(Fine fine = Fine::Fatale);

/// Today's date as day-month-year, in two, two and four digits.
std::string DataDiOggi();

/// Shows a message with an OK button.
void Avvisa(std::string_view testo, std::string_view titolo = {}, Icona icona = Icona::Nessuna);

}  // namespace telarium
