#include "editor/windows/Settaggi.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "editor/cell_drawing.h"
#include "editor/settings.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr int Colonne = 3;              // of bars, in two rows
constexpr int Rientro = 24;             // pixels by which the lower bars begin further right: lines
                                        // from the upper ones pass to the left of them
constexpr int FraColonne = 16;          // pixels
constexpr int BordoValore = 4;          // pixels between a value and the right end of its bar
constexpr int FraDidascaliaEBarra = 4;  // pixels
constexpr int FraRighe = 14;            // pixels
constexpr int SopraIlCampione = 26;     // pixels
constexpr int LarghezzaBottone = 90;    // pixels, at least
constexpr int LatoMinimo = 70;          // of the sample's cells, in pixels
constexpr int InizioLinea = 12;         // pixels from the left end of an upper bar
constexpr int SottoIlMinimo = 95;       // what a PercentualeRiquadro below its bar shows as

struct Barra {
  std::int16_t& impostazione;
  int minimo, massimo, passo;
  int valoreSeMinore;  // what a setting below the minimum shows as
  const char16_t* didascalia;
  QScrollBar* Settaggi::*barra;
  QLabel* Settaggi::*etichetta;
  QLabel* Settaggi::*valore;
  const char *nomeBarra, *nomeEtichetta, *nomeValore;
};

// clang-format off
const Barra barre[] = {
    {PercentualeRiquadro, 50, 100, 10, SottoIlMinimo, u"% riquadro nero",
     &Settaggi::HScroll1, &Settaggi::Label4, &Settaggi::Label2, "HScroll1", "Label4", "Label2"},
    {AltezzaNumeri, 5, 25, 10, 5, u"% Altezza numeri",
     &Settaggi::HScroll2, &Settaggi::Label8, &Settaggi::Label9, "HScroll2", "Label8", "Label9"},
    {AltezzaCaratteri, 25, 90, 10, 25, u"% Altezza caratteri",
     &Settaggi::HScroll3, &Settaggi::Label6, &Settaggi::Label5, "HScroll3", "Label6", "Label5"},
    {DistanzaDaSpigolo, 0, 15, 5, 0, u"% Distanza num. da spigolo",
     &Settaggi::HScroll4, &Settaggi::Label10, &Settaggi::Label11, "HScroll4", "Label10", "Label11"},
    {DistanzaDaCentro, -10, 20, 10, -10, u"% Distanza dal centro",
     &Settaggi::HScroll5, &Settaggi::Label14, &Settaggi::Label15, "HScroll5", "Label14", "Label15"},
    {SpessoreBordo, 1, 5, 1, 1, u"Spessore Bordo",
     &Settaggi::HScroll6, &Settaggi::Label12, &Settaggi::Label13, "HScroll6", "Label12", "Label13"},
};

constexpr std::pair<LineaGuida* Settaggi::*, const char*> linee[] = {
    {&Settaggi::Line1, "Line1"}, {&Settaggi::Line2, "Line2"},   {&Settaggi::Line3, "Line3"},
    {&Settaggi::Line4, "Line4"}, {&Settaggi::Line7, "Line7"},   {&Settaggi::Line8, "Line8"},
    {&Settaggi::Line9, "Line9"}, {&Settaggi::Line10, "Line10"},
};
// clang-format on

QString Spiegazione() {
  return QStringLiteral(
      "Modifica i parametri sottostanti del cruciverba, relativi a lettere, numeri, altezze, "
      "distanze e spessori quindi premi il bottone <Salva> per confermare oppure <Annulla> per "
      "annullare ed uscire senza salvare.");
}

void Evidenzia(QLabel& valore, bool evidente) {
  valore.setAutoFillBackground(evidente);
  valore.setBackgroundRole(evidente ? QPalette::Highlight : QPalette::NoRole);
  valore.setForegroundRole(evidente ? QPalette::HighlightedText : QPalette::NoRole);
}

}  // namespace

Settaggi::Settaggi(QWidget* genitore)
    : FinestraModale(QStringLiteral("Settaggi"), QStringLiteral("Settaggio parametri cruciverba"),
                     genitore) {
  Label16 = Chiamato(QStringLiteral("Label16"), new QLabel(Spiegazione(), this));
  Label16->setTextFormat(Qt::PlainText);
  Label16->setWordWrap(true);
  Frame1 = Chiamato(QStringLiteral("Frame1"),
                    new QGroupBox(QStringLiteral("Settaggio parametri del cruciverba "), this));
  campo_ = Chiamato(QStringLiteral("Campo"), new QWidget(Frame1));
  CreaBarre();
  CreaBottoni();
  DisponiBarre();
  CreaLinee();
  Disponi();
  LeggiImpostazioniCorrenti();
}

