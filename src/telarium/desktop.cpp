#include "telarium/desktop.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "editor/windows/pictures.h"
#include "editor/windows/window_help.h"
#include "telarium_version.h"

namespace telarium {
namespace {

void ImpostaPuntatori(UtenteQt& utente, const Form1& form) {
  utente.Immagine(PuntatoreCasellaNera,
                  PuntatoreDi("black_pointer", {6, 6}, form.devicePixelRatioF()));
  utente.Immagine(PuntatoreMano, form.PuntatoreDelLogo());
}

}  // namespace

void NominaApplicazione() {
  // A display name would be put behind every title.
  QApplication::setApplicationName(QStringLiteral("Telarium"));
  QApplication::setApplicationVersion(QStringLiteral(TELARIUM_VERSION));
  QApplication::setDesktopFileName(QStringLiteral("telarium"));
  QApplication::setWindowIcon(Immagine("icon"));
}

bool ParlaItaliano(QApplication& applicazione) {
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  auto* traduttore = new QTranslator(&applicazione);
  return traduttore->load(QStringLiteral("qtbase_it"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
         QApplication::installTranslator(traduttore);
}

void CollegaFinestra(PiattaformaQt& piattaforma, Form1& form) {
  UtenteQt& utente = piattaforma.ChiUsa();
  ImpostaPuntatori(utente, form);
  utente.Finestra(&form);
  piattaforma.LaStampante()->Finestra(&form);
  piattaforma.FinestraPrincipale(&form.Area->Superficie());
  QApplication::instance()->installEventFilter(new AiutoNelleFinestre(&form));
}

}  // namespace telarium
