#include "crossworddialogs/windows/FormNew.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/qt_text.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr int LarghezzaCasella = 48;  // logical pixels
constexpr int MaxCifre = 9;

CasellaDiTesto* CasellaDiNumero(const QString& nome, const QString& numero, QWidget* genitore) {
  auto* casella = Chiamato(nome, new CasellaDiTesto(numero, genitore));
  casella->setFixedWidth(LarghezzaCasella);
  casella->setMaxLength(MaxCifre);
  return casella;
}

int Numero(const QLineEdit& casella) {
  return ValoreNumerico(DaQt(casella.text()));
}

}  // namespace

FormNew::FormNew(QWidget* genitore)
    : SceltaModello(
          QStringLiteral("FormNew"),
          QStringLiteral("Inserire N. caselle orizzontali (da 3 a 53) e verticali (da 3 a 30) "
                         "oppure cliccare qua sopra per scegliere un modello predefinito, per "
                         "cambiare file di modelli cliccare nella lista qui a fianco."),
          genitore) {
  for (std::size_t n = 0; n < Label3.size(); ++n) {
    Label3[n] = Chiamato(QStringLiteral("Label3_%1").arg(n), new QLabel(this));
    Label3[n]->setAlignment(Qt::AlignHCenter);
    Label3[n]->installEventFilter(this);
  }
  Label1 = Chiamato(QStringLiteral("Label1"),
                    new QLabel(QStringLiteral("N. caselle orizzontali"), this));
  Text1 = CasellaDiNumero(QStringLiteral("Text1"), QStringLiteral("16"), this);
  Label1->setBuddy(Text1);
  Label4 = Chiamato(QStringLiteral("Label4"), new QLabel(QStringLiteral("verticali"), this));
  Text2 = CasellaDiNumero(QStringLiteral("Text2"), QStringLiteral("13"), this);
  Label4->setBuddy(Text2);

  auto* misure = new QHBoxLayout;
  for (QWidget* controllo : std::initializer_list<QWidget*>{Label1, Text1, Label4, Text2})
    misure->addWidget(controllo);
  Disponi(misure);
  // The size first, as in the middle of the window's sentence; the models behind it.
  setTabOrder(Text1, Text2);
  setTabOrder(Text2, Command3d1);
  setTabOrder(Command3d1, Command3d2);
  setTabOrder(Command3d2, Picture1.front());
  setTabOrder(Picture1.back(), File1);
}

QVBoxLayout* FormNew::PostoDi(int numero) {
  QVBoxLayout* posto = SceltaModello::PostoDi(numero);
  posto->addWidget(Label3[static_cast<std::size_t>(numero)]);
  return posto;
}

void FormNew::MostraNome(int numero, const std::string& nome) {
  Label3[static_cast<std::size_t>(numero)]->setText(AQt(nome));
}

void FormNew::Attivata() {
  SceltaModello::Attivata();
  Text1->setFocus();
  Text1->selectAll();
}

void FormNew::Crea() {
  const auto ritenta = [](CasellaDiTesto& casella) {
    casella.setFocus();
    casella.selectAll();  // it may have had the focus all the time
  };
  switch (NuovoVuoto(Numero(*Text1), Numero(*Text2))) {
    case EsitoNuovo::Fatto:
      return accept();
    case EsitoNuovo::ColonneRifiutate:
      return ritenta(*Text1);
    case EsitoNuovo::RigheRifiutate:
      return ritenta(*Text2);
    default:
      return;
  }
}

// A click on a name is one on its picture.
bool FormNew::eventFilter(QObject* oggetto, QEvent* evento) {
  const auto nome = std::find(Label3.begin(), Label3.end(), oggetto);
  if (nome == Label3.end() || evento->type() != QEvent::MouseButtonRelease)
    return SceltaModello::eventFilter(oggetto, evento);
  const auto* mouse = static_cast<QMouseEvent*>(evento);
  if (mouse->button() != Qt::LeftButton || !(*nome)->rect().contains(mouse->pos())) return true;
  const auto n = nome - Label3.begin();
  if (Picture1[static_cast<std::size_t>(n)]->isEnabled()) Scegli(static_cast<int>(n));
  return true;
}

}  // namespace telarium