void Settaggi::CreaBarre() {
  for (const Barra& voce : barre) {
    QLabel* etichetta = Chiamato(QLatin1StringView(voce.nomeEtichetta),
                                 new QLabel(QString::fromUtf16(voce.didascalia), campo_));
    QLabel* valore = Chiamato(QLatin1StringView(voce.nomeValore), new QLabel(campo_));
    valore->setAlignment(Qt::AlignVCenter | Qt::AlignRight);
    valore->setContentsMargins(0, 0, BordoValore, 0);
    auto* barra =
        Chiamato(QLatin1StringView(voce.nomeBarra), new QScrollBar(Qt::Horizontal, campo_));
    barra->setRange(voce.minimo, voce.massimo);
    barra->setPageStep(voce.passo);
    barra->setFocusPolicy(Qt::StrongFocus);
    barra->setInvertedControls(false);  // else the right arrow key would go left
    connect(barra, &QScrollBar::valueChanged, this, [this] { MostraValori(); });
    barra->installEventFilter(this);
    etichetta->setBuddy(barra);
    this->*voce.barra = barra;
    this->*voce.etichetta = etichetta;
    this->*voce.valore = valore;
  }
}

void Settaggi::CreaLinee() {
  for (const auto& [linea, nome] : linee)
    this->*linea = Chiamato(QLatin1StringView(nome), new LineaGuida(campo_));
}

void Settaggi::CreaBottoni() {
  const auto bottone = [this](const QString& nome, const QString& testo, const QString& consiglio) {
    QPushButton* nuovo = Chiamato(nome, new QPushButton(testo, this));
    nuovo->setToolTip(consiglio);
    nuovo->setMinimumWidth(LarghezzaBottone);
    return nuovo;
  };
  Command1 = bottone(QStringLiteral("Command1"), QStringLiteral("&Salva"),
                     QStringLiteral("Salva le modifiche e continua"));
  Command2 = bottone(QStringLiteral("Command2"), QStringLiteral("&Annulla"),
                     QStringLiteral("Annulla tutte le modifiche e continua"));
  Command1->setDefault(true);
  connect(Command1, &QPushButton::clicked, this, [this] { Salva(); });
  connect(Command2, &QPushButton::clicked, this, [this] { reject(); });
}

int Settaggi::LarghezzaValori() const {
  return fontMetrics().horizontalAdvance(QStringLiteral("-100")) + 2 * BordoValore;
}

// The width that the widest caption needs, with its value beside it.
int Settaggi::LarghezzaDidascalie() const {
  int larghezza = 0;
  for (const Barra& voce : barre)
    larghezza = std::max(larghezza, (this->*voce.etichetta)->sizeHint().width());
  return larghezza + LarghezzaValori();
}

// Bars in two rows, the sample in the middle below them. Columns and cells are of such widths that
// a line straight down from the second upper bar meets the second number, and one from the third
// bar the last letter.
void Settaggi::DisponiBarre() {
  constexpr int DistanzaNumero = 9;  // of its middle from the edge of its cell, roughly, in pixels
  const int minima = LarghezzaDidascalie() + Rientro + FraColonne;
  const int lato = std::max(LatoMinimo, (minima + DistanzaNumero) * 2 / 7 + 1);
  const int passo = lato * 7 / 2 - DistanzaNumero;
  const int altezzaTesto = fontMetrics().height() + 2;
  const int altezzaBarra = HScroll1->sizeHint().height();
  const int altezzaRiga = altezzaTesto + FraDidascaliaEBarra + altezzaBarra + FraRighe;
  const int larghezzaValore = LarghezzaValori();
  int indice = 0;
  for (const Barra& voce : barre) {
    const int riga = indice / Colonne;
    const int destra = (indice % Colonne + 1) * passo - FraColonne;
    const int sinistra = indice % Colonne * passo + riga * Rientro;
    const int cima = riga * altezzaRiga;
    ++indice;
    (this->*voce.etichetta)
        ->setGeometry(sinistra, cima, destra - sinistra - larghezzaValore, altezzaTesto);
    (this->*voce.valore)
        ->setGeometry(destra - larghezzaValore, cima, larghezzaValore, altezzaTesto);
    (this->*voce.barra)
        ->setGeometry(sinistra, cima + altezzaTesto + FraDidascaliaEBarra, destra - sinistra,
                      altezzaBarra);
  }
  Campione = new CampioneSchema(lato, AQt(FontDelleLettere()), campo_);
  Campione->move(passo + InizioLinea - DistanzaNumero - lato - CampioneSchema::Margine,
                 2 * altezzaRiga - FraRighe + SopraIlCampione);
  campo_->setFixedSize(Colonne * passo - FraColonne, Campione->geometry().bottom() + 1);
}

