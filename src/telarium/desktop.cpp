#include "telarium/desktop.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <chrono>

#include "editor/history_commands.h"
#include "editor/windows/pictures.h"
#include "editor/windows/window_help.h"
#include "model/documento.h"
#include "platform/user_folders.h"
#include "telarium_version.h"

namespace telarium {
namespace {

void ImpostaPuntatori(UtenteQt& utente, const Form1& form) {
  utente.Immagine(PuntatoreCasellaNera,
                  PuntatoreDi("black_pointer", {6, 6}, form.devicePixelRatioF()));
  utente.Immagine(PuntatoreMano, form.PuntatoreDelLogo());
}

// Empty, so that nothing is written, where the user has no such folder.
Percorso CartellaDelleCronologie() {
  const Percorso stato = CartellaStatoUtente();
  return stato.empty() ? stato : stato / "cronologia";
}

std::chrono::sys_seconds Adesso() {
  return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
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

CronologiaDelDesktop::CronologiaDelDesktop()
    : cronologia_(IlDocumento(), CartellaDelleCronologie(), Adesso),
      scritta_([this] { cronologia_.Attendi(); }) {
  ImpostaCronologia(&cronologia_);
}

CronologiaDelDesktop::~CronologiaDelDesktop() {
  ImpostaCronologia(nullptr);
}

void CronologiaDelDesktop::Sfoltisci() {
  const ArchivioDelleCronologie& archivio = cronologia_.Archivio();
  if (archivio.Cartella().empty()) return;
  sfoltisce_ = std::jthread([archivio] { archivio.Sfoltisci({}, Adesso()); });
}

}  // namespace telarium
