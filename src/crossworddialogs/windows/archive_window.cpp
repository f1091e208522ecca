#include "crossworddialogs/windows/archive_window.h"

#include <QHBoxLayout>

#include "crossworddialogs/crossword_archive.h"
#include "platform/platform.h"

namespace telarium {

FinestraArchivio::FinestraArchivio(const QString& nome, const QString& titolo,
                                   const QString& conferma, QWidget* genitore)
    : FinestraModale(nome, titolo, genitore) {
  Drive1 = Chiamato(QStringLiteral("Drive1"), new ListaUnita(this));
  // The name of a volume must not widen the window.
  Drive1->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  Dir1 = Chiamato(QStringLiteral("Dir1"), new AlberoCartelle(this));
  File1 = Chiamato(QStringLiteral("File1"), new ListaFile(ModelloCruciverba, this));
  Text1 = Chiamato(QStringLiteral("Text1"), new CasellaDiNome(this));
  Command3d1 = Chiamato(QStringLiteral("Command3d1"), new QPushButton(conferma, this));
  Command3d1->setDefault(true);
  Command3d2 =
      Chiamato(QStringLiteral("Command3d2"), new QPushButton(QStringLiteral("&Annulla"), this));
  Vai(CartellaArchivio());

  connect(Drive1, &QComboBox::activated, this, [this] { Vai(Drive1->Scelta()); });
  Dir1->QuandoCambia([this] { MostraFile(); });
  connect(File1, &QListWidget::itemDoubleClicked, this, [this] { Conferma(); });
  connect(Command3d1, &QPushButton::clicked, this, [this] { Conferma(); });
  connect(Command3d2, &QPushButton::clicked, this, [this] { reject(); });
}

QHBoxLayout* FinestraArchivio::Pulsanti() {
  auto* pulsanti = new QHBoxLayout;
  pulsanti->addStretch(1);
  pulsanti->addWidget(Command3d1);
  pulsanti->addWidget(Command3d2);
  return pulsanti;
}

// A folder that cannot be read leaves the lists as they are.
void FinestraArchivio::Vai(const Percorso& cartella) {
  if (Dir1->Vai(cartella)) return MostraFile();
  Avvisa(
      ConCausa("Errore di lettura dal drive specificato", cartella, ErroreDellaCartella(cartella)));
  Drive1->Mostra(Dir1->Cartella());
}

void FinestraArchivio::MostraFile() {
  File1->Vai(Dir1->Cartella());
  Drive1->Mostra(Dir1->Cartella());
  CambiataCartella();
}

}  // namespace telarium
