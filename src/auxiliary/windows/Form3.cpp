#include "auxiliary/windows/Form3.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "auxiliary/information.h"
#include "auxiliary/links.h"
#include "editor/windows/pictures.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr double IngrandimentoTitolo = 1.3;
constexpr int Margine = 16;  // logical pixels
constexpr int DistanzaTraGruppi = 12;

}  // namespace

Form3::Form3(QWidget* genitore)
    : FinestraModale(QStringLiteral("Form3"), QStringLiteral("Telarium - Informazioni"), genitore) {
  Picture3 = Etichetta("Picture3");
  Picture3->setPixmap(Figura("hand", devicePixelRatioF()));
  Picture3->hide();
  Label4 = Etichetta("Label4");
  QFont titolo = Label4->font();
  titolo.setPointSizeF(titolo.pointSizeF() * IngrandimentoTitolo);
  titolo.setBold(true);
  Label4->setFont(titolo);
  Label5 = Etichetta("Label5");
  Label5->setText(QStringLiteral("per Windows"));
  Label9 = Etichetta("Label9");
  CreaCollegamenti();
  Command1 = Pulsante(QStringLiteral("Command1"), QStringLiteral("&System Info ..."),
                      QStringLiteral("Informazioni generali sul sistema"), this);
  Command3d1 = Pulsante(QStringLiteral("Command3d1"), QStringLiteral("OK, fatto!"), {}, this);
  Command3d1->setDefault(true);
  Disponi();

  connect(Command1, &QPushButton::clicked, this, [] { StartSysInfo(); });
  connect(Command3d1, &QPushButton::clicked, this, [this] { accept(); });
  Attivata();  // for the size that it opens with
  Command3d1->setFocus();
}

QLabel* Form3::Etichetta(const char* nome) {
  auto* etichetta = Chiamato(QLatin1StringView(nome), new QLabel(this));
  etichetta->setTextFormat(Qt::PlainText);
  etichetta->setMargin(2);  // as the links have it
  return etichetta;
}

EtichettaCollegamento* Form3::Collegamento(const char* nome, const QString& testo,
                                           const QString& suggerimento, void (*apre)()) {
  auto* collegamento = Chiamato(QLatin1StringView(nome), new EtichettaCollegamento(testo, this));
  collegamento->setToolTip(suggerimento);
  collegamento->setCursor(
      QCursor(Picture3->pixmap(Qt::ReturnByValue), PuntaDellaMano.x(), PuntaDellaMano.y()));
  collegamento->QuandoPremuta(apre);
  return collegamento;
}

void Form3::CreaCollegamenti() {
  Label10 = Collegamento(
      "Label10", AQt(ValoreIndirizzo(Indirizzo::PaginaDizionario)),
      QStringLiteral("Pagina di Telarium per scaricare il dizionario con oltre 230.000 parole"),
      [] { ApriPagina(Indirizzo::PaginaDizionario); });
  Label8 = Collegamento("Label8", AQt(ValoreIndirizzo(Indirizzo::MailAutore)),
                        QStringLiteral("Manda una mail all'autore"),
                        [] { ScriviMail(Indirizzo::MailAutore); });
  Picture5 = Collegamento("Picture5", {}, QStringLiteral("Visita il sito dell'autore ..."),
                          [] { ApriPagina(Indirizzo::SitoProdotto); });
  Picture5->setPixmap(Figura("emblem", devicePixelRatioF()));
  Picture7 = Collegamento("Picture7", {}, QStringLiteral("Iscriviti alla fan page su Facebook ..."),
                          [] { ApriPagina(Indirizzo::PaginaAmici); });
  Picture7->setPixmap(Figura("friends", devicePixelRatioF()));
}

void Form3::Disponi() {
  auto* testi = new QVBoxLayout;
  testi->setSpacing(2);
  testi->addWidget(Label4);
  testi->addWidget(Label5);
  testi->addSpacing(DistanzaTraGruppi);
  testi->addWidget(Label9);
  testi->addSpacing(DistanzaTraGruppi);
  // As wide as their texts: beside them nothing is to be clicked.
  for (QWidget* collegamento : {Label10, Label8})
    testi->addWidget(collegamento, 0, Qt::AlignLeft);
  testi->addStretch(1);
  auto* sopra = new QHBoxLayout;
  sopra->setSpacing(Margine);
  sopra->addWidget(Picture5, 0, Qt::AlignTop);
  sopra->addLayout(testi, 1);
  sopra->addWidget(Picture7, 0, Qt::AlignTop);
  auto* sotto = new QHBoxLayout;
  sotto->addWidget(Command1);
  sotto->addStretch(1);
  sotto->addWidget(Command3d1);
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(Margine, Margine, Margine, Margine);
  tutto->setSpacing(Margine);
  tutto->addLayout(sopra, 1);
  tutto->addLayout(sotto);
}

void Form3::Attivata() {
  Label4->setText(AQt(TitoloConVersione()));
  Label9->setText(QStringLiteral("Grazie per il sostegno al software italiano"));
}

}  // namespace telarium
