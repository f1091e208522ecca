#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <memory>
#include <string>

#include "platform/files.h"
#include "platform/printer.h"

class QPagedPaintDevice;
class QPrinter;

namespace telarium {

/// Where the pages of a job go.
class Carta {
 public:
  virtual ~Carta() = default;
  virtual QPagedPaintDevice& Pagine() = 0;
  /// The pages are painted; or they are not wanted, which comes before the painting is ended.
  virtual void Concludi() {}
  virtual void Abbandona() {}
};

/// The paper of a printer, which outlives it; the file of the PDF printer, which is written whole
/// at the end, with the layout of that printer. A file that cannot be written shows a message and
/// leaves what was there.
std::unique_ptr<Carta> CartaDellaStampante(QPrinter& stampante);
std::unique_ptr<Carta> CartaPdf(const QPrinter& stampante);

/// Tells that the printer does not print.
void AvvisaStampaFallita();

/// The type that a job begins with.
struct TipoIniziale {
  std::string famiglia;
  bool corsivo;
  bool grassetto;
};

/// A print job that paints page by page in the resolution of its paper.
class LavoroQt : public LavoroDiStampa {
 public:
  LavoroQt(std::unique_ptr<Carta> carta, const TipoIniziale& tipo);
  ~LavoroQt() override;

  /// False when the paper takes no painting.
  bool Iniziato() const { return pittore_.isActive(); }

  void ScalaSuperficie(double larghezza, double altezza) override;
  void FineStampa() override;
  double LarghezzaSuperficie() const override { return larghezza_; }
  double AltezzaSuperficie() const override { return altezza_; }
  /// The paper of the current page, which is white: nothing to clear on a new one.
  void Pulisci() override {}
  void Sfondo(Colore) override {}
  Colore Sfondo() const override { return ColoreBianco; }
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
  bool NuovaPagina() override;

 private:
  // A font for the paper with its measures, in dots.
  struct Tipo {
    QFont font;
    QFontMetricsF misure;
  };

  const Tipo& TipoCorrente() const;
  QPointF SullaCarta(double x, double y) const;
  void Disegna(double x1, double y1, double x2, double y2, Colore colore, bool pieno);

  std::unique_ptr<Carta> carta_;
  QPainter pittore_;
  bool finito_ = false;
  double larghezza_ = 0;
  double altezza_ = 0;
  double puntiX_ = 1;  // dots to a unit
  double puntiY_ = 1;
  std::string famiglia_;
  double punti_ = 8.25;
  bool corsivo_;
  bool grassetto_;
  double x_ = 0;
  double y_ = 0;
  mutable std::unique_ptr<Tipo> tipo_;  // the current one, once it is looked up
};

}  // namespace telarium
