#include "clues/windows/TelarDef.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "clues/clue_family.h"
#include "clues/clue_search.h"
#include "dictionary/dictionary_choice.h"
#include "dictionary/masked_search.h"
#include "dictionary/open_dictionary.h"
#include "dictionary/word_pattern.h"
#include "editor/main_window.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/word_line.h"

namespace telarium {
namespace {

constexpr QSize MisuraIniziale(540, 440);  // logical pixels: it shall fit beside most words
constexpr Colore BordoProgressione = 0xA0A0A0;
constexpr int AltezzaProgressione = 14;        // logical pixels
constexpr int MinCaratteriParole = 16;         // of Combo1, in widths of a letter
constexpr qsizetype MaxCaratteriElenco = 500;  // that a list shows of a clue; all of it is kept

// Whether a control keeps its place while it is hidden.
void TieniIlPosto(QWidget& controllo, bool tieni) {
  QSizePolicy misure = controllo.sizePolicy();
  misure.setRetainSizeWhenHidden(tieni);
  controllo.setSizePolicy(misure);
}

void Riempi(QListWidget& elenco, const std::string& famiglia) {
  elenco.clear();
  for (const std::string_view definizione : PartiDellaFamiglia(famiglia)) {
    const QString intera = AQt(definizione);
    auto* voce = new QListWidgetItem(intera.left(MaxCaratteriElenco).simplified(), &elenco);
    voce->setToolTip(ComeSuggerimento(intera.left(MaxCaratteriElenco)));
    voce->setData(Qt::UserRole, QByteArray(definizione.data(), qsizetype(definizione.size())));
  }
}

// A list that shows by its frame that it has the focus, also while it is empty. By the keyboard its
// first entry can be taken at once.
class ElencoTrovate : public QListWidget {
 public:
  explicit ElencoTrovate(QWidget* genitore) : QListWidget(genitore) {
    const int altro = Spessore - frameWidth();
    setViewportMargins(altro, altro, altro, altro);  // no entry lies below the frame
  }

 protected:
  void focusInEvent(QFocusEvent* evento) override {
    QListWidget::focusInEvent(evento);
    const Qt::FocusReason motivo = evento->reason();
    const bool daTastiera = motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason;
    if (daTastiera && selectedItems().isEmpty())
      setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
    update();
  }

  void focusOutEvent(QFocusEvent* evento) override {
    QListWidget::focusOutEvent(evento);
    update();
  }

