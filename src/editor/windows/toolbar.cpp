#include "editor/windows/toolbar.h"

#include <QMouseEvent>
#include <QToolButton>

#include "editor/windows/pictures.h"
#include "platform/check.h"
#include "platform/qt/qt_text.h"
#include "platform/user.h"

namespace telarium {
namespace {

struct DatiPulsante {
  const char* chiave;  // empty: a separator
  std::string_view suggerimento;
  const char* immagine;
};

constexpr DatiPulsante pulsanti[NumPulsanti] = {
    {"Nuovo", "Nuovo cruciverba", "new"},
    {"Apri", "Apri cruciverba", "open"},
    {},
    {"Salva", "Salva cruciverba", "save"},
    {},
    {"Stampa", "Stampa cruciverba", "print"},
    {"Anteprima", "Anteprima di stampa", "preview"},
    {"HTML", "Anteprima HTML nel browser", "html_menu"},
    {},
    {"CambiaFont", "Cambia carattere", "font"},
    {"AggColonna", "Aggiungi colonna", "add_column"},
    {"TogliColonna", "Togli colonna", "remove_column"},
    {"AggRiga", "Aggiungi riga", "add_row"},
    {"TogliRiga", "Togli riga", "remove_row"},
    {},
    {"CasBianca", "Mette casella bianca", "white_cell"},
    {"CasNera", "Mette casella nera", "black_cell"},
    {},
    {"Tabella", "Vista tabellare", "table"},
    {"Estrazione", "Estrazione automatica", "extract"},
    {"Edit", "Edit definizioni", "edit"},
    {"Compila", "Prende le definizioni dall'enciclopedia", "compile_menu"},
};

constexpr int PulsanteCasBianca = 16;
constexpr int PulsanteCasNera = 17;
constexpr int LatoImmagine = 24;  // logical pixels

}  // namespace

BarraStrumenti::BarraStrumenti(QWidget* genitore) : QToolBar(genitore) {
  setObjectName(u"Toolbar1");
  setIconSize({LatoImmagine, LatoImmagine});
  setMovable(false);
  setAutoFillBackground(true);
  setMouseTracking(true);
  setAttribute(Qt::WA_NoMousePropagation);  // between the buttons it is no part of the grid
  for (int i = 0; i < NumPulsanti; ++i) {
    const DatiPulsante& dato = pulsanti[i];
    if (!dato.chiave) {
      pulsanti_[static_cast<std::size_t>(i)] = addSeparator();
      continue;
    }
    QAction* azione = addAction(Immagine(dato.immagine), AQt(dato.suggerimento));
    azione->setObjectName(QLatin1StringView(dato.chiave));
    pulsanti_[static_cast<std::size_t>(i)] = azione;
    widgetForAction(azione)->setMouseTracking(true);
    widgetForAction(azione)->setFocusPolicy(Qt::NoFocus);
  }
  for (const int numero : {PulsanteCasBianca, PulsanteCasNera, PulsanteEdit})
    Pulsante(numero).setCheckable(true);
}

QAction& BarraStrumenti::Pulsante(int numero) const {
  Verifica(numero >= 1 && numero <= NumPulsanti, "Toolbar1 ha i pulsanti da 1 a 22");
  return *pulsanti_[static_cast<std::size_t>(numero) - 1];
}

void BarraStrumenti::MostraStrumento(Strumento strumento) {
  Pulsante(PulsanteCasBianca).setChecked(strumento == Strumento::CasellaBianca);
  Pulsante(PulsanteCasNera).setChecked(strumento == Strumento::CasellaNera);
}

QPoint BarraStrumenti::SottoIlPulsante(int numero) const {
  const QWidget* pulsante = widgetForAction(&Pulsante(numero));
  return pulsante->mapToGlobal(QPoint(0, pulsante->height()));
}

// The movement ends here: it is none over the surface below.
void BarraStrumenti::mouseMoveEvent(QMouseEvent*) {
  if (passaIlMouse_) passaIlMouse_();
}

}  // namespace telarium
