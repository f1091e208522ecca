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

namespace table_interno {
[[noreturn]] inline void FuoriDaiLimiti(const char* nome, std::initializer_list<int> indici) {
  std::string testo = Unisci(nome, '(');
  for (const int i : indici)
    testo += Unisci(testo.back() == '(' ? "" : ", ", i);
  ErroreDiProgrammazione(testo + "): indice fuori dai limiti della tabella");
}
}  // namespace table_interno

/// The place, from 0, of an entry in a table with these axes, the last index running fastest. An
/// index out of its bounds is a programming error that names table and index, in release builds
/// too.
template <class... Assi, class... Indice>
std::size_t PostoNellaTabella(const char* nome, Indice... indice) {
  static_assert(sizeof...(Indice) == sizeof...(Assi), "one index for each axis");
  const bool dentro = ((indice >= Assi::primo && indice <= Assi::ultimo) && ...);
  if (!dentro) [[unlikely]]
    table_interno::FuoriDaiLimiti(nome, {static_cast<int>(indice)...});
  std::size_t posto = 0;
  ((posto = posto * Assi::quanti + static_cast<std::size_t>(indice - Assi::primo)), ...);
  return posto;
}

/// A table of fixed size whose every access is checked.
template <class T, class... Assi>
class Tabella {
 public:
  explicit Tabella(const char* nome) : nome_(nome) {}
  Tabella(const char* nome, const T& valore) : nome_(nome) { Riempi(valore); }

  template <class... Indice>
  T& operator()(Indice... indice) {
    return elementi_[PostoNellaTabella<Assi...>(nome_, static_cast<int>(indice)...)];
  }
  template <class... Indice>
  const T& operator()(Indice... indice) const {
    return elementi_[PostoNellaTabella<Assi...>(nome_, static_cast<int>(indice)...)];
  }

  /// Gives every entry the same value.
  void Riempi(const T& valore) { std::fill(elementi_.begin(), elementi_.end(), valore); }

 private:
  const char* nome_;
  std::array<T, (static_cast<std::size_t>(Assi::quanti) * ...)> elementi_{};
};

}  // namespace telarium
