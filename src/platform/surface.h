#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace telarium {

/// A 24-bit colour value with red in the low byte.
using Colore = std::int32_t;

inline constexpr Colore ColoreNero = 0x000000;
inline constexpr Colore ColoreBianco = 0xFFFFFF;
inline constexpr Colore ColoreBlu = 0x800000;  // 1 and 14 of the 16-colour palette
inline constexpr Colore ColoreGiallo = 0x00FFFF;
inline constexpr Colore NessunColore = -1;

/// The typeface until another one is chosen; every machine has one of its metrics.
inline constexpr std::string_view CarattereIniziale = "Arial";

/// A part of a surface, in its units.
struct Zona {
  double sinistra, cima, larghezza, altezza;
};

/// What the core draws on: the main window, the printer, a picture, a recorder in tests.
/// Coordinates and text measures are in the surface's own units, pixels on a window; type sizes are
/// in points.
class Superficie {
 public:
  virtual ~Superficie() = default;

  virtual double LarghezzaSuperficie() const = 0;
  virtual double AltezzaSuperficie() const = 0;
  /// Paints all of it in the colour of its ground.
  virtual void Pulisci() = 0;
  virtual void Sfondo(Colore colore) = 0;
  virtual Colore Sfondo() const = 0;

  /// The outline of a rectangle, and a filled one with an outline in the same colour. Both corners
  /// belong to it.
  virtual void Riquadro(double x1, double y1, double x2, double y2, Colore colore) = 0;
  virtual void RiquadroPieno(double x1, double y1, double x2, double y2, Colore colore) = 0;

  /// Typeface by name, size in points, bold, italic: they hold for measures and texts until set
  /// again.
  virtual void Carattere(std::string_view nome) = 0;
  virtual void CorpoCarattere(double punti) = 0;
  virtual double CorpoCarattere() const = 0;
  virtual void Grassetto(bool grassetto) = 0;
  virtual bool Grassetto() const = 0;
  virtual void Corsivo(bool corsivo) = 0;
  virtual bool Corsivo() const = 0;

  /// Extent of a text in the current type.
  virtual double LarghezzaTesto(std::string_view testo) const = 0;
  virtual double AltezzaTesto(std::string_view testo) const = 0;

  /// The left top corner of the next text.
  virtual void Posizione(double x, double y) = 0;
  virtual double PosizioneX() const = 0;
  virtual double PosizioneY() const = 0;

  /// Writes a text in black from the current position, which moves to the end of it.
  virtual void Scrivi(std::string_view testo) = 0;

  /// Ends the line of text: the next one begins at 0, below.
  void ACapo() { Posizione(0, PosizioneY() + AltezzaTesto({})); }
  void ScriviRiga(std::string_view testo) {
    Scrivi(testo);
    ACapo();
  }

  /// Begins another page of the same size, blank. False on a surface that is all there is.
  virtual bool NuovaPagina() { return false; }

  /// The picture, or a part of it as far as it lies on the surface, in its real size, as the bytes
  /// of a Windows bitmap file; empty on a surface that keeps none.
  virtual std::string Bitmap([[maybe_unused]] const std::optional<Zona>& parte) { return {}; }

  /// Whether what is drawn stays on the surface, or is put on the screen alone, at once. Only a
  /// window tells the two apart.
  virtual void DisegnoPersistente([[maybe_unused]] bool persistente) {}
};

}  // namespace telarium
