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
    : FinestraArchivio(QStringLiteral("TelarSav"), QStringLiteral("Telarium  - Salvataggio"),
                       QStringLiteral("&Salva"), genitore) {
  CreaControlli();
  Disponi();
  File1->QuandoScelta([this](const Percorso& nome) { Text1->Mostra(nome); });
  Text2->setText(AQt(AutoreDelCruciverba()));
  Text2->selectAll();
  resize(MisuraIniziale);
}

void TelarSav::CreaControlli() {
  Label3 = Chiamato(QStringLiteral("Label3"), new QLabel(QStringLiteral("Cartelle"), this));
  Label3->setBuddy(Dir1);
  Frame1 = Chiamato(QStringLiteral("Frame1"),
                    new QGroupBox(QStringLiteral("Dati per il salvataggio : "), this));
  Label1 = Chiamato(QStringLiteral("Label1"), new QLabel(QStringLiteral("Nome File"), Frame1));
  Label1->setBuddy(Text1);
  Frame2 = Chiamato(QStringLiteral("Frame2"), new QGroupBox(this));
  Frame2->setToolTip(QStringLiteral("Inserire autore/indirizzo/e-mail ecc."));
  Label2 = Chiamato(QStringLiteral("Label2"), new QLabel(QStringLiteral("Dati autore:"), Frame2));
  Text2 = Chiamato(QStringLiteral("Text2"), new CasellaDiTesto(QStringLiteral("Anonimo"), Frame2));
  Label2->setBuddy(Text2);
  setTabOrder(Text1, Text2);
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

  auto* tutto = new QVBoxLayout(this);
  tutto->addLayout(elenchi, 1);
  tutto->addWidget(Frame1);
  tutto->addWidget(Frame2);
  tutto->addLayout(Pulsanti());
}

void TelarSav::Attivata() {
  Text1->Mostra(NomeProposto());
  Text1->setFocus();
  Text1->selectAll();
}

// The proposed name goes along; one that the user has typed stays what it is.
void TelarSav::CambiataCartella() {
  if (Text1->Immutata()) Text1->Mostra(Text1->Nome().filename());
}

void TelarSav::Conferma() {
  const auto autore = DaQtEsatto(Text2->text());
  if (!autore) {
    Avvisa("I dati autore contengono caratteri che il file del cruciverba non può contenere."_cp);
    return Text2->setFocus();
  }
  if (SalvaNellArchivio(Dir1->Cartella(), Text1->Nome(), *autore)) accept();
}

}  // namespace telarium
