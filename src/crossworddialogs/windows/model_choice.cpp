#include "crossworddialogs/windows/model_choice.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include "model/state.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr int FigurePerRiga = 4;
constexpr QSize MisuraFigura(164, 148);  // logical pixels
constexpr QSize MisuraMinimaFigura(96, 64);
constexpr QPoint SpostamentoPremuta(6, 6);
constexpr int LarghezzaElenco = 150;
constexpr const char* ModelloDiFile = "*.dfc";

}  // namespace

FiguraModello::FiguraModello(QWidget* genitore) : Tela(genitore) {
  Superficie().Sfondo(ColoreBianco);
  setMinimumSize(MisuraMinimaFigura);
}

QSize FiguraModello::sizeHint() const {
  return MisuraFigura;
}

void FiguraModello::Piena(bool piena) {
  setEnabled(piena);
  setFocusPolicy(piena ? Qt::StrongFocus : Qt::NoFocus);
  setCursor(piena ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void FiguraModello::Premi() {
  move(pos() + SpostamentoPremuta);
  window()->repaint();
}

void FiguraModello::paintEvent(QPaintEvent* evento) {
  Tela::paintEvent(evento);
  QPainter pittore(this);
  const QColor bordo = palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid);
  pittore.setPen(QPen(bordo, hasFocus() ? 3 : 1));
  pittore.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

// A click is over when the button is up: a second one must not reach the window below.
void FiguraModello::mouseReleaseEvent(QMouseEvent* evento) {
  const bool scelta = evento->button() == Qt::LeftButton && rect().contains(evento->pos());
  if (scelta && scelta_) scelta_();
}

void FiguraModello::keyPressEvent(QKeyEvent* evento) {
  const bool scelta = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter ||
                      evento->key() == Qt::Key_Space;
  if (!scelta) return Tela::keyPressEvent(evento);
  if (scelta_) scelta_();
}

void FiguraModello::focusInEvent(QFocusEvent*) {
  update();
}

void FiguraModello::focusOutEvent(QFocusEvent*) {
  update();
}

SceltaModello::SceltaModello(const QString& nome, const QString& istruzione, QWidget* genitore)
    : FinestraModale(nome, QStringLiteral("Telarium - Nuovo cruciverba"), genitore) {
  for (std::size_t n = 0; n < Picture1.size(); ++n) {
    Picture1[n] = Chiamato(QStringLiteral("Picture1_%1").arg(n), new FiguraModello(this));
    Picture1[n]->Piena(false);
    Picture1[n]->QuandoScelta([this, n] { Scegli(static_cast<int>(n)); });
  }
  File1 = Chiamato(QStringLiteral("File1"), new ListaFile(ModelloDiFile, this));
  File1->setFixedWidth(LarghezzaElenco);
  File1->QuandoScelta([this](const Percorso& nome) {
    nomeModelli_ = nome;
    MostraIModelli();
  });
  Label5 = Chiamato(QStringLiteral("Label5"), new QLabel(istruzione, this));
  Label5->setWordWrap(true);
  Command3d1 = Chiamato(QStringLiteral("Command3d1"), new QPushButton(QStringLiteral("&OK"), this));
  Command3d1->setDefault(true);
  connect(Command3d1, &QPushButton::clicked, this, [this] { Crea(); });
  Command3d2 =
      Chiamato(QStringLiteral("Command3d2"), new QPushButton(QStringLiteral("&Annulla"), this));
  connect(Command3d2, &QPushButton::clicked, this, &SceltaModello::reject);
}

QVBoxLayout* SceltaModello::PostoDi(int numero) {
  auto* posto = new QVBoxLayout;
  posto->setSpacing(0);
  posto->addWidget(Picture1[static_cast<std::size_t>(numero)], 1);
  return posto;
}

void SceltaModello::Disponi(QLayout* extra) {
  auto* figure = new QGridLayout;
  figure->setVerticalSpacing(3);  // every pixel of a low screen is the pictures'
  for (int n = 0; n < MaxModelli; ++n)
    figure->addLayout(PostoDi(n), n / FigurePerRiga, n % FigurePerRiga);
  auto* pulsanti = new QHBoxLayout;
  if (extra) pulsanti->addLayout(extra);
  pulsanti->addStretch(1);
  pulsanti->addWidget(Command3d1);
  pulsanti->addWidget(Command3d2);
  auto* sopra = new QHBoxLayout;
  sopra->addLayout(figure, 1);
  sopra->addWidget(File1);
  auto* tutto = new QVBoxLayout(this);
  tutto->addLayout(sopra, 1);
  tutto->addWidget(Label5);
  tutto->addLayout(pulsanti);
  resize(sizeHint());
}

void SceltaModello::resizeEvent(QResizeEvent* evento) {
  FinestraModale::resizeEvent(evento);
  // Behind it all pictures have their new sizes.
  QTimer::singleShot(0, this, [this] { Ridisegna(); });
}

void SceltaModello::Attivata() {
  File1->Vai(CartellaProgramma);
  if (nomeModelli_.empty()) nomeModelli_ = NomeModelliIniziale;
  const QSignalBlocker muto(File1);
  File1->Scegli(nomeModelli_);
  MostraIModelli();
}

Percorso SceltaModello::FileModelli() const {
  return PercorsoNellaCartella(CartellaProgramma, nomeModelli_);
}

void SceltaModello::MostraIModelli() {
  modelli_ = ModelliDaMostrare(FileModelli());
  modelli_.resize(MaxModelli);
  for (int n = 0; n < MaxModelli; ++n) {
    const Modello& modello = modelli_[static_cast<std::size_t>(n)];
    Picture1[static_cast<std::size_t>(n)]->Piena(!modello.empty());
    MostraNome(n, NomeDelModello(modello));
  }
  Ridisegna();
  ImpostaPuntatoreMouse(PuntatoreFreccia);
}

void SceltaModello::Ridisegna() {
  for (std::size_t n = 0; n < modelli_.size(); ++n)
    DisegnaModello(modelli_[n], Picture1[n]->Superficie());
}

void SceltaModello::Scegli(int numero) {
  FiguraModello& figura = *Picture1[static_cast<std::size_t>(numero)];
  figura.Premi();
  if (NuovoDaModello(FileModelli(), numero) == EsitoNuovo::Fatto) return accept();
  layout()->invalidate();  // puts the picture back
  layout()->activate();
}

}  // namespace telarium
