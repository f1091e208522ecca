#include "clues/windows/frmParole.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/platform.h"

namespace telarium {
namespace {

constexpr QSize MisuraIniziale(820, 600);  // logical pixels
constexpr int RigheDiTesto = 3;            // in a row of the table
constexpr int DecimiParola = 2;            // of the width, for the words
constexpr int SpazioSottoLaTabella = 2;    // pixels

}  // namespace

frmParole::frmParole(QWidget* genitore)
    : FinestraEnciclopedia(QStringLiteral("frmParole"),
                           QStringLiteral("Telarium - Enciclopedia definizioni (Tabella) "),
                           QStringLiteral("Usare Ctrl+Invio per separare le definizioni"),
                           genitore) {
  CreaTabella();
  Disponi();
  Carica();
  connect(grdDataGrid->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& corrente) {
            if (!mostrando_ && corrente.isValid()) CambiataRiga(corrente.row());
          });
}

// The table asks for rows to its end, and they go before what belongs to the window.
frmParole::~frmParole() {
  delete grdDataGrid;
}

void frmParole::CreaTabella() {
  grdDataGrid = Chiamato(QStringLiteral("grdDataGrid"), new QTableView(this));
  modello_ = new ModelloRighe(adoPrimaryRS, this);
  editor_ = new EditorDiCelle(this);
  QHeaderView& righe = *grdDataGrid->verticalHeader();
  righe.setSectionResizeMode(QHeaderView::Fixed);
  righe.setDefaultSectionSize(RigheDiTesto * fontMetrics().lineSpacing() + 1);
  righe.setDefaultAlignment(Qt::AlignTop | Qt::AlignLeft);
  QHeaderView& colonne = *grdDataGrid->horizontalHeader();
  colonne.setStretchLastSection(true);
  colonne.setSectionsClickable(false);
  colonne.setHighlightSections(false);
  grdDataGrid->setModel(modello_);
  grdDataGrid->setItemDelegate(editor_);
  grdDataGrid->setSelectionMode(QAbstractItemView::SingleSelection);
  grdDataGrid->setTabKeyNavigation(false);  // Tab leads to the buttons
  grdDataGrid->setEditTriggers(
      QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
      QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
}

void frmParole::Disponi() {
  auto* bottoni = static_cast<QBoxLayout*>(picButtons->layout());
  bottoni->setStretch(bottoni->count() - 1, 0);  // the note takes the room that is left
  bottoni->addWidget(Label1, 1);
  Label1->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setSpacing(0);
  tutto->addWidget(grdDataGrid, 1);
  tutto->addSpacing(SpazioSottoLaTabella);
  tutto->addWidget(picButtons);
  tutto->addWidget(picStatBox);
  setTabOrder(grdDataGrid, cmdUpdate);
  grdDataGrid->setFocus();
  resize(MisuraIniziale);
}

void frmParole::showEvent(QShowEvent* evento) {
  FinestraEnciclopedia::showEvent(evento);
  if (evento->spontaneous()) return;
  const int larghezza = grdDataGrid->viewport()->width();
  grdDataGrid->setColumnWidth(0, larghezza * DecimiParola / 10);
  grdDataGrid->setColumnWidth(1, larghezza * (10 - DecimiParola) / 20);
}

void frmParole::MostraRiga() {
  const QScopedValueRollback segue(mostrando_, true);
  modello_->Allinea();
  Seleziona(adoPrimaryRS.Posizione() - 1, std::max(grdDataGrid->currentIndex().column(), 0));
  // What cannot be read of it is an error here; the table only leaves it out.
  adoPrimaryRS.Testo(CampoParole::Facili);
}

void frmParole::Seleziona(int riga, int colonna) {
  grdDataGrid->setCurrentIndex(modello_->index(riga, colonna));
}

// The user has gone to another row in the table itself.
void frmParole::CambiataRiga(int riga) {
  try {
    if (riga < adoPrimaryRS.NumeroRighe()) {
      adoPrimaryRS.VaiA(riga + 1);
    } else {
      adoPrimaryRS.Nuova();
    }
    adoPrimaryRS_MoveComplete();
  } catch (const ErroreEnciclopedia& errore) {
    // Behind the click or key that led there, which a message would cut in two.
    QTimer::singleShot(0, this, [this, descrizione = errore.Descrizione()] {
      {
        const QScopedValueRollback segue(mostrando_, true);
        Seleziona(adoPrimaryRS.Posizione() - 1, grdDataGrid->currentIndex().column());
      }
      Avvisa(descrizione);
    });
  }
}

void frmParole::Aggiungi() {
  InBottone([this] {
    adoPrimaryRS.Ultimo();
    adoPrimaryRS.Nuova();
    adoPrimaryRS_MoveComplete();
    const QScopedValueRollback segue(mostrando_, true);
    Seleziona(adoPrimaryRS.Posizione() - 1, 0);
    grdDataGrid->setFocus();
  });
}

bool frmParole::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == grdDataGrid && evento->type() == QEvent::KeyPress) {
    if (Invio(static_cast<const QKeyEvent&>(*evento)) && grdDataGrid->currentIndex().isValid()) {
      grdDataGrid->edit(grdDataGrid->currentIndex());
      return true;
    }
  }
  return FinestraEnciclopedia::eventFilter(oggetto, evento);
}

}  // namespace telarium
