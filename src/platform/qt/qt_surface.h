#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QSize>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/surface.h"

class QPainter;

namespace telarium {

/// A drawing surface over an off-screen image, in logical pixels; the image has the resolution of
/// the device. Calls are noted down and painted when the image is wanted: a fill, which redraws
/// thousands of times a second, so pays for the frames that are shown.
class SuperficieQt : public Superficie {
 public:
  SuperficieQt();
  ~SuperficieQt() override;

  /// Sets the size in logical pixels and how many device pixels one of them has. What was drawn
  /// stays at the left top; the rest has the colour of the ground.
  void Ridimensiona(QSize misura, double rapporto);
  /// What the first call that changes the picture calls, until it is copied again.
  void QuandoCambia(std::function<void()> chiama) { cambia_ = std::move(chiama); }

  /// The picture as it is now, in device pixels.
  const QImage& Immagine();
  /// Copies the picture to a widget's painter, pixel by pixel, from its left top corner.
  void Copia(QPainter& pittore);

  double LarghezzaSuperficie() const override { return misura_.width(); }
  double AltezzaSuperficie() const override { return misura_.height(); }
  void Pulisci() override;
  void Sfondo(Colore colore) override;
  Colore Sfondo() const override;
  void Riquadro(double x1, double y1, double x2, double y2, Colore colore) override;
  void RiquadroPieno(double x1, double y1, double x2, double y2, Colore colore) override;
  void Carattere(std::string_view nome) override;
  void CorpoCarattere(double punti) override;
  double CorpoCarattere() const override { return punti_; }
  void Grassetto(bool grassetto) override;
  bool Grassetto() const override { return grassetto_; }
  void Corsivo(bool corsivo) override;
  bool Corsivo() const override { return corsivo_; }
  double LarghezzaTesto(std::string_view testo) const override;
  double AltezzaTesto(std::string_view testo) const override;
  void Posizione(double x, double y) override;
  double PosizioneX() const override { return x_; }
  double PosizioneY() const override { return y_; }
  void Scrivi(std::string_view testo) override;
  /// In device pixels, 24 bits each.
  std::string Bitmap(const std::optional<Zona>& parte) override;
  void DisegnoPersistente(bool persistente) override;

 private:
  struct Tipo;     // a type with its measures
  struct Disegno;  // one noted call

  const Tipo& TipoCorrente() const;
  void Annota(const Disegno& disegno);
  void Segnala();
  QImage& Corrente() { return schermo_ ? *schermo_ : persistente_; }
  void Dipingi();
  void DipingiRiquadro(QPainter& pittore, const Disegno& disegno) const;
  void DipingiTesto(QPainter& pittore, const Disegno& disegno) const;
  QImage NuovaImmagine() const;
  QImage Adattata(const QImage& vecchia) const;

  QSize misura_;
  double rapporto_ = 1;
  QColor sfondo_ = Qt::lightGray;
  QImage persistente_;
  std::optional<QImage> schermo_;  // while drawing goes to the screen alone

  std::string famiglia_{CarattereIniziale};
  double punti_ = 8.25;
  bool grassetto_ = false;
  bool corsivo_ = false;
  double x_ = 0;
  double y_ = 0;
  mutable std::vector<std::unique_ptr<Tipo>> tipi_;
  mutable const Tipo* tipo_ = nullptr;  // the current one, once it is looked up

  bool daPulire_ = false;  // before the noted calls
  std::vector<Disegno> disegni_;
  std::string testi_;  // of the noted calls, one behind the other
  std::function<void()> cambia_;
  bool segnalato_ = false;
};

}  // namespace telarium
