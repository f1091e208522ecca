#pragma once

#include <QAbstractTableModel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QStyledItemDelegate>

#include "clues/encyclopedia_rows.h"

namespace telarium {

/// The rows of the encyclopedia as a table: row r of it is the row at position r + 1. The last one
/// is for a new row. Only the current row can be set, and it is not stored here.
class ModelloRighe : public QAbstractTableModel {
 public:
  ModelloRighe(RigheEnciclopedia& righe, QObject* genitore);

  /// Shows the rows as they are now.
  void Allinea();

  int rowCount(const QModelIndex& genitore = {}) const override;
  int columnCount(const QModelIndex& genitore = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo) const override;
  QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;
  Qt::ItemFlags flags(const QModelIndex& indice) const override;
  bool setData(const QModelIndex& indice, const QVariant& valore, int ruolo) override;

 private:
  RigheEnciclopedia& righe_;
  int mostrate_ = 0;  // rows of the table
};

/// Shows as many lines of a cell as its row has room for, the last one with an ellipsis where more
/// follow. Edits a cell in its place, in a box of several lines: Ctrl+Enter begins a new line,
/// Enter confirms, Esc gives up. What was not touched is not set.
class EditorDiCelle : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// Ends the editing that is going on, if any; Tab goes on with the next cell.
  void Conferma(EndEditHint poi = NoHint);
  void Abbandona();

  QWidget* createEditor(QWidget* genitore, const QStyleOptionViewItem& opzioni,
                        const QModelIndex& indice) const override;
  void setEditorData(QWidget* editor, const QModelIndex& indice) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* modello,
                    const QModelIndex& indice) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& opzioni,
                            const QModelIndex& indice) const override;
  void destroyEditor(QWidget* editor, const QModelIndex& indice) const override;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void initStyleOption(QStyleOptionViewItem* opzioni, const QModelIndex& indice) const override;

 private:
  mutable QPointer<QPlainTextEdit> aperto_;
};

}  // namespace telarium
