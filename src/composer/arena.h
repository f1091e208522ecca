#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <type_traits>
#include <vector>

namespace telarium {

/// Memory that is given back the way a search goes back: all at once down to a mark. Holds plain
/// values only.
class Arena {
 public:
  struct Segno {
    std::size_t pezzo = 0;
    std::size_t usati = 0;
  };

  /// Room for so many values, not set.
  template <class Valore>
  Valore* Prendi(std::size_t quanti) {
    static_assert(std::is_trivially_destructible_v<Valore>);
    const std::size_t byte = (quanti * sizeof(Valore) + Passo - 1) / Passo * Passo;
    if (pezzi_.empty() || segno_.usati + byte > pezzi_[segno_.pezzo].grandezza) Allarga(byte);
    std::byte* preso = pezzi_[segno_.pezzo].memoria.get() + segno_.usati;
    segno_.usati += byte;
    return reinterpret_cast<Valore*>(preso);
  }

  Segno Dove() const { return segno_; }
  void Torna(Segno segno) { segno_ = segno; }

 private:
  static constexpr std::size_t Passo = 16;                 // alignment
  static constexpr std::size_t GrandezzaPezzo = 64 << 10;  // at least

  struct Pezzo {
    std::unique_ptr<std::byte[]> memoria;
    std::size_t grandezza = 0;
  };

  // Goes on to a piece that has room: one that was used before, or a new one.
  void Allarga(std::size_t byte) {
    std::size_t pezzo = pezzi_.empty() ? 0 : segno_.pezzo + 1;
    while (pezzo < pezzi_.size() && pezzi_[pezzo].grandezza < byte)
      ++pezzo;
    if (pezzo == pezzi_.size()) {
      const std::size_t grandezza = std::max(byte, GrandezzaPezzo);
      pezzi_.push_back({std::make_unique_for_overwrite<std::byte[]>(grandezza), grandezza});
    }
    segno_ = {pezzo, 0};
  }

  std::vector<Pezzo> pezzi_;
  Segno segno_;
};

}  // namespace telarium
