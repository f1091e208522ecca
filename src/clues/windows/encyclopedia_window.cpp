#include "clues/windows/encyclopedia_window.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>
#include <algorithm>
#include <iterator>

#include "clues/store_use.h"
#include "platform/codepage.h"
#include "platform/platform.h"

namespace telarium {
namespace {

constexpr int TwipPerPixel = 15;
constexpr int LatoFreccia = 23;       // pixels
constexpr int SpazioTesto = 8;        // pixels above and below the status text, together
constexpr int LarghezzaBottone = 84;  // pixels, at least

int InPixel(int twip) {
  return (twip + TwipPerPixel / 2) / TwipPerPixel;
}

struct TastoDiFinestra {
  int tasto;
  QPushButton* FinestraEnciclopedia::*bottone;
  QPushButton* FinestraEnciclopedia::*conCtrl;
};

using F = FinestraEnciclopedia;
constexpr TastoDiFinestra tasti[] = {
    {Qt::Key_Escape, &F::cmdClose, &F::cmdClose},    {Qt::Key_End, &F::cmdLast, &F::cmdLast},
    {Qt::Key_Home, &F::cmdFirst, &F::cmdFirst},      {Qt::Key_Up, &F::cmdPrevious, &F::cmdFirst},
    {Qt::Key_PageUp, &F::cmdPrevious, &F::cmdFirst}, {Qt::Key_Down, &F::cmdNext, &F::cmdLast},
    {Qt::Key_PageDown, &F::cmdNext, &F::cmdLast},
};

}  // namespace

FinestraEnciclopedia::FinestraEnciclopedia(const QString& nome, const QString& titolo,
                                           const QString& nota, QWidget* genitore)
    : FinestraModale(nome, titolo, genitore) {
  Label1 = Chiamato(QStringLiteral("Label1"), new QLabel(nota, this));
  Label1->setTextFormat(Qt::PlainText);
  Label1->setWordWrap(true);
  CreaBottoni();
  CreaStato();
}

void FinestraEnciclopedia::CreaBottoni() {
  picButtons = Chiamato(QStringLiteral("picButtons"), new QWidget(this));
  auto* fila = new QHBoxLayout(picButtons);
  fila->setContentsMargins(Margine, Margine, Margine, Margine);
  const auto bottone = [&](const QString& nome, const QString& testo, auto azione,
                           const QString& consiglio = {}) {
    QPushButton* nuovo = Pulsante(nome, testo, consiglio, picButtons);
    nuovo->setMinimumWidth(LarghezzaBottone);
    fila->addWidget(nuovo);
    connect(nuovo, &QPushButton::clicked, this, azione);
    return nuovo;
  };
  cmdUpdate =
      bottone(QStringLiteral("cmdUpdate"), QStringLiteral("&Aggiorna"), [this] { Aggiorna(); });
  cmdCancel =
      bottone(QStringLiteral("cmdCancel"), QStringLiteral("&Annulla"), [this] { Annulla(); });
  cmdAdd = bottone(QStringLiteral("cmdAdd"), QStringLiteral("Aggi&ungi"), [this] { Aggiungi(); });
  cmdEdit = bottone(QStringLiteral("cmdEdit"), QStringLiteral("&Modifica"), [this] { Modifica(); });
  cmdDelete = bottone(
      QStringLiteral("cmdDelete"), QStringLiteral("&Elimina"), [this] { Elimina(); },
      QStringLiteral("Elimina la parola corrente con tutte le sue definizioni"));
  cmdRefresh = bottone(
      QStringLiteral("cmdRefresh"), QStringLiteral("&Rivisualizza"), [this] { Rileggi(); },
      QStringLiteral("Rivisualizza la form"));
  cmdClose = bottone(
      QStringLiteral("cmdClose"), QStringLiteral("&Chiudi"), [this] { reject(); },
      QStringLiteral("Torna a Telarium"));
  fila->addStretch(1);
  cmdUpdate->hide();
  cmdCancel->hide();
  cmdCancel->setShortcut({});  // Alt+A is that of cmdUpdate
}

void FinestraEnciclopedia::CreaStato() {
  picStatBox = Chiamato(QStringLiteral("picStatBox"), new QWidget(this));
  const auto freccia = [&](const QString& nome, QStyle::StandardPixmap figura,
                           const QString& consiglio, auto azione) {
    QPushButton* nuova = Pulsante(nome, QString(), consiglio, picStatBox);
    nuova->setAccessibleName(consiglio);
    nuova->setIcon(style()->standardIcon(figura));
    connect(nuova, &QPushButton::clicked, this, azione);
    return nuova;
  };
  cmdFirst = freccia(QStringLiteral("cmdFirst"), QStyle::SP_MediaSkipBackward,
                     QStringLiteral("Prima parola"), [this] { Vai(&RigheEnciclopedia::Primo); });
  cmdPrevious =
      freccia(QStringLiteral("cmdPrevious"), QStyle::SP_MediaSeekBackward,
              QStringLiteral("Parola precedente"), [this] { Vai(&RigheEnciclopedia::Indietro); });
  lblStatus = Chiamato(QStringLiteral("lblStatus"), new QLabel(picStatBox));
  lblStatus->setTextFormat(Qt::PlainText);
  lblStatus->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  lblStatus->setIndent(SpazioTesto / 2);
  cmdNext =
      freccia(QStringLiteral("cmdNext"), QStyle::SP_MediaSeekForward,
              QStringLiteral("Parola successiva"), [this] { Vai(&RigheEnciclopedia::Avanti); });
  cmdLast = freccia(QStringLiteral("cmdLast"), QStyle::SP_MediaSkipForward,
                    QStringLiteral("Ultima parola"), [this] { Vai(&RigheEnciclopedia::Ultimo); });
  picStatBox->setFixedHeight(std::max(LatoFreccia, fontMetrics().height() + SpazioTesto));
}

// The places in picStatBox, which is as wide as the window.
void FinestraEnciclopedia::DisponiStato() {
  const int altezza = picStatBox->height();
  const int stato = std::max(width() - InPixel(1500), 0);
  const int successiva = stato + InPixel(700);
  cmdFirst->setGeometry(0, 0, LatoFreccia, altezza);
  cmdPrevious->setGeometry(LatoFreccia, 0, LatoFreccia, altezza);
  lblStatus->setGeometry(2 * LatoFreccia, 0, stato, altezza);
  cmdNext->setGeometry(successiva, 0, LatoFreccia, altezza);
  cmdLast->setGeometry(successiva + InPixel(340), 0, LatoFreccia, altezza);
}

void FinestraEnciclopedia::resizeEvent(QResizeEvent* evento) {
  FinestraModale::resizeEvent(evento);
  DisponiStato();
}

void FinestraEnciclopedia::Carica() {
  const bool riuscita = ConEnciclopedia([this] {
    adoPrimaryRS.Apri();
    adoPrimaryRS_MoveComplete();
  });
  if (!riuscita) {
    adoPrimaryRS.Chiudi();
    adoPrimaryRS_MoveComplete();
  }
  installEventFilter(this);
  for (QWidget* controllo : findChildren<QWidget*>())
    controllo->installEventFilter(this);
}

void FinestraEnciclopedia::adoPrimaryRS_MoveComplete() {
  lblStatus->setText(QStringLiteral("Record: %1").arg(adoPrimaryRS.Posizione()));
  MostraRiga();
}

bool FinestraEnciclopedia::InBottone(const std::function<void()>& azione) {
  try {
    PrendiDatiScritti();
    azione();
    perditaDetta_ = false;  // what was typed is stored; a later loss is to be told anew
    return true;
  } catch (const ErroreEnciclopedia& errore) {
    Avvisa(errore.Descrizione());
    return false;
  }
}

void FinestraEnciclopedia::MostraBottoni(bool b) {
  for (QPushButton* bottone : {cmdAdd, cmdEdit, cmdDelete, cmdClose, cmdRefresh})
    bottone->setVisible(b);
  for (QPushButton* bottone : {cmdUpdate, cmdCancel})
    bottone->setVisible(!b);
  for (QPushButton* bottone : {cmdNext, cmdFirst, cmdLast, cmdPrevious})
    bottone->setEnabled(b);
}

void FinestraEnciclopedia::Vai(bool (RigheEnciclopedia::*passo)()) {
  InBottone([&] {
    const bool andata = (adoPrimaryRS.*passo)();
    if (!andata && adoPrimaryRS.NumeroRighe() > 0) ChiUsa().SegnaleAcustico();
    adoPrimaryRS_MoveComplete();
    DatiCambiati = Falso;
  });
}

void FinestraEnciclopedia::Aggiungi() {
  InBottone([this] {
    adoPrimaryRS.RegistraSospese();
    const NumeroRiga corrente = adoPrimaryRS.Segnalibro();
    adoPrimaryRS.Nuova();
    if (corrente != 0) Segnalibro = corrente;
    MostraRiga();
    lblStatus->setText(QStringLiteral("Aggiunge il record"));
    InAggiunta = Vero;
    MostraBottoni(false);
    PrimoCampo().setFocus();
  });
}

void FinestraEnciclopedia::Modifica() {
  const bool daiBottoni = picButtons->isAncestorOf(focusWidget());
  lblStatus->setText(QStringLiteral("Modifica il record"));
  InModifica = Vero;
  MostraBottoni(false);
  if (daiBottoni) PrimoCampo().setFocus();
}

void FinestraEnciclopedia::Aggiorna() {
  InBottone([this] {
    if (InAggiunta) {
      adoPrimaryRS.Registra();
      adoPrimaryRS.Ultimo();
    } else {
      adoPrimaryRS.RegistraSospese();
    }
    TornaAScorrere();
    adoPrimaryRS_MoveComplete();
  });
}

void FinestraEnciclopedia::Annulla() {
  TornaAScorrere();
  LasciaDatiScritti();
  adoPrimaryRS.Annulla();
  try {
    if (Segnalibro > 0) {
      adoPrimaryRS.Torna(Segnalibro);
    } else {
      adoPrimaryRS.Primo();
    }
    adoPrimaryRS_MoveComplete();
  } catch (const ErroreEnciclopedia&) {
    // Errors are skipped here.
  }
}

// A button that goes leaves the focus to the one in its place.
void FinestraEnciclopedia::TornaAScorrere() {
  const bool daiBottoni = picButtons->isAncestorOf(focusWidget());
  QPushButton* alSuoPosto = InAggiunta ? cmdAdd : cmdEdit;
  MostraBottoni(true);
  if (daiBottoni) alSuoPosto->setFocus();
  InModifica = InAggiunta = Falso;
  DatiCambiati = Falso;
}

void FinestraEnciclopedia::Rileggi() {
  InBottone([this] { adoPrimaryRS.Rileggi(); });
  // Also behind an error: what could not be stored may have been dropped. Nothing is taken from the
  // controls again.
  try {
    adoPrimaryRS_MoveComplete();
  } catch (const ErroreEnciclopedia& errore) {
    Avvisa(errore.Descrizione());
  }
}

void FinestraEnciclopedia::Elimina() {
  InBottone([this] {
    adoPrimaryRS.Elimina();
    adoPrimaryRS_MoveComplete();
  });
}

// In a mode, what was typed is stored or dropped as the user says; false: the window stays.
bool FinestraEnciclopedia::LasciaModo() {
  bool scritto = false;
  if (!InBottone([&] { scritto = adoPrimaryRS.Sospesa(); })) return false;
  if (!scritto) return true;
  switch (ChiUsa().MostraMessaggio(
      {.testo = "Ci sono modifiche non salvate: salvarle?", .pulsanti = Pulsanti::SiNoAnnulla})) {
    case Risposta::Si:
      return InBottone([this] { adoPrimaryRS.Registra(); });
    case Risposta::No:
      return true;
    default:
      return false;
  }
}

void FinestraEnciclopedia::reject() {
  if (InModifica || InAggiunta) {
    if (!LasciaModo()) return;
    Annulla();
  } else if (!InBottone([this] { adoPrimaryRS.RegistraSospese(); }) && !perditaDetta_) {
    perditaDetta_ = true;  // once it has been told that nothing was stored, the window may close
    return;
  }
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  FinestraModale::reject();
}

bool FinestraEnciclopedia::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress) return FinestraModale::eventFilter(oggetto, evento);
  const auto& tasto = static_cast<const QKeyEvent&>(*evento);
  return Anticipa(tasto) || FinestraModale::eventFilter(oggetto, evento);
}

// Takes a key that is the window's before the control that has the focus gets it.
bool FinestraEnciclopedia::Anticipa(const QKeyEvent& tasto) {
  const bool ferma = InModifica || InAggiunta;
  if (ferma) return tasto.key() == Qt::Key_Escape;
  const Qt::KeyboardModifiers modi = tasto.modifiers() & ~Qt::KeypadModifier;
  const bool ctrl = modi == Qt::ControlModifier;
  if (modi != Qt::NoModifier && !ctrl) return false;  // marks text, or is a menu's
  const auto* voce =
      std::find_if(std::begin(tasti), std::end(tasti),
                   [&tasto](const TastoDiFinestra& uno) { return uno.tasto == tasto.key(); });
  if (voce == std::end(tasti)) return false;
  (this->*(ctrl ? voce->conCtrl : voce->bottone))->click();
  return true;
}

}  // namespace telarium
