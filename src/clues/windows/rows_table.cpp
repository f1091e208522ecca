#include "clues/windows/rows_table.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTextLayout>
#include <QTimer>

#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/qt/qt_dialog.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr qsizetype MaxCaratteriMostrati = 1000;  // a family can have any length
constexpr int RigheEditor = 5;                    // lines of text, at least
constexpr int ColonnaParola = 0;

void AvvisaCaratteriSostituiti() {
  Avvisa("I caratteri che l'enciclopedia non può contenere sono diventati \"?\"."_cp);
}

CampoParole CampoDellaColonna(int colonna) {
  return CampiParole.at(static_cast<std::size_t>(colonna));
}

// As much of a text as so many lines of a width take, wrapped at its words. The mark that more
// follows is ours: Qt leaves lines out without one where the rest would fit beside the last line.
QString InRighe(const QString& testo, const QFont& carattere, int larghezza, int righe) {
  QTextLayout disposizione(testo, carattere);
  disposizione.setTextOption(QTextOption(Qt::AlignLeft));
  disposizione.beginLayout();
  QTextLine ultima;
  for (int riga = 0; riga < righe; ++riga) {
    const QTextLine altra = disposizione.createLine();
    if (!altra.isValid()) return testo;
    ultima = altra;
    ultima.setLineWidth(larghezza);
  }
  const bool altre = ultima.isValid() && disposizione.createLine().isValid();
  disposizione.endLayout();
  if (!altre) return testo;
  const QString fine = testo.mid(ultima.textStart(), ultima.textLength()).trimmed();
  return testo.left(ultima.textStart()) +
         QFontMetrics(carattere).elidedText(fine + u'\u2026', Qt::ElideRight, larghezza);
}

QString InRigheQt(const std::string& testo) {
  return AQt(testo).replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

}  // namespace

ModelloRighe::ModelloRighe(RigheEnciclopedia& righe, QObject* genitore)
    : QAbstractTableModel(genitore), righe_(righe) {}

// A row has no identity in the table but its position, so that rows come and go at the end.
void ModelloRighe::Allinea() {
  const int adesso = righe_.Aperta() ? righe_.NumeroRighe() + 1 : 0;
  if (adesso > mostrate_) {
    beginInsertRows({}, mostrate_, adesso - 1);
    mostrate_ = adesso;
    endInsertRows();
  } else if (adesso < mostrate_) {
    beginRemoveRows({}, adesso, mostrate_ - 1);
    mostrate_ = adesso;
    endRemoveRows();
  }
  if (mostrate_ == 0) return;
  emit dataChanged(index(0, 0), index(mostrate_ - 1, columnCount() - 1));
  emit headerDataChanged(Qt::Vertical, 0, mostrate_ - 1);
}

int ModelloRighe::rowCount(const QModelIndex& genitore) const {
  return genitore.isValid() ? 0 : mostrate_;
}

int ModelloRighe::columnCount(const QModelIndex& genitore) const {
  return genitore.isValid() ? 0 : static_cast<int>(CampiParole.size());
}

QVariant ModelloRighe::data(const QModelIndex& indice, int ruolo) const {
  if (ruolo != Qt::DisplayRole && ruolo != Qt::EditRole && ruolo != Qt::ToolTipRole) return {};
  const CampoParole campo = CampoDellaColonna(indice.column());
  try {
    const std::string testo = righe_.Testo(indice.row() + 1, campo);
    if (ruolo == Qt::EditRole) return InRigheQt(testo);
    const QString mostrato =
        InRigheQt(testo.substr(0, static_cast<std::size_t>(MaxCaratteriMostrati)));
    if (ruolo == Qt::DisplayRole) return mostrato;
    return ComeSuggerimento(mostrato);
  } catch (const ErroreEnciclopedia&) {
    return {};  // no moment for a message; it comes when the row becomes the current one
  }
}

QVariant ModelloRighe::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  if (ruolo != Qt::DisplayRole) return {};
  if (verso == Qt::Vertical)
    return sezione < righe_.NumeroRighe() ? QString::number(sezione + 1) : QStringLiteral("*");
  static const std::array titoli = {QStringLiteral("PAROLA"), QStringLiteral("DEFINIZ_FACILE"),
                                    QStringLiteral("DEFINIZ_DIFFIC")};
  return titoli.at(static_cast<std::size_t>(sezione));
}

Qt::ItemFlags ModelloRighe::flags(const QModelIndex& indice) const {
  return QAbstractTableModel::flags(indice) | Qt::ItemIsEditable;
}

