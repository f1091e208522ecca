#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <tuple>
#include <utility>
#include <vector>

#include "model/shared.h"
#include "model/table.h"

namespace telarium {

/// A checked table as Tabella, for values that are copied and kept in numbers: only entries other
/// than T{} take room, so that equal contents are equal tables, and what has the same first index
/// (a column) is shared by the copies until one of them changes it. Entries stand in the order of
/// their indices, the last one running fastest.
template <class T, class Asse, class... Altri>
class TabellaRada {
 public:
  explicit TabellaRada(const char* nome) : nome_(nome) {}

  template <class... Indice>
  const T& operator()(Indice... indice) const {
    static const T nulla{};
    const auto [colonna, posto] = Posto(indice...);
    const Colonna& elementi = *colonne_[colonna];
    const auto dove = Cerca(elementi, posto);
    return dove != elementi.end() && dove->first == posto ? dove->second : nulla;
  }

  /// Gives the entry a value; entries that are set in order cost constant time.
  template <class... Indice>
  void Imposta(T valore, Indice... indice) {
    const auto [colonna, posto] = Posto(indice...);
    Condiviso<Colonna>& condivisa = colonne_[colonna];
    const auto dove = Cerca(*condivisa, posto);
    const bool presente = dove != condivisa->end() && dove->first == posto;
    if (valore == (presente ? dove->second : T{})) return;
    const auto distanza = dove - condivisa->begin();
    Colonna& elementi = condivisa.Proprio();
    const auto qui = elementi.begin() + distanza;
    if (valore == T{}) {
      elementi.erase(qui);
    } else if (presente) {
      qui->second = std::move(valore);
    } else {
      elementi.emplace(qui, posto, std::move(valore));
    }
  }

  /// How many entries are other than T{}.
  std::size_t Quanti() const {
    std::size_t quanti = 0;
    for (const Condiviso<Colonna>& colonna : colonne_)
      quanti += colonna->size();
    return quanti;
  }

  /// Calls `visita` with each of them and its indices, in their order.
  template <class Visita>
  void PerOgni(Visita visita) const {
    for (int primo = Asse::primo; primo <= Asse::ultimo; ++primo)
      VisitaColonna(primo, visita);
  }

  /// The same, but for the columns that the other table is known to have likewise: they share them.
  template <class Visita>
  void PerOgni(const TabellaRada& altra, Visita visita) const {
    for (int primo = Asse::primo; primo <= Asse::ultimo; ++primo) {
      const auto colonna = static_cast<std::size_t>(primo - Asse::primo);
      if (!colonne_[colonna].StessoDi(altra.colonne_[colonna])) VisitaColonna(primo, visita);
    }
  }

  /// Calls `visita` with each entry of `altra` that differs from the one here, also where that is
  /// T{}, and its indices, in their order. What the two share is not looked at.
  template <class Visita>
  void PerOgniDiversaIn(const TabellaRada& altra, Visita visita) const {
    for (int primo = Asse::primo; primo <= Asse::ultimo; ++primo) {
      const auto colonna = static_cast<std::size_t>(primo - Asse::primo);
      if (colonne_[colonna].StessoDi(altra.colonne_[colonna])) continue;
      PerOgniDiversa(*colonne_[colonna], *altra.colonne_[colonna], [&](int posto, const T& valore) {
        std::apply([&](auto... altri) { visita(valore, primo, altri...); }, IndiciDi(posto));
      });
    }
  }

  /// About how many bytes this table takes that it does not share with `altra`.
  std::size_t ByteNonCondivisiCon(const TabellaRada& altra) const {
    std::size_t byte = 0;
    for (std::size_t i = 0; i < colonne_.size(); ++i) {
      if (colonne_[i].StessoDi(altra.colonne_[i])) continue;
      byte += ByteDiUnNodo + sizeof(Colonna);
      for (const Elemento& elemento : *colonne_[i])
        byte += sizeof(Elemento) + ByteAltrove(elemento.second);
    }
    return byte;
  }

  bool operator==(const TabellaRada& altra) const { return colonne_ == altra.colonne_; }

 private:
  using Elemento = std::pair<std::uint16_t, T>;
  using Colonna = std::vector<Elemento>;
  static constexpr std::size_t perColonna = (static_cast<std::size_t>(Altri::quanti) * ...);
  static_assert(perColonna <= std::numeric_limits<std::uint16_t>::max());

  template <class Visita>
  void VisitaColonna(int primo, Visita& visita) const {
    for (const auto& [posto, valore] : *colonne_[static_cast<std::size_t>(primo - Asse::primo)])
      std::apply([&](auto... altri) { visita(valore, primo, altri...); }, IndiciDi(posto));
  }

  // Which column, from 0, and the place in it.
  template <class... Indice>
  std::pair<std::size_t, std::uint16_t> Posto(Indice... indice) const {
    const std::size_t posto = PostoNellaTabella<Asse, Altri...>(nome_, indice...);
    return {posto / perColonna, static_cast<std::uint16_t>(posto % perColonna)};
  }

  static std::array<int, sizeof...(Altri)> IndiciDi(int posto) {
    constexpr int primi[] = {Altri::primo...};
    constexpr int quanti[] = {Altri::quanti...};
    std::array<int, sizeof...(Altri)> indici;
    for (std::size_t i = indici.size(); i-- > 0; posto /= quanti[i])
      indici[i] = primi[i] + posto % quanti[i];
    return indici;
  }

  static typename Colonna::const_iterator Cerca(const Colonna& elementi, std::uint16_t posto) {
    if (elementi.empty() || elementi.back().first < posto) return elementi.end();
    return std::lower_bound(elementi.begin(), elementi.end(), posto,
                            [](const Elemento& uno, std::uint16_t p) { return uno.first < p; });
  }

  // Goes through two columns side by side.
  template <class Visita>
  static void PerOgniDiversa(const Colonna& qui, const Colonna& la, Visita visita) {
    auto nostro = qui.begin();
    auto altro = la.begin();
    while (nostro != qui.end() || altro != la.end()) {
      if (altro == la.end() || (nostro != qui.end() && nostro->first < altro->first)) {
        visita(nostro++->first, T{});
      } else if (nostro == qui.end() || altro->first < nostro->first) {
        visita(altro->first, altro->second);
        ++altro;
      } else {
        if (nostro++->second != altro->second) visita(altro->first, altro->second);
        ++altro;
      }
    }
  }

  const char* nome_;
  std::array<Condiviso<Colonna>, static_cast<std::size_t>(Asse::quanti)> colonne_;
};

}  // namespace telarium
