#pragma once

#include <QApplication>
#include <thread>

#include "editor/windows/Form1.h"
#include "history/chronology.h"
#include "platform/commitment.h"
#include "platform/qt/qt_platform.h"

namespace telarium {

/// Gives the application its name, version and icon.
void NominaApplicazione();

/// Makes Qt's own texts, as those of the colour chooser, and its numbers and dates Italian,
/// whatever the language of the system. False when Qt's translations are not installed.
bool ParlaItaliano(QApplication& applicazione);

/// Joins the main window to the platform, which draws on it, shows boxes before it, has its
/// pointers and tells it how a fill goes, and gives its modal windows their help. The caller keeps
/// both alive.
void CollegaFinestra(PiattaformaQt& piattaforma, Form1& form);

/// The history of the crosswords of this desktop, in the user's own folder, as long as this object
/// lives; its last step is on the disk before the process ends, however that comes about.
class CronologiaDelDesktop {
 public:
  CronologiaDelDesktop();
  ~CronologiaDelDesktop();
  CronologiaDelDesktop(const CronologiaDelDesktop&) = delete;
  CronologiaDelDesktop& operator=(const CronologiaDelDesktop&) = delete;

  /// Removes what is past the limits of the archive, beside the window.
  void Sfoltisci();

 private:
  Cronologia cronologia_;
  Impegno scritta_;
  std::jthread sfoltisce_;
};

}  // namespace telarium
