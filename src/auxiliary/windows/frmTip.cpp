#include "auxiliary/windows/frmTip.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "editor/windows/pictures.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr QSize MisuraDelFoglio(420, 210);  // logical pixels
constexpr int MargineDelFoglio = 14;
constexpr double IngrandimentoTitolo = 1.5;
constexpr double IngrandimentoTesto = 1.1;

void Ingrandisci(QWidget& controllo, double volte, bool grassetto) {
  QFont carattere = controllo.font();
  carattere.setPointSizeF(carattere.pointSizeF() * volte);
  carattere.setBold(grassetto);
  controllo.setFont(carattere);
}

// Black on white, whatever colours the desktop has.
QPalette InBiancoENero(QPalette colori) {
  for (const auto fondo : {QPalette::Window, QPalette::Base})
    colori.setColor(fondo, Qt::white);
  for (const auto scritta : {QPalette::WindowText, QPalette::Text})
    colori.setColor(scritta, Qt::black);
  return colori;
}

}  // namespace

frmTip::frmTip(QWidget* genitore)
    : FinestraModale(QStringLiteral("frmTip"), QStringLiteral("Telarium - Suggerimento del giorno"),
                     genitore) {
  QWidget* foglio = CreaFoglio();
  chkLoadTipsAtStartup =
      Chiamato(QStringLiteral("chkLoadTipsAtStartup"),
               new QCheckBox(QStringLiteral("&Mostra i suggerimenti all'avvio"), this));
  chkLoadTipsAtStartup->setChecked(true);
  cmdOK = Chiamato(QStringLiteral("cmdOK"), new QPushButton(QStringLiteral("OK"), this));
  cmdNextTip =
      Chiamato(QStringLiteral("cmdNextTip"), new QPushButton(QStringLiteral("&Successivo"), this));
  cmdOK->setDefault(true);
  Disponi(foglio);

  connect(chkLoadTipsAtStartup, &QCheckBox::clicked, this, ScriviMostraSuggerimenti);
  connect(cmdOK, &QPushButton::clicked, this, [this] { accept(); });
  connect(cmdNextTip, &QPushButton::clicked, this, [this] {
    suggerimenti_.Estrai();
    MostraTesto();
  });
  suggerimenti_.Carica();
  MostraTesto();
  cmdOK->setFocus();
}

QWidget* frmTip::CreaFoglio() {
  auto* foglio = Chiamato(QStringLiteral("foglio"), new QFrame(this));
  foglio->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  foglio->setAutoFillBackground(true);
  foglio->setPalette(InBiancoENero(foglio->palette()));
  foglio->setMinimumSize(MisuraDelFoglio);

  Picture1 = Chiamato(QStringLiteral("Picture1"), new QLabel(foglio));
  Picture1->setPixmap(Figura("lamp", devicePixelRatioF()));
  Label1 = Chiamato(QStringLiteral("Label1"),
                    new QLabel(QStringLiteral("Non tutti sanno che..."), foglio));
  Ingrandisci(*Label1, IngrandimentoTitolo, true);
  lblTipText = Chiamato(QStringLiteral("lblTipText"), new QPlainTextEdit(foglio));
  lblTipText->setReadOnly(true);
  lblTipText->setFrameStyle(QFrame::NoFrame);
  lblTipText->setPalette(InBiancoENero(lblTipText->palette()));
  lblTipText->setTabChangesFocus(true);
  Ingrandisci(*lblTipText, IngrandimentoTesto, false);

  auto* testa = new QHBoxLayout;
  testa->setSpacing(MargineDelFoglio);
  testa->addWidget(Picture1);
  testa->addWidget(Label1, 1);
  auto* colonna = new QVBoxLayout(foglio);
  colonna->setContentsMargins(MargineDelFoglio, MargineDelFoglio, MargineDelFoglio,
                              MargineDelFoglio);
  colonna->setSpacing(MargineDelFoglio);
  colonna->addLayout(testa);
  colonna->addWidget(lblTipText, 1);
  return foglio;
}

void frmTip::Disponi(QWidget* foglio) {
  auto* sinistra = new QVBoxLayout;
  sinistra->setSpacing(10);
  sinistra->addWidget(foglio, 1);
  sinistra->addWidget(chkLoadTipsAtStartup, 0, Qt::AlignLeft);
  auto* destra = new QVBoxLayout;
  destra->addWidget(cmdOK);
  destra->addWidget(cmdNextTip);
  destra->addStretch(1);
  auto* tutto = new QHBoxLayout(this);
  tutto->setContentsMargins(12, 12, 12, 12);
  tutto->setSpacing(12);
  tutto->addLayout(sinistra, 1);
  tutto->addLayout(destra);
}

void frmTip::MostraTesto() {
  Mostra(*lblTipText, AQt(suggerimenti_.Testo()));
}

}  // namespace telarium
