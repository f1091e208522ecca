#include "crossworddialogs/windows/Form2.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

#include "crossworddialogs/crossword_archive.h"
#include "editor/file_commands.h"
#include "model/state.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

// Logical pixels.
constexpr QSize MisuraIniziale(820, 560);
constexpr QSize MisuraMinimaAnteprima(260, 200);
constexpr int LarghezzaElenchi = 220;

}  // namespace

Form2::Form2(QWidget* genitore)
    : FinestraArchivio(QStringLiteral("Form2"),
                       QStringLiteral("Telarium  - Apertura layout parole crociate"),
                       QStringLiteral("A&pri"), genitore) {
  CreaControlli();
  Disponi();
  File1->QuandoScelta([this](const Percorso& nome) { Leggi(nome); });
  Picture1->QuandoCambiaMisura([this] { Ridisegna(); });
  Mostra(std::nullopt);
  resize(MisuraIniziale);
}

void Form2::CreaControlli() {
  Frame2 = Chiamato(QStringLiteral("Frame2"), new QGroupBox(QStringLiteral("Cartella"), this));
  Label4 =
      Chiamato(QStringLiteral("Label4"), new QLabel(QStringLiteral("Files di cruciverba "), this));
  Label4->setBuddy(File1);
  Frame3 = Chiamato(QStringLiteral("Frame3"), new QGroupBox(QStringLiteral("Nome file"), this));
  Frame1 = Chiamato(QStringLiteral("Frame1"), new QGroupBox(this));
  Picture1 = Chiamato(QStringLiteral("Picture1"), new Tela(Frame1));
  Picture1->Superficie().Sfondo(ColoreBianco);
  Picture1->setMinimumSize(MisuraMinimaAnteprima);
  StatusBar1 = Chiamato(QStringLiteral("StatusBar1"), new QLabel(this));
  StatusBar1->setTextFormat(Qt::PlainText);
  StatusBar1->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  // Data of any length must not widen the window.
  StatusBar1->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void Form2::Disponi() {
  auto* cartella = new QVBoxLayout(Frame2);
  cartella->addWidget(Dir1);
  auto* elenchi = new QVBoxLayout;
  elenchi->addWidget(Drive1);
  elenchi->addWidget(Frame2, 1);
  elenchi->addWidget(Label4);
  elenchi->addWidget(File1, 1);

  auto* nome = new QVBoxLayout(Frame3);
  nome->addWidget(Text1);
  auto* anteprima = new QVBoxLayout(Frame1);
  anteprima->addWidget(Picture1);
  auto* destra = new QVBoxLayout;
  destra->addWidget(Frame1, 1);
  destra->addWidget(Frame3);
  destra->addLayout(Pulsanti());

  auto* sopra = new QHBoxLayout;
  sopra->addLayout(elenchi, 2);
  sopra->addLayout(destra, 3);
  auto* tutto = new QVBoxLayout(this);
  tutto->addLayout(sopra, 1);
  tutto->addWidget(StatusBar1);
  for (QWidget* elenco : {static_cast<QWidget*>(Drive1), static_cast<QWidget*>(Frame2)})
    elenco->setMinimumWidth(LarghezzaElenchi);
}

void Form2::Attivata() {
  File1->setFocus();
  File1->setCurrentRow(0);
  ImpostaPuntatoreMouse(PuntatoreFreccia);
}

void Form2::Leggi(const Percorso& nome) {
  Text1->Mostra(nome);
  Mostra(std::nullopt);
  Mostra(LeggiAnteprima(File1->Cartella() / nome));
}

// In another folder nothing is selected; a name that was typed stays.
void Form2::CambiataCartella() {
  if (Text1->Immutata()) Text1->Mostra({});
  Mostra(std::nullopt);
}

void Form2::Mostra(std::optional<AnteprimaCruciverba> anteprima) {
  anteprima_ = std::move(anteprima);
  Ridisegna();
  StatusBar1->setText(anteprima_ ? AQt(anteprima_->autoreDataTipo) : QString());
  QString titolo = QStringLiteral("Anteprima");
  if (anteprima_) titolo += QStringLiteral(": ") + AQt(anteprima_->dimensioni);
  Frame1->setTitle(titolo.replace(u'&', QStringLiteral("&&")));
}

void Form2::Ridisegna() {
  if (anteprima_) {
    DisegnaAnteprima(*anteprima_, Picture1->Superficie());
  } else {
    Picture1->Superficie().Pulisci();
  }
}

void Form2::Conferma() {
  if (ApriFileDiCruciverba(Dir1->Cartella() / Text1->Nome())) accept();
}

void Form2::reject() {
  RinunciaAdAprire();
  FinestraModale::reject();
}

}  // namespace telarium