void Settaggi::Disponi() {
  auto* riga = new QHBoxLayout(Frame1);
  riga->setContentsMargins(16, 14, 16, 4);
  riga->addWidget(campo_);
  auto* bottoni = new QHBoxLayout;
  bottoni->addStretch(1);
  bottoni->addWidget(Command1);
  bottoni->addWidget(Command2);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(14, 14, 14, 14);
  colonna->setSpacing(12);
  colonna->addWidget(Label16);
  colonna->addWidget(Frame1);
  colonna->addLayout(bottoni);
  colonna->setSizeConstraint(QLayout::SetFixedSize);
}

void Settaggi::LeggiImpostazioniCorrenti() {
  for (const Barra& voce : barre) {
    const bool minore = voce.impostazione < voce.minimo;
    (this->*voce.barra)->setValue(minore ? voce.valoreSeMinore : voce.impostazione);
  }
  // Lines of no thickness are raised for the grid too, whether or not the user saves.
  SpessoreBordo = std::max<std::int16_t>(SpessoreBordo, 1);
  MostraValori();
}

void Settaggi::MostraValori() {
  for (const Barra& voce : barre)
    (this->*voce.valore)->setNum((this->*voce.barra)->value());
  Campione->Mostra({.percentualeRiquadro = HScroll1->value(),
                    .altezzaNumeri = HScroll2->value(),
                    .altezzaCaratteri = HScroll3->value(),
                    .distanzaDaSpigolo = HScroll4->value(),
                    .distanzaDaCentro = HScroll5->value(),
                    .spessoreBordo = HScroll6->value()});
  TracciaLinee();
}

// Leads from each bar to a part of the sample that it changes.
void Settaggi::TracciaLinee() {
  constexpr int Distacco = 5;  // pixels between a line's mark and what it points at
  const QPoint origine = Campione->pos();
  const auto sotto = [](const QWidget* barra) { return barra->geometry().bottom() + 1; };
  const auto scendi = [&](LineaGuida* linea, const QWidget* barra, const QLabel* scritta) {
    const QRect inchiostro = CampioneSchema::Inchiostro(*scritta).translated(origine);
    const int x = inchiostro.center().x();
    linea->Traccia({x, sotto(barra)}, {x, inchiostro.top() - Distacco}, true);
  };
  // Down beside the sample, then level to an edge of it.
  const auto gira = [&](LineaGuida* giu, LineaGuida* inPiano, const QWidget* barra, int x,
                        QPoint fine) {
    giu->Traccia({x, sotto(barra)}, {x, fine.y()}, false);
    inPiano->Traccia({x, fine.y()}, fine, true);
  };
  const QRect nero = Campione->Shape10->geometry().translated(origine);
  const QRect bordo = Campione->Line6->geometry().translated(origine);
  gira(Line1, Line2, HScroll1, InizioLinea, {nero.left() - Distacco, nero.center().y()});
  scendi(Line3, HScroll2, Campione->Label3[1]);
  scendi(Line4, HScroll3, Campione->Label1[4]);
  scendi(Line7, HScroll4, Campione->Label3[0]);
  scendi(Line8, HScroll5, Campione->Label1[2]);
  gira(Line9, Line10, HScroll6, Campione->geometry().right() + 2 * InizioLinea,
       {bordo.right() + Distacco, nero.center().y()});
}

// A scroll bar does not show that it has the focus, so its value does.
bool Settaggi::eventFilter(QObject* oggetto, QEvent* evento) {
  const bool preso = evento->type() == QEvent::FocusIn;
  if (preso || evento->type() == QEvent::FocusOut) {
    for (const Barra& voce : barre)
      if (this->*voce.barra == oggetto) Evidenzia(*(this->*voce.valore), preso);
  }
  return FinestraModale::eventFilter(oggetto, evento);
}

void Settaggi::Salva() {
  for (const Barra& voce : barre)
    voce.impostazione = static_cast<std::int16_t>((this->*voce.barra)->value());
  ScriviImpostazioni();
  accept();
}

}  // namespace telarium
