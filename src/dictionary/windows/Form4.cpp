#include "dictionary/windows/Form4.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "model/state.h"
#include "platform/qt/word_line.h"

namespace telarium {
namespace {

constexpr int ListePerRiga = 7;
// Logical pixels.
constexpr QSize MisuraIniziale(960, 680);
constexpr int LarghezzaElenco = 130;  // of the lists of files, at the least
constexpr int AltezzaProgressione = 14;
constexpr int RigheDiStato = 2;  // lines of the longest status

// Controls one below the other, as high as they are, lists as high as there is room.
QVBoxLayout* InColonna(std::initializer_list<QWidget*> controlli) {
  auto* colonna = new QVBoxLayout;
  for (QWidget* controllo : controlli)
    colonna->addWidget(controllo);
  return colonna;
}

}  // namespace

Form4::Form4(QWidget* genitore)
    : FinestraModale(QStringLiteral("Form4"), QStringLiteral("Telarium - Creazione dizionario"),
                     genitore),
      dizionario_(IlDizionario()) {
  std::error_code ignorato;
  std::filesystem::current_path(dizionario_.Cartella(), ignorato);
  CreaListe();
  CreaDizionari();
  CreaAvanzamento();
  CreaComandi();
  Disponi();
  Collega();
  AzzeraDidascalie();
  MostraNome();
  Finisci();
  Text1->hide();
  Command3->hide();
  SegnaAperto();
  (File2->Scelto() ? File2 : File1)->setFocus();
}

// The boxes show lists of this window, which go before the controls do.
Form4::~Form4() {
  for (ElencoDiParole* lista : Combo1)
    delete lista;
}

void Form4::CreaListe() {
  for (int i = 0; i < NumListe; ++i) {
    const auto lista = static_cast<std::size_t>(i);
    Label1[lista] = Chiamato(NomeInSerie("Label1", i), new QLabel(this));
    Combo1[lista] = new ElencoDiParole(NomeInSerie("Combo1", i), parole_[lista], this);
    Combo1[lista]->QuandoToccato([this, i] { ListaCorrente = static_cast<std::int16_t>(i); });
    Label2[lista] = Chiamato(NomeInSerie("Label2", i), new QLabel(this));
  }
}

void Form4::CreaDizionari() {
  Label9 = Chiamato(QStringLiteral("Label9"), new QLabel(this));
  QFont grassetto = Label9->font();
  grassetto.setBold(true);
  Label9->setFont(grassetto);
  Label9->setTextFormat(Qt::PlainText);
  Label9->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);  // names can be long
  Label6 =
      Chiamato(QStringLiteral("Label6"), new QLabel(QStringLiteral("Dizionari di sistema"), this));
  File1 = Chiamato(QStringLiteral("File1"), new ListaFile("Lessico*.dat", this));
  Label7 =
      Chiamato(QStringLiteral("Label7"), new QLabel(QStringLiteral("Dizionari personali"), this));
  File2 = Chiamato(QStringLiteral("File2"), new ListaFile("*.priv", this));
  for (ListaFile* file : {File1, File2}) {
    file->setMinimumWidth(LarghezzaElenco);
    file->installEventFilter(this);
    file->Vai(dizionario_.Cartella());
  }
  Label6->setBuddy(File1);
  Label7->setBuddy(File2);
}

void Form4::CreaAvanzamento() {
  Label3 = Chiamato(
      QStringLiteral("Label3"),
      new QLabel(QStringLiteral("Scegli il dizionario disponibile qua a fianco da aprire --->"),
                 this));
  Label3->setTextFormat(Qt::PlainText);
  Label3->setWordWrap(true);
  Label3->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  Label3->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);  // whatever it says
  Label3->setFixedHeight(RigheDiStato * Label3->fontMetrics().lineSpacing());
  Picture1 = Chiamato(QStringLiteral("Picture1"), new Tela(this));
  Picture1->setFixedHeight(AltezzaProgressione);
  Picture1->QuandoCambiaMisura([this] { DipingiBarra(1, ColoreBianco); });
  Label5 = Chiamato(QStringLiteral("Label5"), new QLabel(QStringLiteral("Totale parole"), this));
  Label4 = Chiamato(QStringLiteral("Label4"), new QLabel(this));
}

