#include "editor/windows/LavoroNonSalvato.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "editor/history_commands.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/qt/qt_text.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr QSize MisuraIniziale(700, 440);  // logical pixels
constexpr int LarghezzaElenco = 280;

// The name that tells a crossword from the others.
Percorso NomeBreve(const LavoroPerso& lavoro) {
  return lavoro.maiSalvato ? Percorso("Cruciverba mai salvato") : lavoro.nome.filename();
}

QString VoceDelLavoro(const LavoroPerso& lavoro) {
  return QStringLiteral("%1   %2").arg(MomentoDi(lavoro.quando), PercorsoAQt(NomeBreve(lavoro)));
}

QString LuogoDi(const LavoroPerso& lavoro) {
  return lavoro.maiSalvato ? QStringLiteral("In nessun file.")
                           : QStringLiteral("File: %1").arg(PercorsoAQt(lavoro.nome));
}

}  // namespace

LavoroNonSalvato::LavoroNonSalvato(QWidget* genitore)
    : FinestraModale(QStringLiteral("LavoroNonSalvato"),
                     QStringLiteral("Telarium - Lavoro non salvato"), genitore),
      lavori_(LaCronologia()->Archivio().LavoriPersi()) {
  CreaControlli();
  Disponi();
  connect(Lavori, &QListWidget::currentRowChanged, this, [this](int posto) { Guarda(posto); });
  connect(Lavori, &QListWidget::itemDoubleClicked, this, [this] { accept(); });
  connect(Recupera, &QPushButton::clicked, this, [this] { accept(); });
  connect(Elimina, &QPushButton::clicked, this, [this] { EliminaScelto(); });
  connect(DecidiDopo, &QPushButton::clicked, this, [this] { reject(); });
  for (const LavoroPerso& lavoro : lavori_)
    Lavori->addItem(VoceDelLavoro(lavoro));
  Lavori->setCurrentRow(0);
  Lavori->setFocus();
  resize(MisuraIniziale);
}

void LavoroNonSalvato::CreaControlli() {
  Spiegazione = Chiamato(
      QStringLiteral("Spiegazione"),
      new QLabel(QStringLiteral("Questi cruciverba hanno &modifiche che non sono in nessun file. "
                                "Un cruciverba recuperato si apre com'era, ancora da salvare; "
                                "quelli che restano nell'elenco sono proposti di nuovo al "
                                "prossimo avvio."),
                 this));
  Spiegazione->setWordWrap(true);
  Lavori = Chiamato(QStringLiteral("Lavori"), new QListWidget(this));
  Lavori->setAccessibleName(QStringLiteral("Cruciverba non salvati"));
  Spiegazione->setBuddy(Lavori);
  Figura = new FiguraDiCruciverba(QStringLiteral("Figura"), this);
  Dove = Chiamato(QStringLiteral("Dove"), new QLabel(this));
  Dove->setTextFormat(Qt::PlainText);
  Dove->setWordWrap(true);
  // A path of any length must not widen the window.
  Dove->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  Recupera = Pulsante(QStringLiteral("Recupera"), QStringLiteral("&Recupera"),
                      QStringLiteral("Apre il cruciverba scelto com'era"), this);
  Recupera->setDefault(true);
  Elimina = Pulsante(QStringLiteral("Elimina"), QStringLiteral("&Elimina"),
                     QStringLiteral("Rinuncia alle modifiche non salvate"), this);
  DecidiDopo = Pulsante(QStringLiteral("DecidiDopo"), QStringLiteral("&Decidi dopo"),
                        QStringLiteral("Lascia tutto com'è, fino al prossimo avvio"), this);
}

void LavoroNonSalvato::Disponi() {
  Lavori->setMinimumWidth(LarghezzaElenco);
  auto* sopra = new QHBoxLayout;
  sopra->addWidget(Lavori, 1);
  sopra->addWidget(Figura, 1);
  auto* pulsanti = new QHBoxLayout;
  pulsanti->addStretch(1);
  for (QPushButton* pulsante : {Recupera, Elimina, DecidiDopo})
    pulsanti->addWidget(pulsante);
  auto* tutto = new QVBoxLayout(this);
  tutto->addWidget(Spiegazione);
  tutto->addLayout(sopra, 1);
  tutto->addWidget(Dove);
  tutto->addLayout(pulsanti);
}

const LavoroPerso& LavoroNonSalvato::Scelto() const {
  return lavori_[static_cast<std::size_t>(Lavori->currentRow())];
}

void LavoroNonSalvato::Guarda(int posto) {
  if (posto < 0) return;
  Figura->Mostra(Scelto().cruciverba);
  Dove->setText(LuogoDi(Scelto()));
}

void LavoroNonSalvato::EliminaScelto() {
  const LavoroPerso lavoro = Scelto();
  const std::string nome = lavoro.maiSalvato ? std::string("del cruciverba mai salvato")
                                             : Unisci("di ", TestoPercorso(lavoro.nome));
  const Messaggio domanda{
      .testo = Unisci("Si desidera eliminare per sempre le modifiche non salvate ", nome, '?'),
      .titolo = "Lavoro non salvato",
      .pulsanti = Pulsanti::OkAnnulla,
      .icona = Icona::Domanda};
  if (ChiUsa().MostraMessaggio(domanda) != Risposta::Ok) return;
  if (const std::error_code errore = LaCronologia()->Archivio().Scarta(lavoro))
    return Avvisa(ConCausa("Le modifiche non si possono eliminare.", lavoro.giornale, errore), {},
                  Icona::Avviso);
  TogliScelto();
}

void LavoroNonSalvato::TogliScelto() {
  const int posto = Lavori->currentRow();
  const QSignalBlocker fermo(Lavori);
  lavori_.erase(lavori_.begin() + posto);
  delete Lavori->takeItem(posto);
  if (lavori_.empty()) return reject();
  Guarda(Lavori->currentRow());
  Lavori->setFocus();
}

void LavoroNonSalvato::accept() {
  if (RecuperaLavoro(Scelto())) return FinestraModale::accept();
  TogliScelto();
}

}  // namespace telarium
