#pragma once

#include <cerrno>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace telarium {

/// An open file of the system, closed at the end of its life.
class Descrittore {
 public:
  Descrittore() = default;
  explicit Descrittore(int numero) : numero_(numero) {}
  Descrittore(Descrittore&& altro) noexcept : numero_(std::exchange(altro.numero_, -1)) {}
  Descrittore& operator=(Descrittore&& altro) noexcept {
    std::swap(numero_, altro.numero_);
    return *this;
  }
  ~Descrittore() {
    if (numero_ >= 0) ::close(numero_);
  }

  explicit operator bool() const { return numero_ >= 0; }
  int Numero() const { return numero_; }

  /// Closes now and tells the error, which for a written file can come as late as here.
  std::error_code Chiudi() {
    if (::close(std::exchange(numero_, -1)) == 0) return {};
    return {errno, std::generic_category()};
  }

 private:
  int numero_ = -1;
};

}  // namespace telarium