void Form4::CreaComandi() {
  struct Voce {
    QPushButton*& pulsante;
    QString nome, testo, suggerimento = {};
  };
  const Voce voci[] = {
      {Command1, QStringLiteral("Command1"), QStringLiteral("Aggiungi Parola")},
      {Command3, QStringLiteral("Command3"), QStringLiteral("&OK")},
      {Command5, QStringLiteral("Command5"), QStringLiteral("&Elimina parola")},
      {Command4, QStringLiteral("Command4"), QStringLiteral("Ricrea Dizionario")},
      {Command8, QStringLiteral("Command8"), QStringLiteral("TXT"),
       QStringLiteral("Importa dai files 3.txt, 4.txt ... 15.txt")},
      {Command6, QStringLiteral("Command6"), QStringLiteral("&Nuovo dizionario priv.")},
      {Command7, QStringLiteral("Command7"), QStringLiteral("Cancella dizionario priv.")},
      {Command2, QStringLiteral("Command2"), QStringLiteral("Uscita")},
  };
  for (const Voce& voce : voci)
    voce.pulsante = Pulsante(voce.nome, voce.testo, voce.suggerimento, this);
  Text1 = Chiamato(QStringLiteral("Text1"), new CasellaMaiuscola(this));
  Text1->installEventFilter(this);
  setTabOrder(Command1, Text1);
  setTabOrder(Text1, Command3);
}

// It also fits a screen of 800 x 600: the lists then show fewer words.
void Form4::Disponi() {
  auto* tutto = new QVBoxLayout(this);
  for (int prima = 0; prima < NumListe; prima += ListePerRiga)
    tutto->addLayout(RigaDiListe(prima, std::min(prima + ListePerRiga, NumListe)), 1);
  auto* sotto = new QHBoxLayout;
  sotto->addLayout(Stato(), 2);
  sotto->addLayout(InColonna({Label6, File1}), 1);
  sotto->addLayout(InColonna({Label7, File2}), 1);
  auto* bottoni = InColonna({Command6, Command7});
  bottoni->addStretch(1);
  bottoni->addWidget(Command2);
  sotto->addLayout(bottoni);
  tutto->addLayout(sotto);
  resize(MisuraIniziale);
}

// Columns as wide as their words need, or as their counts at the least.
QLayout* Form4::RigaDiListe(int prima, int fine) {
  auto* riga = new QHBoxLayout;
  for (int i = prima; i < fine; ++i) {
    const auto lista = static_cast<std::size_t>(i);
    Label2[lista]->setMinimumWidth(
        Label2[lista]->fontMetrics().horizontalAdvance(QStringLiteral("(99999) Parole")));
    QVBoxLayout* colonna = InColonna({Label1[lista], Combo1[lista], Label2[lista]});
    colonna->setSpacing(2);
    colonna->setStretch(1, 1);
    riga->addLayout(colonna, Combo1[lista]->LarghezzaPer(LunghezzaDi(lista)));
  }
  return riga;
}

QLayout* Form4::Stato() {
  auto* parola = new QHBoxLayout;
  parola->addWidget(Text1, 1);
  parola->addWidget(Command3);
  parola->addStrut(Text1->sizeHint().height());  // the row stays while its controls are hidden
  auto* stato = new QGridLayout;
  constexpr int Colonne = 3;  // the last one takes what room is left
  stato->addWidget(Label9, 0, 0, 1, Colonne);
  stato->addWidget(Label3, 1, 0, 1, Colonne);
  stato->addWidget(Picture1, 2, 0, 1, Colonne);
  stato->addWidget(Label5, 3, 0);
  stato->addWidget(Label4, 3, 1);
  stato->addWidget(Command1, 4, 0);
  stato->addWidget(Command5, 4, 1);
  stato->addWidget(Command4, 5, 0);
  stato->addWidget(Command8, 5, 1);
  stato->addLayout(parola, 6, 0, 1, 2);
  stato->setColumnStretch(Colonne - 1, 1);
  stato->setRowStretch(7, 1);
  return stato;
}

void Form4::Collega() {
  Text1->setValidator(
      new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[A-Za-z]*")), Text1));
  connect(File1, &QListWidget::itemDoubleClicked, this, [this] { ApriDiSistema(); });
  connect(File2, &QListWidget::itemDoubleClicked, this, [this] { ApriPrivato(); });
  struct Voce {
    QPushButton* pulsante;
    void (Form4::*comando)();
  };
  for (const auto& [pulsante, comando] : {Voce{Command1, &Form4::ChiediParola},
                                          {Command3, &Form4::AggiungiParola},
                                          {Command5, &Form4::EliminaParola},
                                          {Command4, &Form4::RicreaDizionario},
                                          {Command8, &Form4::ImportaListe},
                                          {Command6, &Form4::CreaPrivato},
                                          {Command7, &Form4::CancellaPrivato},
                                          {Command2, &Form4::reject}}) {
    connect(pulsante, &QPushButton::clicked, this, comando);
  }
}

bool Form4::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::KeyPress && Invio(static_cast<QKeyEvent&>(*evento))) {
    if (oggetto == Text1) {
      AggiungiParola();
    } else if (oggetto == File1) {
      ApriDiSistema();
    } else if (oggetto == File2) {
      ApriPrivato();
    }
    return true;
  }
  return FinestraModale::eventFilter(oggetto, evento);
}

}  // namespace telarium