  bool event(QEvent* evento) override {
    const bool accolto = QListWidget::event(evento);
    if (evento->type() == QEvent::Paint && hasFocus()) {
      QPainter pittore(this);
      pittore.setPen(
          QPen(palette().highlight(), Spessore, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
      pittore.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    return accolto;
  }

 private:
  static constexpr int Spessore = 2;  // of the frame, logical pixels
};

}  // namespace

TelarDef::TelarDef(ParolaInEsame parola, QWidget* genitore)
    : FinestraModale(QStringLiteral("TelarDef"),
                     QStringLiteral("Edit definizioni (click qui per spostarmi)"), genitore),
      esame_(std::move(parola)) {
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  CreaParola();
  CreaDefinizione();
  CreaTrovate();
  CreaMaschera();
  CreaRicerca();
  Command3d1 = Pulsante(QStringLiteral("Command3d1"), QStringLiteral("&OK"),
                        QStringLiteral("Accetta ed esce"), this);
  Command3d2 = Pulsante(QStringLiteral("Command3d2"), QStringLiteral("&Annulla"),
                        QStringLiteral("Annulla operazione"), this);
  Command3D3 = Pulsante(QStringLiteral("Command3D3"), QStringLiteral("&Help"), QString(), this);
  Disponi();
  PreparaMaschera();
  Collega();
  resize(MisuraIniziale);
}

void TelarDef::CreaParola() {
  Label1 = Chiamato(QStringLiteral("Label1"), new QLabel(this));
  QFont grassetto = Label1->font();
  grassetto.setBold(true);
  Label1->setFont(grassetto);
  Label3 = Chiamato(QStringLiteral("Label3"), new QLabel(QStringLiteral("Parola:"), this));
  Text2 = Chiamato(QStringLiteral("Text2"), new CasellaMaiuscola(this));
  Label3->setBuddy(Text2);
  Text2->installEventFilter(this);
}

void TelarDef::CreaDefinizione() {
  Frame5 = Chiamato(QStringLiteral("Frame5"), new QGroupBox(QStringLiteral("Definizione"), this));
  Text1 = Chiamato(QStringLiteral("Text1"), new CasellaDefinizione(Frame5));
  Text1->installEventFilter(this);
  Text1->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);  // as high as its buttons
  Command1 = Pulsante(QStringLiteral("Command1"), QStringLiteral("Cerca"),
                      QStringLiteral("Ricerca una definizione dal database."), Frame5);
  Command2 = Pulsante(QStringLiteral("Command2"), QStringLiteral("Word"),
                      QStringLiteral("Chiede aiuto a Microsoft Word (se installato)"), Frame5);
  Command3 = Pulsante(QStringLiteral("Command3"), QStringLiteral("Online"),
                      QStringLiteral("Cerca su Internet nei dizionari on-line"), Frame5);
}

QListWidget* TelarDef::CreaElenco(const QString& nome) {
  auto* elenco = Chiamato<QListWidget>(nome, new ElencoTrovate(Frame4));
  elenco->setUniformItemSizes(true);  // families may have thousands of clues
  elenco->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  elenco->setTextElideMode(Qt::ElideRight);  // the tip has the whole clue
  elenco->installEventFilter(this);
  connect(elenco, &QListWidget::itemDoubleClicked, this, [this, elenco] { CopiaScelta(*elenco); });
  return elenco;
}

void TelarDef::CopiaScelta(const QListWidget& elenco) {
  const QListWidgetItem* voce = elenco.currentItem();
  if (voce) Text1->Mostra(voce->data(Qt::UserRole).toByteArray().toStdString());
}

void TelarDef::CreaTrovate() {
  Frame4 = Chiamato(
      QStringLiteral("Frame4"),
      new QGroupBox(QStringLiteral("Definizioni trovate, doppioclick per compilarle "), this));
  Label6 = Chiamato(QStringLiteral("Label6"), new QLabel(QStringLiteral("Facili"), Frame4));
  List1 = CreaElenco(QStringLiteral("List1"));
  Label7 = Chiamato(QStringLiteral("Label7"), new QLabel(QStringLiteral("Difficili"), Frame4));
  List2 = CreaElenco(QStringLiteral("List2"));
}

void TelarDef::CreaMaschera() {
  for (std::size_t i = 0; i < Check3d1.size(); ++i) {
    Label2[i] = Chiamato(QStringLiteral("Label2_%1").arg(i), new QLabel(this));
    Label2[i]->setAlignment(Qt::AlignCenter);
    Check3d1[i] = Chiamato(QStringLiteral("Check3d1_%1").arg(i), new QCheckBox(this));
    Check3d1[i]->setToolTip(QStringLiteral("Selezionare lettere per mascheramento"));
  }
}

void TelarDef::CreaRicerca() {
  Command3D4 = Pulsante(QStringLiteral("Command3D4"), QStringLiteral("&Cerca"), QString(), this);
  Command4 = Pulsante(QStringLiteral("Command4"), QStringLiteral("Altri"), QString(), this);
  Combo1 = Chiamato(QStringLiteral("Combo1"), new QComboBox(this));
  Combo1->setToolTip(QStringLiteral("lista parole trovate"));
  // As a box with a list below it; a full section would not fit as a menu over it.
  Combo1->setEditable(true);
  Combo1->setCompleter(nullptr);
  Combo1->lineEdit()->setReadOnly(true);
  Combo1->installEventFilter(this);
  Combo1->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  Combo1->setMinimumContentsLength(MinCaratteriParole);
  Label5 = Chiamato(QStringLiteral("Label5"), new QLabel(this));
  Label8 = Chiamato(QStringLiteral("Label8"), new QLabel(QStringLiteral("Progressione:"), this));
  Picture1 = Chiamato(QStringLiteral("Picture1"), new Tela(this));
  Picture1->setToolTip(QStringLiteral("progress. parole trovate"));
  Picture1->setFixedHeight(AltezzaProgressione);
  Picture1->QuandoCambiaMisura([this] { DipingiBarra(1, ColoreBianco); });
  menudizionari = Chiamato(QStringLiteral("menudizionari"), new QMenu(this));
}

void TelarDef::Disponi() {
  auto* parola = new QHBoxLayout;
  parola->addWidget(Label1);
  parola->addSpacing(12);
  parola->addWidget(Label3);
  parola->addWidget(Text2, 1);

  auto* aiuti = new QVBoxLayout;
  for (QPushButton* aiuto : {Command1, Command2, Command3})
    aiuti->addWidget(aiuto);
  auto* definizione = new QHBoxLayout(Frame5);
  definizione->addWidget(Text1, 1);
  definizione->addLayout(aiuti);

  auto* trovate = new QGridLayout(Frame4);
  trovate->addWidget(Label6, 0, 0);
  trovate->addWidget(List1, 1, 0);
  trovate->addWidget(Label7, 0, 1);
  trovate->addWidget(List2, 1, 1);

  auto* maschera = new QGridLayout;
  for (std::size_t i = 0; i < Check3d1.size(); ++i) {
    maschera->addWidget(Label2[i], 0, static_cast<int>(i), Qt::AlignHCenter);
    maschera->addWidget(Check3d1[i], 1, static_cast<int>(i), Qt::AlignHCenter);
  }
  auto* ricerca = new QGridLayout;
  ricerca->addWidget(Command3D4, 0, 0);
  ricerca->addWidget(Command4, 0, 1);
  ricerca->addWidget(Combo1, 0, 2);
  ricerca->addWidget(Label5, 0, 3);
  ricerca->addWidget(Label8, 1, 0, 1, 2, Qt::AlignRight);
  ricerca->addWidget(Picture1, 1, 2, 1, 2);
  ricerca->setColumnStretch(2, 1);
  Label5->setMinimumWidth(Label5->fontMetrics().horizontalAdvance(QStringLiteral("Trov.: 00000")));

  auto* bottoni = new QHBoxLayout;
  bottoni->addStretch(1);
  for (QPushButton* bottone : {Command3d1, Command3d2, Command3D3})
    bottoni->addWidget(bottone);

  auto* tutto = new QVBoxLayout(this);
  tutto->addLayout(parola);
  tutto->addWidget(Frame5);
  tutto->addWidget(Frame4, 1);
  tutto->addLayout(maschera);
  tutto->addLayout(ricerca);
  tutto->addLayout(bottoni);
}

void TelarDef::Collega() {
  for (std::size_t i = 0; i < Check3d1.size(); ++i)
    connect(Check3d1[i], &QCheckBox::toggled, Label2[i], &QLabel::setVisible);
  connect(Combo1, &QComboBox::textActivated, Text2, &QLineEdit::setText);
  connect(Command1, &QPushButton::clicked, this, [this] { CercaDefinizioni(); });
  connect(Command2, &QPushButton::clicked, this, [this] { ChiediAWord(DaQt(Text2->text())); });
  connect(Command3, &QPushButton::clicked, this, [] { LaFinestra().ApriMenu("menuint"); });
  connect(Command3D4, &QPushButton::clicked, this, [this] { CercaMaschera(IlDizionario()); });
  connect(Command4, &QPushButton::clicked, this, [this] { ApriMenuDizionari(); });
  connect(Command3d1, &QPushButton::clicked, this, [this] { AccettaDefinizione(); });
  connect(Command3d2, &QPushButton::clicked, this, [this] { reject(); });
  connect(Command3D3, &QPushButton::clicked, this, [] { Avvisa(AiutoDefinizione()); });
}

// The letters of the word, each with its box checked; an empty cell is a free place.
void TelarDef::PreparaMaschera() {
  const std::string maschera = esame_.MascheraIniziale();
  const bool cercabile = !maschera.empty();
  for (QWidget* controllo :
       std::initializer_list<QWidget*>{Command3D4, Command4, Combo1, Label8, Picture1})
    controllo->setVisible(cercabile);
  for (std::size_t i = 0; i < Check3d1.size(); ++i) {
    const bool posto = i < maschera.size();
    const bool lettera = posto && maschera[i] != PostoLibero;
    Label2[i]->setText(lettera ? AQt({&maschera[i], 1}) : QStringLiteral(" "));
    Label2[i]->setVisible(lettera);
    Check3d1[i]->setVisible(posto);
    Check3d1[i]->setChecked(lettera);
    TieniIlPosto(*Label2[i], cercabile);
    TieniIlPosto(*Check3d1[i], cercabile);
  }
}

void TelarDef::Colloca(const QRect& schermo) {
  const QMainWindow* principale = qobject_cast<QMainWindow*>(parentWidget());
  if (!principale) return FinestraModale::Colloca(schermo);
  // The word lies on the main window's surface. The frame that this window will have is not known
  // before it shows; that of the main window is like it.
  const QPoint area = principale->centralWidget()->mapToGlobal(QPoint()) - schermo.topLeft();
  const QRect fuori = principale->frameGeometry(), dentro = principale->geometry();
  const QSize intera = size() + fuori.size() - dentro.size();
  const Punto posto = PostoDelDialogo({double(intera.width()), double(intera.height())},
                                      {double(schermo.width()), double(schermo.height())},
                                      LaFinestra().AltezzaStatusBar1(),
                                      {area.x() + esame_.Destra(), area.y() + esame_.Fondo()});
  move(schermo.topLeft() + QPointF(posto.x, posto.y).toPoint() + dentro.topLeft() -
       fuori.topLeft());
}

void TelarDef::Attivata() {
  const std::string& parola = esame_.ParolaIniziale();
  Label1->setText(AQt(esame_.TitoloParola()));
  Text2->setMaxLength(static_cast<int>(parola.size()));
  Text2->setText(AQt(parola));
  Text1->Mostra(esame_.DefinizioneIniziale());
  Text1->setFocus();
  Command3D4->setToolTip(QStringLiteral("Ricerca la parola mascherata in : ") +
                         PercorsoAQt(IlDizionario().NomeDizionario()));
  Command4->setToolTip(QStringLiteral("Ricerca negli altri dizionari."));
}

std::string TelarDef::Maschera() const {
  std::string maschera(esame_.ParolaIniziale().size(), PostoLibero);
  for (std::size_t i = 0; i < maschera.size(); ++i)
    if (!Label2[i]->isHidden()) maschera[i] = DaQt(Label2[i]->text()).front();
  return maschera;
}

void TelarDef::CercaDefinizioni() {
  const auto famiglie =
      CercaFamiglie(DaQt(Text2->text()),
                    "La ricerca della definizione è possibile solo su una parola completata."_cp);
  if (!famiglie) return;
  Riempi(*List1, famiglie->facili);
  Riempi(*List2, famiglie->difficili);
}

// Paints a part of the progress bar, from its left edge.
void TelarDef::DipingiBarra(double parte, Colore colore) {
  SuperficieQt& barra = Picture1->Superficie();
  const double destra = barra.LarghezzaSuperficie() - 1, fondo = barra.AltezzaSuperficie() - 1;
  barra.RiquadroPieno(0, 0, destra * parte, fondo, colore);
  barra.Riquadro(0, 0, destra, fondo, BordoProgressione);
}

void TelarDef::CercaMaschera(const Dizionario& dizionario) {
  ImpostaPuntatoreMouse(PuntatoreClessidra);
  DipingiBarra(1, ColoreGiallo);
  QStringList parole;
  const EsitoRicerca esito = CercaParole(
      dizionario, Maschera(),
      [&](std::string_view parola) {
        if (parole.isEmpty()) Label5->setText(QStringLiteral("Trovata"));
        parole.append(AQt(parola));
      },
      [this](int numero, int conto) { DipingiBarra(double(numero) / conto, ColoreBlu); });
  // At once: thousands of words, one by one, would be thousands of changes.
  Combo1->clear();
  Combo1->addItems(parole);
  Combo1->setCurrentIndex(parole.isEmpty() ? -1 : 0);
  Label5->setText(AQt(TestoTrovate(esito.trovate)));
  ImpostaPuntatoreMouse(PuntatoreFrecciaFissa);
  if (!esito.dizionarioLetto) Avvisa(dizionario.TestoIlleggibile());
}

void TelarDef::ApriMenuDizionari() {
  menudizionari->clear();
  menubrdiz = {menudizionari->addAction(QStringLiteral("&Annulla"))};
  const std::vector<VoceDiDizionario> voci = CaricaVociDizionari(IlDizionario().Cartella());
  NumVociDizionari = static_cast<std::int16_t>(voci.size());
  for (const VoceDiDizionario& voce : voci) {
    if (voce.file.empty()) {
      menubrdiz.push_back(menudizionari->addSeparator());
      continue;
    }
    const QString testo = ComeVoceDiMenu(AQt(voce.testo));
    menubrdiz.push_back(menudizionari->addAction(testo, this, [this, file = voce.file] {
      ConDizionario(IlDizionario(), file,
                    [this](const Dizionario& altro) { CercaMaschera(altro); });
      ChiUsa().CediAiMessaggi();
    }));
  }
  menudizionari->popup(QCursor::pos());
}

void TelarDef::AccettaDefinizione() {
  auto definizione = Text1->Definizione();
  if (!definizione) {
    AvvisaDefinizioneNonScrivibile();
    return Text1->setFocus();
  }
  if (!esame_.AccettaDefinizione({DaQt(Text2->text()), *std::move(definizione)}))
    return Text2->setFocus();
  accept();
}

void TelarDef::done(int esito) {
  NumVociDizionari = 0;
  FinestraModale::done(esito);
}

bool TelarDef::eventFilter(QObject* oggetto, QEvent* evento) {
  const bool rotella = evento->type() == QEvent::Wheel;
  if (oggetto == Combo1) return rotella;  // it would change the word without being meant to
  if (evento->type() == QEvent::KeyPress) {
    const auto& tasto = static_cast<const QKeyEvent&>(*evento);
    const auto* elenco = qobject_cast<QListWidget*>(oggetto);
    const bool esc = tasto.key() == Qt::Key_Escape;
    if (elenco && Invio(tasto)) {
      CopiaScelta(*elenco);
      return true;
    }
    if (!elenco && Invio(tasto)) {
      AccettaDefinizione();
      return true;
    }
    if (!elenco && esc) {
      reject();
      return true;
    }
  }
  return FinestraModale::eventFilter(oggetto, evento);
}

}  // namespace telarium
