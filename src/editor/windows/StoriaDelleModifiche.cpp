#include "editor/windows/StoriaDelleModifiche.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "editor/history_commands.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr QSize MisuraIniziale(720, 440);  // logical pixels
constexpr int LarghezzaElenco = 300;

// One that has been undone stands behind the present one.
QListWidgetItem* VoceDelPasso(const Linea& linea, std::size_t posto) {
  const Passo& passo = linea[posto];
  QString testo = QStringLiteral("%1   %2").arg(MomentoDi(passo.quando), AQt(passo.motivo));
  const bool attuale = posto == linea.Posto();
  const bool annullato = posto > linea.Posto();
  if (attuale) testo += QStringLiteral("  (stato attuale)");
  if (annullato) testo += QStringLiteral("  (annullata)");
  auto* voce = new QListWidgetItem(testo);
  voce->setToolTip(ComeSuggerimento(AQt(passo.motivo)));
  QFont carattere = voce->font();
  carattere.setBold(attuale);
  carattere.setItalic(annullato);
  voce->setFont(carattere);
  return voce;
}

}  // namespace

StoriaDelleModifiche::StoriaDelleModifiche(QWidget* genitore)
    : FinestraModale(QStringLiteral("StoriaDelleModifiche"),
                     QStringLiteral("Telarium - Cronologia delle modifiche"), genitore),
      linea_(*LaCronologia()->LineaAperta()) {
  Titolo = Chiamato(QStringLiteral("Titolo"), new QLabel(QStringLiteral("&Modifiche:"), this));
  Passi = Chiamato(QStringLiteral("Passi"), new QListWidget(this));
  Passi->setAccessibleName(QStringLiteral("Modifiche, dalla prima all'ultima"));
  Passi->setUniformItemSizes(true);
  Titolo->setBuddy(Passi);
  Figura = new FiguraDiCruciverba(QStringLiteral("Figura"), this);
  Vai = Pulsante(QStringLiteral("Vai"), QStringLiteral("&Vai"),
                 QStringLiteral("Riporta il cruciverba com'era dopo la modifica scelta"), this);
  Vai->setDefault(true);
  Chiudi = Pulsante(QStringLiteral("Chiudi"), QStringLiteral("&Chiudi"), {}, this);
  Disponi();

  connect(Passi, &QListWidget::currentRowChanged, this, [this](int posto) { Guarda(posto); });
  connect(Passi, &QListWidget::itemDoubleClicked, this, [this] { accept(); });
  connect(Vai, &QPushButton::clicked, this, [this] { accept(); });
  connect(Chiudi, &QPushButton::clicked, this, [this] { reject(); });
  Riempi();
  resize(MisuraIniziale);
}

void StoriaDelleModifiche::Disponi() {
  auto* elenco = new QVBoxLayout;
  elenco->addWidget(Titolo);
  elenco->addWidget(Passi, 1);
  Passi->setMinimumWidth(LarghezzaElenco);
  auto* sopra = new QHBoxLayout;
  sopra->addLayout(elenco, 1);
  sopra->addWidget(Figura, 1);
  auto* pulsanti = new QHBoxLayout;
  pulsanti->addStretch(1);
  pulsanti->addWidget(Vai);
  pulsanti->addWidget(Chiudi);
  auto* tutto = new QVBoxLayout(this);
  tutto->addLayout(sopra, 1);
  tutto->addLayout(pulsanti);
}

void StoriaDelleModifiche::Riempi() {
  for (std::size_t posto = 0; posto < linea_.Quanti(); ++posto)
    Passi->addItem(VoceDelPasso(linea_, posto));
  Passi->setCurrentRow(static_cast<int>(linea_.Posto()));
  Passi->scrollToItem(Passi->currentItem(), QAbstractItemView::PositionAtCenter);
  Passi->setFocus();
}

void StoriaDelleModifiche::Guarda(int posto) {
  if (posto < 0) return;
  Figura->Mostra(linea_[static_cast<std::size_t>(posto)].cruciverba);
  Vai->setEnabled(static_cast<std::size_t>(posto) != linea_.Posto());
}

void StoriaDelleModifiche::accept() {
  const auto posto = static_cast<std::size_t>(Passi->currentRow());
  if (posto != linea_.Posto()) VaiAllaModifica(posto);
  FinestraModale::accept();
}

}  // namespace telarium
