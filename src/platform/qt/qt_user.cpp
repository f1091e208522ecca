#include "platform/qt/qt_user.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <span>

#include "platform/qt/qt_colour.h"
#include "platform/qt/qt_dialog.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_wait.h"

namespace telarium {
namespace {

constexpr qsizetype MaxCaratteri = 2000;  // more would not fit on a screen
constexpr qsizetype MaxSenzaInterruzioni = 60;
constexpr int MaxCaratteriPerRiga = 84;

struct Bottone {
  const char16_t* testo;
  const char* nome;
  Risposta risposta;
  QMessageBox::ButtonRole ruolo;
};

constexpr Bottone Ok = {u"OK", "OK", Risposta::Ok, QMessageBox::AcceptRole};
constexpr Bottone Si = {u"&Sì", "Si", Risposta::Si, QMessageBox::YesRole};
constexpr Bottone No = {u"&No", "No", Risposta::No, QMessageBox::NoRole};
constexpr Bottone Annulla = {u"Annulla", "Annulla", Risposta::Annulla, QMessageBox::RejectRole};

// In each set the last one is what Escape and the close box mean.
std::span<const Bottone> PulsantiDi(Pulsanti quali) {
  static constexpr Bottone ok[] = {Ok};
  static constexpr Bottone okAnnulla[] = {Ok, Annulla};
  static constexpr Bottone siNo[] = {Si, No};
  static constexpr Bottone siNoAnnulla[] = {Si, No, Annulla};
  switch (quali) {
    case Pulsanti::OkAnnulla:
      return okAnnulla;
    case Pulsanti::SiNo:
      return siNo;
    case Pulsanti::SiNoAnnulla:
      return siNoAnnulla;
    default:
      return ok;
  }
}

QMessageBox::Icon IconaQt(Icona icona) {
  switch (icona) {
    case Icona::Informazione:
      return QMessageBox::Information;
    case Icona::Domanda:
      return QMessageBox::Question;
    case Icona::Avviso:
      return QMessageBox::Warning;
    case Icona::Stop:
      return QMessageBox::Critical;
    default:
      return QMessageBox::NoIcon;
  }
}

QString TitoloQt(const std::string& titolo) {
  return titolo.empty() ? QGuiApplication::applicationDisplayName() : AQt(titolo);
}

// A text as a box can show it: its line ends as they are here, not longer than a screen, and places
// to break a line in a long file name.
QString TestoQt(const std::string& testo) {
  constexpr QChar SpazioNullo(0x200B);
  QString qt = AQt(testo);
  qt.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  if (qt.size() > MaxCaratteri) qt = qt.left(MaxCaratteri) + QChar(0x2026);
  qsizetype daInterruzione = 0;
  for (qsizetype i = 0; i < qt.size(); ++i) {
    daInterruzione = qt[i].isSpace() ? 0 : daInterruzione + 1;
    if (daInterruzione < MaxSenzaInterruzioni) continue;
    qt.insert(i + 1, SpazioNullo);
    daInterruzione = 0;
  }
  return qt;
}

// A prompt wraps once it is wider than a line that reads well; it is text, whatever it looks like.
void DisponiSuPiuRighe(QLabel& etichetta) {
  etichetta.setTextFormat(Qt::PlainText);
  const int larghezza = etichetta.fontMetrics().averageCharWidth() * MaxCaratteriPerRiga;
  if (etichetta.sizeHint().width() <= larghezza) return;
  etichetta.setWordWrap(true);
  etichetta.setMinimumWidth(larghezza);
}

// Qt keeps the place of the icon, and moves the text in, also in a box that has none.
void TogliPostoDellIcona(QMessageBox& scatola) {
  auto* griglia = qobject_cast<QGridLayout*>(scatola.layout());
  auto* testo = scatola.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (!griglia || !testo) return;
  for (int i = 0; i < griglia->count(); ++i) {
    if (QSpacerItem* vuoto = griglia->itemAt(i)->spacerItem())
      vuoto->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
  }
  griglia->setHorizontalSpacing(0);
  griglia->setColumnStretch(1, 1);
  testo->setIndent(0);
  testo->setContentsMargins(0, 0, 0, 0);
}

// The check box that a request wants, below the line of its box; none otherwise.
QCheckBox* AggiungiSpunta(QInputDialog& scatola, const Spunta* spunta) {
  if (!spunta) return nullptr;
  auto* casella = new QCheckBox(AQt(spunta->testo), &scatola);
  casella->setObjectName(u"Spunta");
  casella->setChecked(spunta->scelta);
  static_cast<void>(scatola.sizeHint());  // makes the layout
  auto* posti = static_cast<QVBoxLayout*>(scatola.layout());
  posti->insertWidget(posti->count() - 1, casella);
  QWidget::setTabOrder(scatola.findChild<QLineEdit*>(), casella);
  return casella;
}

}  // namespace

// A box belongs to the window that brought it up.
QWidget* UtenteQt::Genitore() const {
  return GenitoreDiScatola(finestra_);
}

Risposta UtenteQt::MostraMessaggio(const Messaggio& messaggio) {
  QMessageBox scatola(Genitore());
  scatola.setObjectName(u"MessageBox");
  scatola.setWindowTitle(TitoloQt(messaggio.titolo));
  scatola.setIcon(IconaQt(messaggio.icona));
  scatola.setTextFormat(Qt::PlainText);
  scatola.setText(TestoQt(messaggio.testo));
  if (messaggio.icona == Icona::Nessuna) TogliPostoDellIcona(scatola);
  const std::span<const Bottone> pulsanti = PulsantiDi(messaggio.pulsanti);
  std::map<QAbstractButton*, Risposta> risposte;
  QPushButton* bottone = nullptr;
  for (const Bottone& pulsante : pulsanti) {
    bottone = scatola.addButton(QString::fromUtf16(pulsante.testo), pulsante.ruolo);
    bottone->setObjectName(QLatin1StringView(pulsante.nome));
    risposte[bottone] = pulsante.risposta;
    if (risposte.size() == 1) scatola.setDefaultButton(bottone);
  }
  scatola.setEscapeButton(bottone);
  scatola.exec();
  const auto premuto = risposte.find(scatola.clickedButton());
  return premuto == risposte.end() ? pulsanti.back().risposta : premuto->second;
}

std::optional<std::string> UtenteQt::ChiediTesto(const RichiestaDiTesto& richiesta) {
  QInputDialog scatola(Genitore());
  scatola.setObjectName(u"InputBox");
  scatola.setWindowTitle(TitoloQt(richiesta.titolo));
  scatola.setLabelText(TestoQt(richiesta.richiesta));
  for (auto* etichetta : scatola.findChildren<QLabel*>())
    DisponiSuPiuRighe(*etichetta);
  scatola.setTextValue(AQt(richiesta.predefinito));
  scatola.setOkButtonText(QString::fromUtf16(Ok.testo));
  scatola.setCancelButtonText(QString::fromUtf16(Annulla.testo));
  const QCheckBox* spunta = AggiungiSpunta(scatola, richiesta.spunta);
  TogliFigure(scatola);
  if (scatola.exec() != QDialog::Accepted) return std::nullopt;
  if (spunta) richiesta.spunta->scelta = spunta->isChecked();
  return DaQt(scatola.textValue());
}

Colore UtenteQt::ScegliColore(Colore iniziale) {
  QColorDialog scatola(ColoreQt(iniziale), Genitore());
  scatola.setObjectName(u"ColorDialog");
  scatola.setWindowTitle(QStringLiteral("Colore della casella"));
  scatola.setOption(QColorDialog::DontUseNativeDialog);
  TogliFigure(scatola);
  scatola.ensurePolished();
  scatola.layout()->activate();
  scatola.move(AlPuntatore(scatola.sizeHint()));
  return scatola.exec() == QDialog::Accepted ? ColoreDaQt(scatola.selectedColor()) : NessunColore;
}

// Where a box of that size goes that should begin at the pointer: left or up of it where it would
// pass the right or lower edge of the main window.
QPoint UtenteQt::AlPuntatore(QSize misura) const {
  QRect scatola(QCursor::pos(), misura);
  if (finestra_) {
    const QRect finestra = finestra_->geometry();
    // Both windows have the same frame around them.
    scatola.setSize(misura + finestra_->frameGeometry().size() - finestra.size());
    scatola.moveRight(std::min(scatola.right(), finestra.right()));
    scatola.moveBottom(std::min(scatola.bottom(), finestra.bottom()));
    scatola.moveLeft(std::max(scatola.left(), finestra.left()));
    scatola.moveTop(std::max(scatola.top(), finestra.top()));
  }
  return scatola.topLeft();
}

Risposta UtenteQt::ChiediVicoloCieco(const std::string& testo) {
  if (finestra_) PortaInPrimoPiano(*finestra_);
  return Utente::ChiediVicoloCieco(testo);
}

QCursor UtenteQt::PuntatorePer(int forma) const {
  if (const auto immagine = immagini_.find(forma); immagine != immagini_.end()) {
    return immagine->second;
  }
  switch (forma) {
    case PuntatoreCasellaBianca:
      return Qt::CrossCursor;
    case PuntatoreVerticale:
      return Qt::SizeVerCursor;
    case PuntatoreOrizzontale:
      return Qt::SizeHorCursor;
    case PuntatoreClessidra:
      return Qt::WaitCursor;
    default:
      return Qt::ArrowCursor;
  }
}

std::unique_ptr<Attesa> UtenteQt::IniziaAttesa(const std::string& testo) {
  QWidget* genitore = Genitore();
  // Without a window on the screen nothing else tells that the program is there.
  const std::chrono::milliseconds primaDiMostrarsi(genitore ? 500 : 0);
  return std::make_unique<AttesaQt>(TestoQt(testo), genitore, primaDiMostrarsi);
}

// The shape is the main window's: over other windows, menus and boxes the pointer is ordinary, but
// that a window which works shows it.
void UtenteQt::FormaPuntatore(int forma) {
  if (finestra_) finestra_->setCursor(PuntatorePer(forma));
  if (occupata_) occupata_->unsetCursor();
  const bool lavora = forma == PuntatoreClessidra || forma == PuntatoreMano;
  occupata_ = lavora ? QApplication::activeModalWidget() : nullptr;
  if (occupata_) occupata_->setCursor(PuntatorePer(forma));
}

void PortaInPrimoPiano(QWidget& finestra) {
  if (finestra.isMinimized())
    finestra.setWindowState(finestra.windowState() & ~Qt::WindowMinimized);
  finestra.raise();
  finestra.activateWindow();
}

void UtenteQt::SegnaleAcustico() {
  QApplication::beep();
}

void UtenteQt::CediAiMessaggi() {
  QCoreApplication::processEvents();
}

}  // namespace telarium
