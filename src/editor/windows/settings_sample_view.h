#pragma once

#include <QFrame>
#include <QLabel>
#include <array>

#include "editor/settings_sample.h"

namespace telarium {

/// The settings that a sample shows, in the units of the settings file.
struct ValoriDelCampione {
  int percentualeRiquadro = 0;
  int altezzaNumeri = 0;
  int altezzaCaratteri = 0;
  int distanzaDaSpigolo = 0;
  int distanzaDaCentro = 0;
  int spessoreBordo = 0;
};

/// A small grid made of controls, the right top corner of a crossword: what settings would do to
/// the real one.
class CampioneSchema : public QWidget {
 public:
  /// Cells are that many logical pixels wide; letters and numbers have that typeface.
  CampioneSchema(int latoInPixel, const QString& carattere, QWidget* genitore);

  /// Around the cells, for the frame and for letters that overfill them; logical pixels.
  static constexpr int Margine = 16;

  std::array<QFrame*, ColonneDelCampione> Shape1;  // the first row
  std::array<QLabel*, ColonneDelCampione> Label1;  // its letters
  std::array<QLabel*, ColonneDelCampione> Label3;  // its numbers
  QFrame *Shape2, *Shape4, *Shape5, *Shape6, *Shape7, *Shape8;
  QFrame *Shape12, *Shape13, *Shape14, *Shape15;
  QFrame *Shape10, *Shape11;  // the black squares, inside of Shape8 and Shape7
  QFrame *Line5, *Line6;      // the frame: above the cells, and to the right of them

  void Mostra(const ValoriDelCampione& valori);

  /// Where the writing of a letter or number is seen, without the room around it.
  static QRect Inchiostro(const QLabel& etichetta);

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  void CreaCaselle();
  void CreaScritte(const QString& carattere);
  void MostraCornice(int spessore);
  QRect AreaDelleCelle() const;
  QPoint InPixel(const PuntoInTwip& punto) const;
  QRect InPixel(const RettangoloInTwip& rettangolo) const;

  double lato_;  // twips
};

/// A thin line that leads from a control to the part of a picture that it changes; the mouse passes
/// through.
class LineaGuida : public QWidget {
 public:
  explicit LineaGuida(QWidget* genitore);

  /// Draws it, upright or level, between two points of its parent; with a mark at the end.
  void Traccia(QPoint inizio, QPoint fine, bool conPunta);

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  QPointF inizio_, fine_;  // in its own coordinates
  bool conPunta_ = false;
};

}  // namespace telarium
