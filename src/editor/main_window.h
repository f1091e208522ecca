#pragma once

#include <optional>
#include <string_view>

#include "model/word_edit.h"
#include "platform/surface.h"

namespace telarium {

// The buttons of Toolbar1 count from 1, separators included.
inline constexpr int NumPulsanti = 22;
inline constexpr int PulsanteEdit = 21;

/// The program's own windows that a command opens modally.
enum class Modale {
  FormNew,
  FormModels,
  Form2,
  TelarSav,
  Settaggi,
  fONTEN,
  TelarBro,
  telariummdb,
  Form4,
  Form6,
  frmTip,
  Form3,
  StoriaDelleModifiche,
  LavoroNonSalvato
};

/// The word rectangle: place and size on the surface in pixels, and its colour.
struct Rettangolo {
  double sinistra, cima, larghezza, altezza;
  Colore colore;
};

/// What the editor needs of the main window beyond its drawing surface. Controls are meant by the
/// names they carry. This class itself stands for a program without a window: nothing happens.
class FinestraEditor {
 public:
  virtual ~FinestraEditor() = default;

  /// Heights of the bars that lie over the surface's top and bottom, in pixels.
  virtual double AltezzaToolbar1() const { return 0; }
  virtual double AltezzaStatusBar1() const { return 0; }

  virtual void Titolo(std::string_view) {}
  virtual void RinfrescaToolbar1() {}
  /// Brings what was drawn to the screen now, ahead of longer work.
  virtual void MostraSubito() {}

  /// Lays the word rectangle over the grid, or takes it away.
  virtual void MostraShape1(const Rettangolo&) {}
  virtual void NascondiShape1() {}

  /// The tip beside the pointer: gives it a text and returns the width it then has, puts its left
  /// top corner somewhere on the surface, takes it out of view.
  virtual double ScriviLabel1(std::string_view) { return 0; }
  virtual void CollocaLabel1(double, double) {}
  virtual void TogliLabel1() {}

  virtual void MostraCommand3d15(bool) {}
  virtual bool Command3d15Visibile() const { return false; }
  /// The caption of the hidden button of the import.
  virtual void ScriviCommand1(std::string_view) {}

  virtual void MostraPicture1(bool) {}
  virtual bool Picture1Visibile() const { return false; }

  /// Shows a window until it closes, and queues the activation that follows.
  virtual void MostraModale(Modale) {}
  /// Likewise the clue editor TelarDef, for a word. Gives the word and the clue that were accepted;
  /// none when the user gave up.
  virtual std::optional<ParolaDefinita> ModificaParola(const ParolaInEsame&) { return {}; }

  /// Toolbar buttons by number; PulsanteEdit is the one that stays pressed.
  virtual void AbilitaPulsante(int, bool) {}
  virtual void PremiEdit(bool) {}
  virtual bool EditPremuto() const { return false; }

  /// Menu entries by name.
  virtual void AbilitaVoce(std::string_view, bool) {}
  virtual void SpuntaVoce(std::string_view, bool) {}
  /// What an entry acts on, behind its caption; empty: only the caption.
  virtual void CompletaVoce(std::string_view, std::string_view) {}
  /// Pops a menu up at the pointer.
  virtual void ApriMenu(std::string_view) {}
  virtual void MettiGraficaAiMenu() {}
  /// The first three entries of the File menu get their bitmaps at the first activation.
  virtual void MettiGraficaAMenuFile() {}
  /// Puts the logo Picture2 at the right end of the toolbar.
  virtual void CollocaPicture2() {}
};

/// The window in use: the one that was set, else one that does nothing.
FinestraEditor& LaFinestra();

/// Sets the window; null takes it away. The caller keeps it alive.
void ImpostaFinestra(FinestraEditor* finestra);

}  // namespace telarium
