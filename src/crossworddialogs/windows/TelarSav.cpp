#include "crossworddialogs/windows/TelarSav.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "crossworddialogs/crossword_archive.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr QSize MisuraIniziale(620, 480);  // logical pixels

}  // namespace

TelarSav::TelarSav(QWidget* genitore)
    : FinestraModale(QStringLiteral("TelarSav"), QStringLiteral("Telarium  - Salvataggio"),
                     genitore) {
  CreaControlli();
  Disponi();
  elenchi_.emplace(Drive1, Dir1, File1);
  elenchi_->Vai(CartellaArchivio());
  File1->QuandoScelta([this](const Percorso& nome) { Text1->Mostra(nome); });
  connect(File1, &QListWidget::itemDoubleClicked, this, [this] { Salva(); });
  connect(Command3d1, &QPushButton::clicked, this, [this] { Salva(); });
  connect(Command3d2, &QPushButton::clicked, this, &TelarSav::reject);
  Text2->setText(AQt(AutoreDelCruciverba()));
  Text2->selectAll();
  resize(MisuraIniziale);
}

void TelarSav::CreaControlli() {
  Drive1 = Chiamato(QStringLiteral("Drive1"), new ListaUnita(this));
  Label3 = Chiamato(QStringLiteral("Label3"), new QLabel(QStringLiteral("Cartelle"), this));
  Dir1 = Chiamato(QStringLiteral("Dir1"), new AlberoCartelle(this));
  Label3->setBuddy(Dir1);
  File1 = Chiamato(QStringLiteral("File1"), new ListaFile(ModelloCruciverba, this));
  Frame1 = Chiamato(QStringLiteral("Frame1"),
                    new QGroupBox(QStringLiteral("Dati per il salvataggio : "), this));
  Label1 = Chiamato(QStringLiteral("Label1"), new QLabel(QStringLiteral("Nome File"), Frame1));
  Text1 = Chiamato(QStringLiteral("Text1"), new CasellaDiNome(Frame1));
  Label1->setBuddy(Text1);
  Frame2 = Chiamato(QStringLiteral("Frame2"), new QGroupBox(this));
  Frame2->setToolTip(QStringLiteral("Inserire autore/indirizzo/e-mail ecc."));
  Label2 = Chiamato(QStringLiteral("Label2"), new QLabel(QStringLiteral("Dati autore:"), Frame2));
  Text2 = Chiamato(QStringLiteral("Text2"), new CasellaDiTesto(QStringLiteral("Anonimo"), Frame2));
  Label2->setBuddy(Text2);
  Command3d1 =
      Chiamato(QStringLiteral("Command3d1"), new QPushButton(QStringLiteral("&Salva"), this));
  Command3d1->setDefault(true);
  Command3d2 =
      Chiamato(QStringLiteral("Command3d2"), new QPushButton(QStringLiteral("&Annulla"), this));
}

void TelarSav::Disponi() {
  auto* nome = new QVBoxLayout(Frame1);
  nome->addWidget(Label1);
  nome->addWidget(Text1);
  auto* autore = new QVBoxLayout(Frame2);
  autore->addWidget(Label2);
  autore->addWidget(Text2);

  auto* cartelle = new QVBoxLayout;
  cartelle->addWidget(Drive1);
  cartelle->addWidget(Label3);
  cartelle->addWidget(Dir1, 1);
  auto* elenchi = new QHBoxLayout;
  elenchi->addLayout(cartelle, 1);
  elenchi->addWidget(File1, 1);
  auto* pulsanti = new QHBoxLayout;
  pulsanti->addStretch(1);
  pulsanti->addWidget(Command3d1);
  pulsanti->addWidget(Command3d2);

  auto* tutto = new QVBoxLayout(this);
  tutto->addLayout(elenchi, 1);
  tutto->addWidget(Frame1);
  tutto->addWidget(Frame2);
  tutto->addLayout(pulsanti);
  Drive1->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void TelarSav::Attivata() {
  Text1->Mostra(NomeProposto());
  Text1->setFocus();
  Text1->selectAll();
}

void TelarSav::Salva() {
  if (AQt(DaQt(Text2->text())) != Text2->text()) {
    Avvisa("I dati autore contengono caratteri che il file del cruciverba non può tenere."_cp);
    return Text2->setFocus();
  }
  if (SalvaNellArchivio(Dir1->Cartella(), Text1->Nome(), DaQt(Text2->text()))) accept();
}

}  // namespace telarium
