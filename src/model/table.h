#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/check.h"
#include "platform/text.h"

namespace telarium {

/// The bounds of one index of a table, both included.
template <int Primo, int Ultimo>
struct Indici {
  static constexpr int primo = Primo;
  static constexpr int ultimo = Ultimo;
  static constexpr int quanti = Ultimo - Primo + 1;
};

/// A table of fixed size whose every access is checked: an index out of its bounds is a programming
/// error that names table and index, in release builds too.
template <class T, class... Assi>
class Tabella {
 public:
  explicit Tabella(const char* nome) : nome_(nome) {}
  Tabella(const char* nome, const T& valore) : nome_(nome) { Riempi(valore); }

  template <class... Indice>
  T& operator()(Indice... indice) {
    return elementi_[Posto(static_cast<int>(indice)...)];
  }
  template <class... Indice>
  const T& operator()(Indice... indice) const {
    return elementi_[Posto(static_cast<int>(indice)...)];
  }

  /// Gives every entry the same value.
  void Riempi(const T& valore) { std::fill(elementi_.begin(), elementi_.end(), valore); }

 private:
  template <class... Indice>
  std::size_t Posto(Indice... indice) const {
    static_assert(sizeof...(Indice) == sizeof...(Assi), "one index for each axis");
    const bool dentro = ((indice >= Assi::primo && indice <= Assi::ultimo) && ...);
    if (!dentro) [[unlikely]]
      FuoriDaiLimiti({indice...});
    std::size_t posto = 0;
    ((posto = posto * Assi::quanti + static_cast<std::size_t>(indice - Assi::primo)), ...);
    return posto;
  }

  [[noreturn]] void FuoriDaiLimiti(std::initializer_list<int> indici) const {
    std::string testo = Unisci(nome_, '(');
    for (const int i : indici)
      testo += Unisci(testo.back() == '(' ? "" : ", ", i);
    ErroreDiProgrammazione(testo + "): indice fuori dai limiti della tabella");
  }

  const char* nome_;
  std::array<T, (static_cast<std::size_t>(Assi::quanti) * ...)> elementi_{};
};

}  // namespace telarium
