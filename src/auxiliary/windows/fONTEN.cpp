#include "auxiliary/windows/fONTEN.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "editor/font_choice.h"
#include "editor/settings.h"
#include "platform/qt/qt_fonts.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr int PuntiEsempio = 20;
constexpr int AltezzaEsempio = 64;  // pixels: room for typefaces with long strokes
constexpr QSize MisuraIniziale(460, 480);

}  // namespace

fONTEN::fONTEN(QWidget* genitore)
    : FinestraModale(QStringLiteral("fONTEN"), QStringLiteral("Telarium - Scelta carattere"),
                     genitore) {
  CreaElenco();
  Check3d1 = Chiamato(QStringLiteral("Check3d1"), new QCheckBox(QStringLiteral("Corsivo"), this));
  Check3d2 = Chiamato(QStringLiteral("Check3d2"), new QCheckBox(QStringLiteral("Grassetto"), this));
  CreaEsempio();
  cmdOK = Chiamato(QStringLiteral("cmdOK"), new QPushButton(QStringLiteral("OK"), this));
  cmdCancel =
      Chiamato(QStringLiteral("cmdCancel"), new QPushButton(QStringLiteral("&Annulla"), this));
  cmdOK->setDefault(true);  // which is what Enter in the list presses
  Disponi();

  connect(LstFonts, &QListWidget::itemSelectionChanged, this, [this] { MostraEsempio(); });
  connect(LstFonts, &QListWidget::itemDoubleClicked, this, [this] { Conferma(); });
  for (QCheckBox* stile : {Check3d1, Check3d2})
    connect(stile, &QCheckBox::toggled, this, [this] { MostraEsempio(); });
  connect(cmdOK, &QPushButton::clicked, this, [this] { Conferma(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { reject(); });
}

void fONTEN::CreaElenco() {
  Frame3 = Chiamato(QStringLiteral("Frame3"), new QGroupBox(this));
  LstFonts = Chiamato(QStringLiteral("LstFonts"), new QListWidget(Frame3));
  LstFonts->addItems(FamiglieInstallate());
  Frame3->setTitle(QStringLiteral("N. %1 Fonts installati").arg(LstFonts->count()));
  (new QVBoxLayout(Frame3))->addWidget(LstFonts);
}

void fONTEN::CreaEsempio() {
  Frame1 = Chiamato(QStringLiteral("Frame1"), new QGroupBox(QStringLiteral("Esempio"), this));
  TxtFontPreview = Chiamato(QStringLiteral("TxtFontPreview"), new QLineEdit(Frame1));
  TxtFontPreview->setReadOnly(true);
  TxtFontPreview->setFocusPolicy(Qt::ClickFocus);
  TxtFontPreview->setFixedHeight(AltezzaEsempio);
  (new QVBoxLayout(Frame1))->addWidget(TxtFontPreview);
}

void fONTEN::Disponi() {
  auto* stili = new QHBoxLayout;
  stili->addWidget(Check3d1);
  stili->addSpacing(16);
  stili->addWidget(Check3d2);
  stili->addStretch(1);
  auto* bottoni = new QHBoxLayout;
  bottoni->addStretch(1);
  bottoni->addWidget(cmdOK);
  bottoni->addWidget(cmdCancel);
  auto* colonna = new QVBoxLayout(this);
  colonna->setSpacing(10);
  colonna->addWidget(Frame3, 1);
  colonna->addLayout(stili);
  colonna->addWidget(Frame1);
  colonna->addLayout(bottoni);
  resize(MisuraIniziale);
}

void fONTEN::Attivata() {
  LstFonts->setFocus();
  // Exactly this name: the list may have another one that differs in case alone.
  const QList<QListWidgetItem*> trovati =
      LstFonts->findItems(AQt(NomeFont), Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (trovati.isEmpty()) return;
  LstFonts->setCurrentItem(trovati.front(), QItemSelectionModel::ClearAndSelect);
  LstFonts->scrollToItem(trovati.front(), QAbstractItemView::PositionAtCenter);
}

QString fONTEN::Scelto() const {
  const QList<QListWidgetItem*> scelti = LstFonts->selectedItems();
  return scelti.isEmpty() ? QString() : scelti.front()->text();
}

void fONTEN::MostraEsempio() {
  QFont carattere = TxtFontPreview->font();
  if (const QString nome = Scelto(); !nome.isEmpty()) {
    TxtFontPreview->setText(nome + QStringLiteral(" - aAbB 123 zZ"));
    TxtFontPreview->setCursorPosition(0);
    carattere.setFamilies({nome});
    carattere.setPointSize(PuntiEsempio);
  }
  carattere.setItalic(Check3d1->isChecked());
  carattere.setBold(Check3d2->isChecked());
  TxtFontPreview->setFont(carattere);
}

void fONTEN::Conferma() {
  const QString nome = Scelto();
  if (nome.isEmpty()) return reject();
  ApplicaCarattere(DaQt(nome), Check3d1->isChecked(), Check3d2->isChecked());
  accept();
}

}  // namespace telarium
