#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <tuple>
#include <utility>
#include <vector>

#include "model/table.h"

namespace telarium {

/// A checked table as Tabella, for values that are copied and kept in numbers: only entries other
/// than T{} take room, so that equal contents are equal tables. They stand in the order of their
/// indices, the last one running fastest.
template <class T, class... Assi>
class TabellaRada {
 public:
  explicit TabellaRada(const char* nome) : nome_(nome) {}

  template <class... Indice>
  const T& operator()(Indice... indice) const {
    static const T nulla{};
    const std::uint16_t posto = Posto(indice...);
    const auto dove = Cerca(posto);
    return dove != elementi_.end() && dove->first == posto ? dove->second : nulla;
  }

  /// Gives the entry a value; entries that are set in order cost constant time.
  template <class... Indice>
  void Imposta(T valore, Indice... indice) {
    const std::uint16_t posto = Posto(indice...);
    const auto dove = Cerca(posto);
    const bool presente = dove != elementi_.end() && dove->first == posto;
    const auto qui = elementi_.begin() + (dove - elementi_.cbegin());
    if (valore == T{}) {
      if (presente) elementi_.erase(qui);
    } else if (presente) {
      qui->second = std::move(valore);
    } else {
      elementi_.emplace(qui, posto, std::move(valore));
    }
  }

  /// How many entries are other than T{}.
  std::size_t Quanti() const { return elementi_.size(); }

  /// Calls `visita` with each of them and its indices, in their order.
  template <class Visita>
  void PerOgni(Visita visita) const {
    for (const auto& [posto, valore] : elementi_) {
      std::apply([&](auto... indice) { visita(valore, indice...); }, IndiciDi(posto));
    }
  }

  bool operator==(const TabellaRada& altra) const { return elementi_ == altra.elementi_; }

 private:
  using Elemento = std::pair<std::uint16_t, T>;
  static_assert((static_cast<std::size_t>(Assi::quanti) * ...) <=
                std::numeric_limits<std::uint16_t>::max());

  template <class... Indice>
  std::uint16_t Posto(Indice... indice) const {
    return static_cast<std::uint16_t>(PostoNellaTabella<Assi...>(nome_, indice...));
  }

  static std::array<int, sizeof...(Assi)> IndiciDi(int posto) {
    constexpr int primi[] = {Assi::primo...};
    constexpr int quanti[] = {Assi::quanti...};
    std::array<int, sizeof...(Assi)> indici;
    for (std::size_t i = indici.size(); i-- > 0; posto /= quanti[i])
      indici[i] = primi[i] + posto % quanti[i];
    return indici;
  }

  typename std::vector<Elemento>::const_iterator Cerca(std::uint16_t posto) const {
    if (elementi_.empty() || elementi_.back().first < posto) return elementi_.end();
    return std::lower_bound(elementi_.begin(), elementi_.end(), posto,
                            [](const Elemento& uno, std::uint16_t p) { return uno.first < p; });
  }

  const char* nome_;
  std::vector<Elemento> elementi_;
};

}  // namespace telarium
