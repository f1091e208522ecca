#pragma once

#include <QLabel>
#include <QPushButton>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "crossworddialogs/model_preview.h"
#include "crossworddialogs/new_crossword.h"
#include "crossworddialogs/windows/file_lists.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_dialog.h"

class QVBoxLayout;

namespace telarium {

/// The preview of one model: a picture that a click, Enter or the space bar picks. Without a model
/// it can't be picked.
class FiguraModello : public Tela {
 public:
  explicit FiguraModello(QWidget* genitore);

  void Piena(bool piena);
  void QuandoScelta(std::function<void()> chiama) { scelta_ = std::move(chiama); }

  /// Puts the picture where a pressed one is.
  void Premi();

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;

 private:
  std::function<void()> scelta_;
};

/// What FormNew and FormModels have in common: the previews of a model file, the choice of that
/// file, and a crossword that begins with one of its models.
class SceltaModello : public FinestraModale {
 public:
  QLabel* Label5;  // what to do
  ListaFile* File1;
  std::array<FiguraModello*, MaxModelli> Picture1;
  QPushButton* Command3d1;  // creates a grid without a model
  QPushButton* Command3d2;  // closes

  /// The model file whose previews show; empty until the window has opened.
  const Percorso& NomeModelli() const { return nomeModelli_; }

 protected:
  SceltaModello(const QString& nome, const QString& istruzione, QWidget* genitore);

  /// A picture with what belongs to it, for its place among the previews.
  virtual QVBoxLayout* PostoDi(int numero);
  /// Tells the name of a model, empty for none, beside its picture.
  virtual void MostraNome(int, const std::string&) {}
  /// Command3d1.
  virtual void Crea() = 0;

  void Scegli(int numero);
  /// Arranges the controls, those of `extra` between the previews and the buttons.
  void Disponi(QLayout* extra);
  void Attivata() override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  Percorso FileModelli() const;
  void MostraIModelli();
  void Ridisegna();

  Percorso nomeModelli_;
  std::vector<Modello> modelli_;  // that show now
};

}  // namespace telarium
