#pragma once

#include "platform/printer.h"
#include "platform/surface.h"

namespace telarium {

/// The system's printers and its PDF printer, which is always there: the type that they print with.
class StampanteQt : public Stampante {
 public:
  bool Carattere(std::string_view nome) override;
  const std::string& Carattere() const override { return famiglia_; }
  void Corsivo(bool corsivo) override { corsivo_ = corsivo; }
  bool Corsivo() const override { return corsivo_; }
  void Grassetto(bool grassetto) override { grassetto_ = grassetto; }
  bool Grassetto() const override { return grassetto_; }
  std::unique_ptr<LavoroDiStampa> IniziaLavoro(const std::string& nome) override;

 private:
  std::string famiglia_{CarattereIniziale};
  bool corsivo_ = false;
  bool grassetto_ = false;
};

}  // namespace telarium