bool ModelloRighe::setData(const QModelIndex& indice, const QVariant& valore, int ruolo) {
  if (ruolo != Qt::EditRole || indice.row() + 1 != righe_.Posizione()) return false;
  righe_.Imposta(CampoDellaColonna(indice.column()), DaQt(valore.toString()));
  emit dataChanged(indice, indice);
  return true;
}

void EditorDiCelle::Conferma(EndEditHint poi) {
  if (!aperto_) return;
  emit commitData(aperto_);
  emit closeEditor(aperto_, poi);
}

void EditorDiCelle::Abbandona() {
  if (aperto_) emit closeEditor(aperto_);
}

// Without the cell's text, which could not be read, there is nothing to edit.
QWidget* EditorDiCelle::createEditor(QWidget* genitore, const QStyleOptionViewItem&,
                                     const QModelIndex& indice) const {
  if (!indice.data(Qt::EditRole).isValid()) return nullptr;
  aperto_ = new QPlainTextEdit(genitore);
  aperto_->setObjectName(u"Editor");
  aperto_->setFrameStyle(QFrame::Box | QFrame::Plain);
  return aperto_;
}

// A family stands before the pointer and is not selected: the first key must not cost it. A word
// does not grow by what is typed, it is replaced.
void EditorDiCelle::setEditorData(QWidget* editor, const QModelIndex& indice) const {
  auto& casella = static_cast<QPlainTextEdit&>(*editor);
  if (casella.document()->isModified()) return;  // the cell was only shown again
  Mostra(casella, indice.data(Qt::EditRole).toString());
  if (indice.column() == ColonnaParola) {
    casella.selectAll();
  } else {
    casella.moveCursor(QTextCursor::End);
  }
}

void EditorDiCelle::setModelData(QWidget* editor, QAbstractItemModel* modello,
                                 const QModelIndex& indice) const {
  const auto& casella = static_cast<const QPlainTextEdit&>(*editor);
  if (!casella.document()->isModified()) return;
  const QString testo = TestoDi(casella);
  modello->setData(indice, testo, Qt::EditRole);
  // Behind what ends the editing, which a message would cut in two.
  if (!DaQtEsatto(testo)) QTimer::singleShot(0, modello, AvvisaCaratteriSostituiti);
}

// Over the cell, larger than it where it is low, within the table.
void EditorDiCelle::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& opzioni,
                                         const QModelIndex& indice) const {
  QRect dove = opzioni.rect;
  const int altezza = RigheEditor * editor->fontMetrics().lineSpacing() + 2 * 8;
  if (indice.column() != ColonnaParola) dove.setHeight(std::max(dove.height(), altezza));
  const int sporge = dove.bottom() - editor->parentWidget()->rect().bottom();
  if (sporge > 0) dove.translate(0, -sporge);
  editor->setGeometry(dove);
}

// A box of several lines would take all of these for itself.
bool EditorDiCelle::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress || oggetto != aperto_)
    return QStyledItemDelegate::eventFilter(oggetto, evento);
  const auto& tasto = static_cast<const QKeyEvent&>(*evento);
  switch (tasto.key()) {
    case Qt::Key_Tab:
      Conferma(EditNextItem);
      return true;
    case Qt::Key_Backtab:
      Conferma(EditPreviousItem);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (tasto.modifiers() & Qt::ControlModifier) {
        aperto_->insertPlainText(QStringLiteral("\n"));
      } else {
        Conferma();
      }
      return true;
    default:
      return QStyledItemDelegate::eventFilter(oggetto, evento);
  }
}

void EditorDiCelle::destroyEditor(QWidget* editor, const QModelIndex& indice) const {
  aperto_.clear();
  QStyledItemDelegate::destroyEditor(editor, indice);
}

void EditorDiCelle::initStyleOption(QStyleOptionViewItem* opzioni,
                                    const QModelIndex& indice) const {
  QStyledItemDelegate::initStyleOption(opzioni, indice);
  opzioni->displayAlignment = Qt::AlignLeft | Qt::AlignTop;
  const QStyle& stile = *(opzioni->widget ? opzioni->widget->style() : QApplication::style());
  const int margine = stile.pixelMetric(QStyle::PM_FocusFrameHMargin, opzioni, opzioni->widget) + 1;
  opzioni->text = InRighe(opzioni->text, opzioni->font, opzioni->rect.width() - 2 * margine,
                          opzioni->rect.height() / opzioni->fontMetrics.lineSpacing());
}

}  // namespace telarium
