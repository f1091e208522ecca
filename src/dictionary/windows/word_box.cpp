#include "dictionary/windows/word_box.h"

#include <QAbstractListModel>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

#include "dictionary/sorted_words.h"
#include "platform/codepage.h"
#include "platform/qt/qt_dialog.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/word_line.h"

namespace telarium {
namespace {

constexpr int RigheVisibili = 3;                 // of the list, at the least
constexpr qsizetype MaxCaratteriMostrati = 100;  // of a line that was imported; all of it is kept

int NumeroDi(std::size_t posto) {
  return static_cast<int>(posto);
}

}  // namespace

/// The words of a list, which only this model changes.
class ModelloDiParole : public QAbstractListModel {
 public:
  ModelloDiParole(std::vector<std::string>& parole, QObject* genitore)
      : QAbstractListModel(genitore), parole_(parole) {}

  int rowCount(const QModelIndex& genitore) const override {
    return genitore.isValid() ? 0 : NumeroDi(parole_.size());
  }

  // A view asks for every row at each change, so this must be quicker than Qt's own.
  QModelIndex index(int riga, int colonna, const QModelIndex& genitore) const override {
    const bool presente = riga >= 0 && static_cast<std::size_t>(riga) < parole_.size();
    return presente && colonna == 0 && !genitore.isValid() ? createIndex(riga, 0) : QModelIndex();
  }

  QVariant data(const QModelIndex& voce, int ruolo) const override {
    if (!voce.isValid() || ruolo != Qt::DisplayRole) return {};
    return AQt(parole_[static_cast<std::size_t>(voce.row())]).left(MaxCaratteriMostrati);
  }

  void Svuota() {
    beginResetModel();
    parole_.clear();
    endResetModel();
  }

  void Aggiungi(std::vector<std::string> parole) {
    beginResetModel();
    InserisciParole(parole_, std::move(parole));
    endResetModel();
  }

  QModelIndex Aggiungi(const std::string& parola) {
    const int posto = NumeroDi(PostoPerParola(parole_, parola));
    beginInsertRows({}, posto, posto);
    parole_.insert(parole_.begin() + posto, parola);
    endInsertRows();
    return createIndex(posto, 0);
  }

  void Togli(std::size_t posto) {
    beginRemoveRows({}, NumeroDi(posto), NumeroDi(posto));
    parole_.erase(parole_.begin() + NumeroDi(posto));
    endRemoveRows();
  }

 private:
  std::vector<std::string>& parole_;
};

ElencoDiParole::ElencoDiParole(const QString& nome, std::vector<std::string>& parole,
                               QWidget* genitore)
    : QWidget(genitore), parole_(parole) {
  setObjectName(nome);
  Testo = Chiamato(nome + QStringLiteral("_testo"), new CasellaMaiuscola(this));
  Elenco = Chiamato(nome + QStringLiteral("_elenco"), new QListView(this));
  modello_ = new ModelloDiParole(parole_, this);
  Elenco->setModel(modello_);
  Elenco->setUniformItemSizes(true);
  Elenco->setEditTriggers(QAbstractItemView::NoEditTriggers);
  Elenco->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  Elenco->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  const QFont fisso = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  Testo->setFont(fisso);
  Elenco->setFont(fisso);
  Elenco->setMinimumSize(1,
                         RigheVisibili * Elenco->fontMetrics().height() + 2 * Elenco->frameWidth());
  setFocusProxy(Testo);

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins({});
  tutto->setSpacing(1);
  tutto->addWidget(Testo);
  tutto->addWidget(Elenco, 1);

  connect(Testo, &QLineEdit::textEdited, this, [this] { CercaScritta(); });
  connect(Elenco->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& voce) { MostraScelta(voce); });
  for (QObject* osservato : {static_cast<QObject*>(Testo), static_cast<QObject*>(Elenco),
                             static_cast<QObject*>(Elenco->viewport())}) {
    osservato->installEventFilter(this);
  }
}

void ElencoDiParole::Svuota() {
  modello_->Svuota();
  Testo->clear();
}

void ElencoDiParole::Aggiungi(std::vector<std::string> parole) {
  modello_->Aggiungi(std::move(parole));
}

void ElencoDiParole::Aggiungi(const std::string& parola) {
  Elenco->scrollTo(modello_->Aggiungi(parola));
}

void ElencoDiParole::Togli(std::size_t posto) {
  // Otherwise the next word would be selected, and with another Enter be gone.
  Lascia();
  modello_->Togli(posto);
  Testo->clear();
}

void ElencoDiParole::Scrivi(std::string_view testo) {
  Testo->setText(AQt(testo));
}

std::optional<std::size_t> ElencoDiParole::Scelta() const {
  const QModelIndexList scelte = Elenco->selectionModel()->selectedIndexes();
  if (scelte.isEmpty()) return std::nullopt;
  return static_cast<std::size_t>(scelte.first().row());
}

int ElencoDiParole::LarghezzaPer(int lettere) const {
  constexpr int Margine = 8;  // on both sides of a word, together
  return lettere * Elenco->fontMetrics().averageCharWidth() + Margine + 2 * Elenco->frameWidth() +
         Elenco->verticalScrollBar()->sizeHint().width();
}

std::size_t ElencoDiParole::PostoDellaScritta() const {
  return PrimoPostoDa(parole_, DaQt(Testo->text()));
}

void ElencoDiParole::CercaScritta() {
  const std::string scritto = DaQt(Testo->text());
  const std::size_t posto = PostoDellaScritta();
  if (posto == parole_.size() || scritto.empty()) return Lascia();
  const QModelIndex voce = modello_->index(NumeroDi(posto), 0, {});
  if (Maiuscole(parole_[posto]) == Maiuscole(scritto)) {
    Elenco->setCurrentIndex(voce);
  } else {
    Lascia();
  }
  Elenco->scrollTo(voce, QAbstractItemView::PositionAtTop);
}

void ElencoDiParole::MostraScelta(const QModelIndex& voce) {
  if (voce.isValid() && !Testo->hasFocus()) Testo->setText(voce.data().toString());
}

void ElencoDiParole::Lascia() {
  Elenco->selectionModel()->clear();
}

// To the word that the typed letters lead to; from a selected one as in the list itself.
bool ElencoDiParole::EntraInElenco(QKeyEvent& tasto) {
  constexpr int tasti[] = {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp};
  const bool entra = std::find(std::begin(tasti), std::end(tasti), tasto.key()) != std::end(tasti);
  if (!entra || parole_.empty()) return false;
  const bool scelta = Scelta().has_value();
  const std::size_t posto = std::min(PostoDellaScritta(), parole_.size() - 1);
  Elenco->setFocus();
  if (scelta) {
    QCoreApplication::sendEvent(Elenco, &tasto);
    return true;
  }
  Elenco->setCurrentIndex(modello_->index(NumeroDi(posto), 0, {}));
  return true;
}

bool ElencoDiParole::eventFilter(QObject* oggetto, QEvent* evento) {
  switch (evento->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::FocusOut:
      if (toccato_) toccato_();
      break;
    default:
      break;
  }
  if (oggetto == Testo && evento->type() == QEvent::KeyPress &&
      EntraInElenco(static_cast<QKeyEvent&>(*evento))) {
    return true;
  }
  return QWidget::eventFilter(oggetto, evento);
}

}  // namespace telarium
