#pragma once

#include <string>
#include <string_view>

namespace telarium {

/// The printer's type, which holds for what is printed until it is set again.
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
};

}  // namespace telarium
