#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QTreeWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/qt/qt_dialog.h"

// The lists by which a window goes through drives, folders and files.
namespace telarium {

/// The names of the files of a folder that match a pattern, case ignored, sorted by name; hidden
/// files are left out.
class ListaFile : public QListWidget {
 public:
  ListaFile(std::string modello, QWidget* genitore);

  /// Goes to a folder, or reads it again; nothing is selected.
  void Vai(const Percorso& cartella);
  const Percorso& Cartella() const { return cartella_; }

  /// Selects a file by its name, case ignored, if it is there.
  void Scegli(const Percorso& nome);
  /// The name of the selected file; none when nothing is selected.
  std::optional<Percorso> Scelto() const;

  /// What a file calls that gets selected, or is clicked while it is.
  void QuandoScelta(std::function<void(const Percorso&)> chiama) { scelta_ = std::move(chiama); }

 protected:
  void mousePressEvent(QMouseEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;

 private:
  void SegnalaScelta();

  std::string modello_;
  Percorso cartella_;
  std::vector<Percorso> nomi_;
  std::function<void(const Percorso&)> scelta_;
  bool appenaScelta_ = false;  // by the press that becomes a click
};

/// The folders from the root down to the current one, and those in it. Hidden ones show on the path
/// alone. A double click or Enter goes to a folder.
class AlberoCartelle : public QTreeWidget {
 public:
  explicit AlberoCartelle(QWidget* genitore);

  /// Makes a folder the current one. False, and nothing changes, when it cannot be read.
  [[nodiscard]] bool Vai(const Percorso& cartella);
  const Percorso& Cartella() const { return cartella_; }

  /// What a folder calls that the user has gone to.
  void QuandoCambia(std::function<void()> chiama) { cambia_ = std::move(chiama); }

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void drawBranches(QPainter*, const QRect&, const QModelIndex&) const override {}

 private:
  void ApriVoce(QTreeWidgetItem* voce);

  Percorso cartella_;
  std::function<void()> cambia_;
};

/// The mounted volumes, by the folders at which they begin.
class ListaUnita : public QComboBox {
 public:
  explicit ListaUnita(QWidget* genitore);

  /// Shows the volume on which a folder lies.
  void Mostra(const Percorso& cartella);
  Percorso Scelta() const;
};

/// A line of text for a file name. The text of a name cannot always hold its bytes: as long as
/// nobody changes it, the name that was put into it counts.
class CasellaDiNome : public CasellaDiTesto {
 public:
  using CasellaDiTesto::CasellaDiTesto;

  void Mostra(const Percorso& nome);
  Percorso Nome() const;

  /// Whether the text is still that of the name that was put into it.
  bool Immutata() const;

 private:
  Percorso mostrato_;
};

}  // namespace telarium
