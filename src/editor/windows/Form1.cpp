#include "editor/windows/Form1.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "clues/import.h"
#include "editor/activation.h"
#include "editor/cell_editing.h"
#include "editor/commands.h"
#include "editor/file_commands.h"
#include "editor/history_commands.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "editor/startup.h"
#include "editor/windows/form_commands.h"
#include "editor/windows/modal_windows.h"
#include "editor/windows/pictures.h"
#include "editor/word_pointing.h"
#include "platform/platform.h"
#include "platform/qt/qt_colour.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_user.h"

namespace telarium {
namespace {

constexpr int TwipPerPixel = 15;
// The window's least size while there is a crossword, in twips.
constexpr int MinLarghezza = 6500;
constexpr int MinAltezza = 4500;
constexpr int DistanzaPicture2 = 134;  // twips from the right edge
constexpr int RialzoPicture1 = 10;     // pixels above the middle
constexpr int SchermoPiccolo = 700;    // pixels: narrower ones get the small splash picture
constexpr int MargineCommand3d15 = 8;  // pixels
constexpr std::size_t MaxCaratteriLabel1 = 1000;  // a clue from a file can have any length

constexpr int InPixel(int twip) {
  return (twip + TwipPerPixel - 1) / TwipPerPixel;
}

AzioneDiPulsante AzioneDi(const QAction& pulsante) {
  return AzioneDelPulsante(pulsante.objectName().toStdString());
}

}  // namespace

Form1::Form1() {
  setObjectName(u"Form1");
  setWindowTitle(QStringLiteral("Telarium"));
  CreaControlli();
  CreaMenu();
  CollegaPulsanti();
  esc_ = new QShortcut(Qt::Key_Escape, this);
  esc_->setEnabled(false);
  connect(esc_, &QShortcut::activated, this, [this] { Avanzamento->Interrompi(); });
  ImpostaFinestra(this);
}

Form1::~Form1() {
  ImpostaFinestra(nullptr);
}

void Form1::CreaControlli() {
  Area = new AreaDisegno(this);
  setCentralWidget(Area);
  Picture1 = new QLabel(Area);
  Shape1 = new RettangoloDiParola(Area);
  Label1 = new QLabel(Area);
  Toolbar1 = new BarraStrumenti(Area);
  StatusBar1 = new BarraDiStato(Area);
  Avanzamento = new PannelloEstrazione(Area);
  Picture2 = new QLabel(Area);
  Picture3 = new QLabel(Area);
  Command3d15 = new QPushButton(QStringLiteral("Chiudi"), Area);
  Command1 = new QPushButton(QStringLiteral("Bottone per importare le definizioni"), Area);
  const std::pair<QWidget*, QStringView> nomi[] = {
      {Picture1, u"Picture1"}, {Picture2, u"Picture2"},       {Picture3, u"Picture3"},
      {Label1, u"Label1"},     {Command3d15, u"Command3d15"}, {Command1, u"Command1"}};
  for (const auto& [controllo, nome] : nomi)
    controllo->setObjectName(nome.toString());

  Label1->setAutoFillBackground(true);
  Label1->setTextFormat(Qt::PlainText);
  QPalette giallo = Label1->palette();
  giallo.setColor(QPalette::Window, QColor(255, 255, 224));
  giallo.setColor(QPalette::WindowText, Qt::black);
  Label1->setPalette(giallo);
  Label1->setFrameStyle(QFrame::Box | QFrame::Plain);
  Label1->setMouseTracking(true);
  Label1->installEventFilter(this);

  Picture2->setPixmap(Figura("logo", devicePixelRatioF()));
  Picture2->setToolTip(QStringLiteral("Visita il sito dell'autore ..."));
  Picture2->setMouseTracking(true);
  Picture2->adjustSize();
  Picture2->installEventFilter(this);
  Picture3->setPixmap(Figura("hand", devicePixelRatioF()));
  Command3d15->setToolTip(QStringLiteral("Chiude anteprima di stampa"));
  Command3d15->setShortcut(Qt::Key_Escape);
  Command3d15->adjustSize();
  for (QWidget* nascosto :
       std::initializer_list<QWidget*>{Picture1, Picture3, Command3d15, Command1})
    nascosto->hide();

  connect(Command3d15, &QPushButton::clicked, this, [this] { Esegui(ChiudiAnteprima); });
  connect(Command1, &QPushButton::clicked, this, [this] { Esegui([this] { Importa(); }); });
  StatusBar1->QuandoPremuta([this] { Voce("MenuInfo").trigger(); });
  Toolbar1->QuandoPassaIlMouse(PassaSuToolbar1);
  Area->QuandoPassaIlMouse([this](QPointF punto) { PassaSuArea(punto); });
  Area->QuandoPremuta([this](Qt::MouseButton tasto, QPointF punto) { PremutaArea(tasto, punto); });
  Area->QuandoCambiaMisura([this] { CambiataMisura(); });
}

void Form1::CollegaPulsanti() {
  for (int numero = 1; numero <= NumPulsanti; ++numero) {
    QAction& pulsante = Toolbar1->Pulsante(numero);
    if (pulsante.isSeparator()) continue;
    connect(&pulsante, &QAction::triggered, this, [this, numero] { PremutoPulsante(numero); });
  }
}

void Form1::PremutoPulsante(int numero) {
  const AzioneDiPulsante azione = AzioneDi(Toolbar1->Pulsante(numero));
  Esegui([&] {
    if (!azione.menu.empty()) {
      Voce(azione.menu).menu()->popup(Toolbar1->SottoIlPulsante(numero));
    } else {
      const ComandoDiForm1 comando =
          azione.comando ? azione.comando : ComandoDellaVoce(azione.voce);
      comando(*this);
    }
    PremiEdit(true);
    RinfrescaToolbar1();
  });
}

void Form1::Mostra() {
  setGeometry(screen()->availableGeometry());
  MostraAvvio();
  showMaximized();
  QTimer::singleShot(0, this, [this] { Esegui(AccodaAttivazione); });
}

QCursor Form1::PuntatoreDelLogo() const {
  return QCursor(Picture3->pixmap(Qt::ReturnByValue), PuntaDellaMano.x(), PuntaDellaMano.y());
}

void Form1::Esegui(const std::function<void()>& comando) {
  if (occupata_) return;
  EseguiComandoDiFinestra(comando);
  Toolbar1->MostraStrumento(StrumentoAttivo());
  if (ComandoInCorso()) return;
  EseguiComandoDiFinestra(RiferisciSullaCronologia);
  if (std::exchange(misuraCambiata_, false)) CambiataMisura();
  ApriRicevuti();
}

void Form1::RiceviDaFuori(const Percorso& nome) {
  PortaInPrimoPiano(*this);
  if (!nome.empty()) ricevuti_.push_back(nome);
  if (!ComandoInCorso()) ApriRicevuti();
}

void Form1::ApriRicevuti() {
  while (!ricevuti_.empty()) {
    const Percorso nome = ricevuti_.front();
    ricevuti_.erase(ricevuti_.begin());
    Esegui([&nome] {
      ApriDaFuori(nome);
      AccodaAttivazione();
    });
  }
}

void Form1::Occupa(bool occupata) {
  occupata_ = occupata;
  menuBar()->setEnabled(!occupata);
  Toolbar1->setEnabled(!occupata);
  StatusBar1->setEnabled(!occupata);
  Picture2->setEnabled(!occupata);
}

// Takes the window out of use for as long as it lives, however a run ends.
class Form1::Occupazione {
 public:
  explicit Occupazione(Form1& form) : form_(form) { form_.Occupa(true); }
  ~Occupazione() {
    form_.Avanzamento->hide();
    form_.esc_->setEnabled(false);
    form_.Occupa(false);
  }
  Occupazione(const Occupazione&) = delete;
  Occupazione& operator=(const Occupazione&) = delete;

