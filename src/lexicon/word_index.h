#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace telarium {

/// Finds the numbers of words, counted from 0, by their letters, which lie with its owner: open
/// addressing, half of the slots empty at least. `lettere` gives the word of a number.
class IndiceDiParole {
 public:
  template <class Lettere>
  std::optional<std::uint32_t> Cerca(std::string_view parola, const Lettere& lettere) const {
    if (caselle_.empty()) return std::nullopt;
    const std::uint32_t numero = caselle_[Casella(parola, lettere)];
    if (numero == Libera) return std::nullopt;
    return numero;
  }

  /// Takes a word that is not in it yet, under the next number.
  template <class Lettere>
  void Aggiungi(std::string_view parola, const Lettere& lettere) {
    if (std::size_t{quante_} * 2 >= caselle_.size()) Allarga(lettere);
    caselle_[Casella(parola, lettere)] = quante_;
    ++quante_;
  }

  /// Makes room for so many words.
  void Riserva(std::size_t parole) {
    std::size_t caselle = MinCaselle;
    while (caselle < 2 * parole)
      caselle *= 2;
    caselle_.assign(caselle, Libera);
  }

 private:
  static constexpr std::uint32_t Libera = 0xFFFFFFFF;
  static constexpr std::size_t MinCaselle = 64;

  // The slot that has the word, or the free one where it belongs.
  template <class Lettere>
  std::size_t Casella(std::string_view parola, const Lettere& lettere) const {
    const std::size_t maschera = caselle_.size() - 1;
    std::size_t casella = std::hash<std::string_view>()(parola) & maschera;
    while (caselle_[casella] != Libera && lettere(caselle_[casella]) != parola)
      casella = (casella + 1) & maschera;
    return casella;
  }

  template <class Lettere>
  void Allarga(const Lettere& lettere) {
    Riserva(std::size_t{quante_} * 2 + 1);
    for (std::uint32_t numero = 0; numero < quante_; ++numero)
      caselle_[Casella(lettere(numero), lettere)] = numero;
  }

  std::vector<std::uint32_t> caselle_;  // a power of two of them
  std::uint32_t quante_ = 0;
};

}  // namespace telarium
