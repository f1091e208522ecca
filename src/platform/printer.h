#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/surface.h"

namespace telarium {

/// A print job: the surface of its pages, one after the other. It begins with the printer's type. A
/// job that is dropped without FineStampa prints nothing.
class LavoroDiStampa : public Superficie {
 public:
  /// Sets the logical size of the pages: positions and text measures are in these units, which may
  /// differ in width and height. Type sizes stay in points, and no text is stretched.
  virtual void ScalaSuperficie(double larghezza, double altezza) = 0;

  /// Ends the job and sends its pages to the printer.
  virtual void FineStampa() = 0;
};

/// The printer, with the type that holds for what is printed until it is set again.
class Stampante {
 public:
  virtual ~Stampante() = default;

  /// Sets the typeface. False, and nothing is set, when the printer does not take it.
  [[nodiscard]] virtual bool Carattere(std::string_view nome) = 0;
  virtual const std::string& Carattere() const = 0;

  virtual void Corsivo(bool corsivo) = 0;
  virtual bool Corsivo() const = 0;
  virtual void Grassetto(bool grassetto) = 0;
  virtual bool Grassetto() const = 0;

  /// Shows the printer dialog and begins a job of that name. Null when the user gave up, or when
  /// the job cannot begin, which has been told.
  virtual std::unique_ptr<LavoroDiStampa> IniziaLavoro(const std::string& nome) = 0;
};

}  // namespace telarium
