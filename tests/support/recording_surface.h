#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/printer.h"

namespace telarium {

/// A surface that draws nothing and records each call as one line, numbers in their shortest form
/// ("RiquadroPieno 10 10 20 20 16777215"). A character is as wide as half the type size and as high
/// as the type size.
template <class Surface>
class Recording : public Surface {
 public:
  double width = 1000;
  double height = 700;
  std::vector<std::string> calls;
  Colore ground = 0xC0C0C0;
  std::string bitmap = "bitmap";

  double LarghezzaSuperficie() const override { return width; }
  double AltezzaSuperficie() const override { return height; }
  void Pulisci() override;
  void Sfondo(Colore colore) override { ground = colore; }
  Colore Sfondo() const override { return ground; }
  std::string Bitmap(const std::optional<Zona>&) override { return bitmap; }
  void Riquadro(double x1, double y1, double x2, double y2, Colore colore) override;
  void RiquadroPieno(double x1, double y1, double x2, double y2, Colore colore) override;
  void Carattere(std::string_view nome) override;
  void CorpoCarattere(double punti) override;
  double CorpoCarattere() const override { return size_; }
  void Grassetto(bool grassetto) override;
  bool Grassetto() const override { return bold_; }
  void Corsivo(bool corsivo) override;
  bool Corsivo() const override { return italic_; }
  double LarghezzaTesto(std::string_view testo) const override;
  double AltezzaTesto(std::string_view testo) const override;
  void Posizione(double x, double y) override;
  double PosizioneX() const override { return x_; }
  double PosizioneY() const override { return y_; }
  void Scrivi(std::string_view testo) override;
  void DisegnoPersistente(bool persistente) override;

 private:
  double size_ = 8.25;
  bool bold_ = false;
  bool italic_ = false;
  double x_ = 0;
  double y_ = 0;
};

using RecordingSurface = Recording<Superficie>;

/// A print job that records: besides the calls of a surface "ScalaSuperficie 1000 1422",
/// "NuovaPagina" and "FineStampa". Its calls outlive it in the list that it is given.
class RecordingJob : public Recording<LavoroDiStampa> {
 public:
  explicit RecordingJob(std::vector<std::string>& kept) : kept_(kept) {}
  ~RecordingJob() override { kept_ = std::move(calls); }

  void ScalaSuperficie(double larghezza, double altezza) override;
  bool NuovaPagina() override;
  void FineStampa() override { calls.push_back("FineStampa"); }

 private:
  std::vector<std::string>& kept_;
};

}  // namespace telarium
