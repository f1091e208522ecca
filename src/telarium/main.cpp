#include <QApplication>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <vector>

#include "clues/first_encyclopedia.h"
#include "crossworddialogs/crossword_archive.h"
#include "editor/startup.h"
#include "editor/windows/Form1.h"
#include "platform/commitment.h"
#include "platform/program_folder.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_text.h"
#include "platform/temporary.h"
#include "telarium/desktop.h"
#include "telarium/orderly_end.h"
#include "telarium/process_age.h"
#include "telarium/single_instance.h"
#include "telarium_version.h"

namespace telarium {
namespace {

constexpr const char* Uso =
    "Uso: telarium [FILE]\n"
    "Laboratorio di parole crociate; FILE è un cruciverba (.tlrm) da aprire.\n"
    "\n"
    "  --help     mostra questo testo\n"
    "  --version  mostra la versione\n";

// What is no option is one file name as it was typed, blanks between its words.
Percorso FileDellaRigaDiComando(int argc, char** argv) {
  std::string riga;
  for (int i = 1; i < argc; ++i)
    riga += (i > 1 ? " " : "") + std::string(argv[i]);
  std::error_code ignorato;
  // The program's own folder becomes the working directory soon.
  return riga.empty() ? Percorso() : std::filesystem::absolute(riga, ignorato);
}

bool SchermoPresente() {
  for (const char* variabile : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
    const char* valore = std::getenv(variabile);
    if (valore && *valore) return true;
  }
  return false;
}

void DiciTempi(Form1& form) {
  if (!std::getenv("TELARIUM_TEMPI")) return;
  form.Area->QuandoDipinta([] {
    std::fprintf(stderr, "avvio: %lld ms fino alla prima immagine\n",
                 static_cast<long long>(EtaDelProcesso().count()));
  });
}

// What earlier runs left that were killed.
void TogliResti(const Percorso& cartella) {
  CartellaProgramma = cartella;
  TogliScrittureInterrotte(cartella);
  TogliScrittureInterrotte(CartellaArchivio());
  TogliCartelleAbbandonate();
}

int EseguiDesktop(QApplication& applicazione, const Percorso& file) {
  PiattaformaQt piattaforma;
  ImpostaPiattaforma(&piattaforma);
  const auto [cartella, daRiempire] = PreparaCartellaProgramma();
  if (cartella.empty()) return EXIT_FAILURE;

  std::optional<UnicaIstanza> istanza(std::in_place, cartella);
  const Impegno libera([&istanza] { istanza.reset(); });
  Form1* ricevente = nullptr;
  std::vector<Percorso> inAttesa;  // what comes before the first activation
  const UnicaIstanza::Avvio avvio = istanza->Inizia([&](const Percorso& altro) {
    if (ricevente) {
      ricevente->RiceviDaFuori(altro);
    } else {
      inAttesa.push_back(altro);
    }
  });
  if (avvio == UnicaIstanza::Avvio::Rinuncia) return EXIT_FAILURE;
  if (avvio == UnicaIstanza::Avvio::Seconda) {
    if (istanza->Consegna(file)) return EXIT_SUCCESS;
    istanza->AvvisaSenzaRisposta();
    return EXIT_FAILURE;
  }
  TogliResti(cartella);

  if (daRiempire) AggiornaCartellaProgramma(cartella, FileModificati::Chiedi);
  if (daRiempire && MancaEnciclopedia(CartellaDatiInstallati(), cartella))
    PreparaEnciclopedia(CartellaDatiInstallati(), cartella);
  RigaDiComando = file;
  CaricaProgramma(cartella);
  CronologiaDelDesktop cronologia;
  Form1 form;
  CollegaFinestra(piattaforma, form);
  const FineOrdinata fineOrdinata([] {
    AbbandonaIstantanea();
    TerminaProgramma(Fine::Regolare);
  });
  DiciTempi(form);
  form.Mostra();
  QTimer::singleShot(0, &form, [&] {  // behind the first activation
    cronologia.Sfoltisci();
    ricevente = &form;
    for (const Percorso& altro : inAttesa)
      form.RiceviDaFuori(altro);
  });
  return applicazione.exec();
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  using namespace telarium;
  const std::string_view primo = argc == 2 ? argv[1] : "";
  if (primo == "--help") return std::fputs(Uso, stdout) < 0;
  if (primo == "--version") return std::puts("telarium " TELARIUM_VERSION) < 0;
  if (!SchermoPresente()) {
    std::fputs("telarium: nessuno schermo (DISPLAY e WAYLAND_DISPLAY mancano).\n", stderr);
    return EXIT_FAILURE;
  }
  std::signal(SIGXFSZ, SIG_IGN);  // a file over the limit is a write error like another
  std::signal(SIGPIPE, SIG_IGN);
  const Percorso file = FileDellaRigaDiComando(argc, argv);
  int soloIlNome = 1;  // the command line is a file, not options of the windows
  QApplication applicazione(soloIlNome, argv);
  NominaApplicazione();
  ParlaItaliano(applicazione);  // without the translations Qt says "Cancel", and all works
  return EseguiDesktop(applicazione, file);
}
