#include "clues/windows/telariummdb.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "clues/clue_search.h"
#include "clues/windows/frmParole.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

// Logical pixels.
constexpr QSize MisuraIniziale(660, 560);
constexpr int Distanza = 6;

constexpr std::array<CampoParole, 3> campi = {CampoParole::Difficili, CampoParole::Facili,
                                              CampoParole::Parola};
constexpr std::size_t Parola = 2;

const std::array didascalie = {u"Definizioni difficili", u"Blocco definizioni facili :",
                               u"Parola:"};

QString Nota() {
  return QStringLiteral(
      "Con questa form si gestisce un database Access che contiene l'elenco delle parole ed "
      "allegata una coppia di famiglie di definizione facili/difficili, il database pu\u00F2 "
      "essere personalizzato a piacere, separare le definizioni con un <Invio>.");
}

// The table over the browser of one word. That one goes first when the table is closed: were it to
// go behind it, the keyboard could come to a window that is just going, and so to none.
class TabellaSopra : public frmParole {
 public:
  explicit TabellaSopra(QWidget& sotto) : frmParole(sotto.parentWidget()), sotto_(sotto) {}

  void done(int esito) override {
    sotto_.hide();
    frmParole::done(esito);
  }

 private:
  QWidget& sotto_;
};

}  // namespace

telariummdb::telariummdb(QWidget* genitore)
    : FinestraEnciclopedia(QStringLiteral("telariummdb"),
                           QStringLiteral("Telarium - Gestione Enciclopedia definizioni"), Nota(),
                           genitore) {
  setMouseTracking(true);
  CreaCampi();
  Cerca = Pulsante(QStringLiteral("Cerca"), QStringLiteral("&Cerca"),
                   QStringLiteral("Cerca una parola su cui posizionarsi"), this);
  Command2 = Pulsante(QStringLiteral("Command2"), QStringLiteral("&WinWord"),
                      QStringLiteral("Chiedi aiuto a Word se installato."), this);
  Command1 = Pulsante(QStringLiteral("Command1"), QStringLiteral("Vista tabellare"),
                      QStringLiteral("Visualizza i dati in una tabella"), this);
  cmdClose->setShortcut({});  // Alt+C is that of Cerca; Esc closes
  connect(Cerca, &QPushButton::clicked, this, [this] { CercaUnaParola(); });
  connect(Command2, &QPushButton::clicked, this, [this] { ChiediAiuto(); });
  connect(Command1, &QPushButton::clicked, this, [this] { MostraTabella(); });
  Disponi();
  Carica();
}

void telariummdb::CreaCampi() {
  parola_ = Chiamato(NomeInSerie("txtFields", 2),
                     new CasellaMaiuscola(this, CasellaMaiuscola::Lettere::Tutte));
  txtFields[Parola] = parola_;
  for (std::size_t i = 0; i < famiglie_.size(); ++i) {
    famiglie_[i] =
        Chiamato(NomeInSerie("txtFields", static_cast<int>(i)), new QPlainTextEdit(this));
    famiglie_[i]->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    famiglie_[i]->setTabChangesFocus(true);
    txtFields[i] = famiglie_[i];
  }
  for (std::size_t i = 0; i < campi.size(); ++i) {
    lblLabels[i] = Chiamato(NomeInSerie("lblLabels", static_cast<int>(i)),
                            new QLabel(QString::fromUtf16(didascalie[i]), this));
    lblLabels[i]->setBuddy(txtFields[i]);
  }
}

void telariummdb::Disponi() {
  auto* parola = new QHBoxLayout;
  parola->setSpacing(Distanza);
  parola->addWidget(parola_, 1);
  for (QPushButton* bottone : {Cerca, Command2, Command1})
    parola->addWidget(bottone);
  auto* campi = new QVBoxLayout;
  campi->setContentsMargins(Margine, Margine, Margine, 0);
  campi->setSpacing(Distanza);
  campi->addWidget(Label1);
  campi->addWidget(lblLabels[Parola]);
  campi->addLayout(parola);
  for (const std::size_t i : {1u, 0u}) {
    campi->addWidget(lblLabels[i]);
    campi->addWidget(famiglie_[i], 1);
  }
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setSpacing(0);
  tutto->addLayout(campi, 1);
  tutto->addWidget(picButtons);
  tutto->addWidget(picStatBox);
  QWidget* prima = parola_;
  for (QWidget* controllo : std::initializer_list<QWidget*>{famiglie_[1], famiglie_[0], Cerca,
                                                            Command2, Command1, cmdUpdate}) {
    setTabOrder(prima, controllo);
    prima = controllo;
  }
  cmdNext->setFocus();
  resize(MisuraIniziale);
}

