#include "auxiliary/windows/Form6.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "auxiliary/links.h"
#include "platform/codepage.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr int LarghezzaAvviso = 380;  // logical pixels

constexpr std::string_view Avviso =
    "Telarium e Ludarium richiedono l'utilizzo della tecnologia di accesso ai dati denominata ADO "
    "di Microsoft, questa tecnologia è già inserita in molti pacchetti Windows ma è possibile che "
    "il tuo sistema non sia ancora configurato bene. Se Telarium non funziona bene con l'accesso "
    "al database delle definizioni collegati ad Internet e clicca il link qua a fianco poi scarica "
    "la versione Italiana del pacchetto MDAC che consente l'accesso ai dati con tecnologia ADO, "
    "questo software ti potrà tornare utile anche per un sacco di altri applicativi e comunque ti "
    "permette di aggiornare il tuo sistema per l'accesso ai dati di Microsoft."_cp;

}  // namespace

Form6::Form6(QWidget* genitore)
    : FinestraModale(QStringLiteral("Form6"), QStringLiteral("Telarium - ADO Accesso ai dati"),
                     genitore) {
  Label1 = Chiamato(QStringLiteral("Label1"), new QLabel(AQt(Avviso), this));
  Label1->setTextFormat(Qt::PlainText);
  Label1->setWordWrap(true);
  Label1->setMinimumWidth(LarghezzaAvviso);
  Label1->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  Label2 =
      Chiamato(QStringLiteral("Label2"),
               new EtichettaCollegamento(AQt(ValoreIndirizzo(Indirizzo::PaginaAccessoDati)), this));
  Label2->QuandoPremuta([] { ApriPagina(Indirizzo::ScaricoAccessoDati); });
  Command1 = Chiamato(QStringLiteral("Command1"), new QPushButton(QStringLiteral("&Chiudi"), this));
  Command1->setDefault(true);
  connect(Command1, &QPushButton::clicked, this, [this] { reject(); });

  auto* accanto = new QVBoxLayout;
  accanto->addWidget(Label2);
  accanto->addStretch(1);
  accanto->addWidget(Command1, 0, Qt::AlignRight);
  auto* tutto = new QHBoxLayout(this);
  tutto->setContentsMargins(14, 14, 14, 14);
  tutto->setSpacing(20);
  tutto->addWidget(Label1, 1);
  tutto->addLayout(accanto);
  Command1->setFocus();
}

}  // namespace telarium