 private:
  Form1& form_;
};

void Form1::Estrai() {
  Shape1->hide();
  TogliLabel1();  // nothing that the pointer meant holds any longer
  const Occupazione occupazione(*this);
  esc_->setEnabled(true);
  EstrazioneAutomatica.EstraiSchema();
}

void Form1::Importa() {
  const Occupazione occupazione(*this);
  Recupera_Definizioni();
}

bool Form1::SeguiEstrazione(const AvanzamentoEstrazione& avanzamento) {
  if (Avanzamento->isHidden()) {
    Avanzamento->Inizia();  // the time of the first question does not count
    Avanzamento->show();
    Avanzamento->raise();
  }
  return Avanzamento->Segui(avanzamento, EstrazioneAutomatica.ProvaInfinita);
}

void Form1::Titolo(std::string_view titolo) {
  setWindowTitle(TitoloAQt(titolo));
}

void Form1::MostraShape1(const Rettangolo& rettangolo) {
  Shape1->setGeometry(
      QRectF(rettangolo.sinistra, rettangolo.cima, rettangolo.larghezza, rettangolo.altezza)
          .toRect());
  Shape1->Tinta(ColoreQt(rettangolo.colore));
  Shape1->show();
}

double Form1::ScriviLabel1(std::string_view testo) {
  const QString nuovo = AQt(testo.substr(0, MaxCaratteriLabel1));
  if (Label1->text() != nuovo) {
    Label1->setText(nuovo);
    Label1->adjustSize();
  }
  return Label1->width();
}

void Form1::CollocaLabel1(double sinistra, double cima) {
  // A clue that is wider than the window shows its beginning.
  Label1->move(QPointF(std::max(sinistra, 0.0), cima).toPoint());
}

void Form1::MostraModale(Modale quale) {
  schemaLibero_ = quale == Modale::frmTip;
  MostraFinestraModale(quale, *this);
  schemaLibero_ = false;
  AccodaAttivazione();
}

std::optional<ParolaDefinita> Form1::ModificaParola(const ParolaInEsame& parola) {
  auto accettata = MostraTelarDef(parola, *this);
  AccodaAttivazione();
  return accettata;
}

void Form1::MostraPicture1(bool visibile) {
  if (visibile && Picture1->pixmap(Qt::ReturnByValue).isNull()) {
    const bool piccolo = screen()->size().width() < SchermoPiccolo;
    const Percorso nome = piccolo ? "TELARIUMa.jpg" : "TELARIUMb.jpg";
    const Percorso file = PercorsoNellaCartella(CartellaProgramma, nome);
    if (FileOrdinario(file)) Picture1->setPixmap(QPixmap(PercorsoAQt(file)));
    Picture1->adjustSize();
  }
  Picture1->setVisible(visibile);
  Disponi();
}

void Form1::AbilitaPulsante(int numero, bool abilitato) {
  Toolbar1->Pulsante(numero).setEnabled(abilitato);
}

void Form1::PremiEdit(bool premuto) {
  Toolbar1->Pulsante(PulsanteEdit).setChecked(premuto);
}

bool Form1::EditPremuto() const {
  return Toolbar1->Pulsante(PulsanteEdit).isChecked();
}

void Form1::ScriviCommand1(std::string_view testo) {
  Command1->setText(AQt(testo));
}

// In a narrow window the buttons need its room.
void Form1::CollocaPicture2() {
  const int sinistra = Area->width() - Picture2->width() - InPixel(DistanzaPicture2);
  Picture2->move(sinistra, (Toolbar1->height() - Picture2->height()) / 2);
  Picture2->setVisible(sinistra >= Toolbar1->sizeHint().width());
}

// Puts the controls in their places on the surface as large as it is now.
void Form1::Disponi() {
  const int larghezza = Area->width();
  const int altezza = Area->height();
  Toolbar1->setGeometry(0, 0, larghezza, Toolbar1->sizeHint().height());
  const int altezzaStato = StatusBar1->sizeHint().height();
  StatusBar1->setGeometry(0, altezza - altezzaStato, larghezza, altezzaStato);
  Avanzamento->setGeometry(StatusBar1->geometry());
  Picture1->move((larghezza - Picture1->width()) / 2,
                 (altezza - Picture1->height()) / 2 - RialzoPicture1);
  Command3d15->move(larghezza - Command3d15->width() - MargineCommand3d15,
                    Toolbar1->height() + MargineCommand3d15);
  CollocaPicture2();
}

void Form1::CambiataMisura() {
  Disponi();
  TogliLabel1();  // parked below the old height, it would come into view
  // A fill holds the grid's tables and geometry, and a modal window the word that it edits.
  misuraCambiata_ = ComandoInCorso() && !schemaLibero_;
  if (isMinimized() || misuraCambiata_) return;
  Shape1->hide();
  if (NomeCruciverba.empty()) return;
  const QSize minima(InPixel(MinLarghezza), InPixel(MinAltezza));
  if (minimumSize() != minima) setMinimumSize(minima);
  // The page of a preview does not fit the new size.
  if (Command3d15Visibile()) {
    ChiudiAnteprima();
  } else {
    RidisegnaSchema();
  }
}

void Form1::PassaSuArea(QPointF punto) {
  if (!occupata_) PassaSullaSuperficie(punto.x(), punto.y());
}

void Form1::PremutaArea(Qt::MouseButton tasto, QPointF punto) {
  const TastoMouse quale = tasto == Qt::LeftButton    ? TastoMouse::Sinistro
                           : tasto == Qt::RightButton ? TastoMouse::Destro
                                                      : TastoMouse::Altro;
  Esegui([&] { PremiSullaSuperficie(quale, punto.x(), punto.y()); });
}

void Form1::closeEvent(QCloseEvent* evento) {
  evento->setAccepted(!occupata_);
}

bool Form1::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == Label1 && evento->type() == QEvent::MouseMove) {
    TogliLabel1();  // never between the pointer and the grid
    return true;
  }
  if (oggetto == Picture2 && !occupata_) {
    switch (evento->type()) {
      case QEvent::MouseMove:
        if (PuntatoreMouse != PuntatoreMano) ImpostaPuntatoreMouse(PuntatoreMano);
        Toolbar1->MostraStrumento(StrumentoAttivo());
        return true;  // no movement over the surface below
      case QEvent::MouseButtonPress:
        if (static_cast<QMouseEvent*>(evento)->button() == Qt::LeftButton)
          Voce("MenuPHP").trigger();
        return true;
      case QEvent::Leave:
        if (PuntatoreMouse == PuntatoreMano) ImpostaPuntatoreMouse(PuntatoreFreccia);
        break;
      default:
        break;
    }
  }
  return QMainWindow::eventFilter(oggetto, evento);
}

}  // namespace telarium