void telariummdb::MostraRiga() {
  std::array<QString, 3> testi;
  try {
    for (std::size_t i = 0; i < campi.size(); ++i)
      testi[i] = AQt(adoPrimaryRS.Testo(campi[i]));
  } catch (const ErroreEnciclopedia&) {
    Mostra({}, false);
    throw;
  }
  Mostra(testi, adoPrimaryRS.HaRiga());
}

void telariummdb::Mostra(const std::array<QString, 3>& testi, bool scrivibili) {
  parola_->setText(parola_->InMaiuscole(testi[Parola]));
  parola_->setReadOnly(!scrivibili);
  for (std::size_t i = 0; i < famiglie_.size(); ++i) {
    telarium::Mostra(*famiglie_[i], testi[i]);
    famiglie_[i]->setReadOnly(!scrivibili);
  }
  for (std::size_t i = 0; i < campi.size(); ++i)
    mostrati_[i] = Scritto(i);
}

QString telariummdb::Scritto(std::size_t campo) const {
  return campo == Parola ? parola_->text() : TestoDi(*famiglie_[campo]);
}

// A box that nobody touched says nothing: its text is not always to the byte that of the row.
void telariummdb::PrendiDatiScritti() {
  for (std::size_t i = 0; i < campi.size(); ++i) {
    const QString scritto = Scritto(i);
    if (scritto == mostrati_[i]) {
      adoPrimaryRS.Imposta(campi[i], std::nullopt);
      continue;
    }
    const auto esatto = DaQtEsatto(scritto);
    if (!esatto) {
      txtFields[i]->setFocus();
      throw ErroreEnciclopedia("ci sono caratteri che non può contenere"_cp);
    }
    adoPrimaryRS.Imposta(campi[i], *esatto);
  }
}

void telariummdb::CercaUnaParola() {
  const auto inizio = ChiUsa().ChiediTesto({.richiesta = "Inserisci parola di ricerca"});
  if (!inizio || inizio->empty()) return;
  InBottone([&] {
    if (!adoPrimaryRS.CercaInizio(*inizio)) {
      ChiUsa().SegnaleAcustico();
      lblStatus->setText(QStringLiteral("Parola non trovata !"));
      if (!adoPrimaryRS.Primo()) return;
    }
    adoPrimaryRS_MoveComplete();
  });
}

void telariummdb::ChiediAiuto() {
  if (parola_->text().isEmpty()) {
    return Avvisa(
        "Inserire prima una parola della quale si intende chiedere il significato a Word (Se "
        "installato).");
  }
  ChiediAWord(DaQt(parola_->text()));
}

// A search, and the table, would leave the row in the middle of its mode.
void telariummdb::MostraBottoni(bool b) {
  FinestraEnciclopedia::MostraBottoni(b);
  for (QPushButton* bottone : {Cerca, Command1})
    bottone->setEnabled(b);
}

// The table takes this window's place, so the rows are let go of for it: one connection at a time
// writes to the store.
void telariummdb::MostraTabella() {
  bool lasciata = false;
  InBottone([&] {
    adoPrimaryRS.RegistraSospese();
    MostraRiga();
    lasciata = true;
  });
  if (!lasciata) return;
  adoPrimaryRS.Chiudi();
  TabellaSopra(*this).exec();
  reject();
}

void telariummdb::mouseMoveEvent(QMouseEvent* evento) {
  if (PuntatoreMouse != PuntatoreFreccia) ImpostaPuntatoreMouse(PuntatoreFreccia);
  FinestraEnciclopedia::mouseMoveEvent(evento);
}

}  // namespace telarium
