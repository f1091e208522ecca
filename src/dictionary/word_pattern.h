#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

#include "dictionary/section_scan.h"

namespace telarium {

/// Stands for any letter in a pattern.
inline constexpr char PostoLibero = ' ';

/// A pattern of 3 to 15 characters with PostoLibero for any letter. Words are compared exactly, by
/// character code.
class ModelloParola {
 public:
  explicit ModelloParola(std::string_view modello);

  int Lunghezza() const { return lunghezza_; }

  /// Whether every place is free.
  bool TuttoLibero() const { return tuttoLibero_; }

  /// Calls `accogli` with the place in the block, from 0, of each word that fits, in rising order,
  /// until it gives false. Gives whether it never did.
  template <class Accogli>
  bool PerOgniAdatta(const BloccoDiParole& blocco, Accogli accogli) const;

 private:
  template <class Intero, class Accogli>
  bool Confronta(const BloccoDiParole& blocco, Accogli& accogli) const;

  // A word is compared as two machine words that overlap and together cover it. In each the mask
  // has all bits of the places that hold a letter.
  struct Meta {
    char maschera[8] = {};
    char valore[8] = {};
  };

  int lunghezza_;
  std::size_t secondo_;  // byte at which the second machine word begins
  bool tuttoLibero_;
  Meta meta_[2];
};

/// Bytes of the machine words by which words of a length are compared.
constexpr std::size_t ByteConfronto(int lunghezza) {
  return lunghezza >= 8 ? 8 : lunghezza >= 4 ? 4 : 2;
}

template <class Intero, class Accogli>
bool ModelloParola::Confronta(const BloccoDiParole& blocco, Accogli& accogli) const {
  const auto carica = [](const char* byte) {
    Intero intero;
    std::memcpy(&intero, byte, sizeof intero);
    return intero;
  };
  const Intero m0 = carica(meta_[0].maschera), v0 = carica(meta_[0].valore);
  const Intero m1 = carica(meta_[1].maschera), v1 = carica(meta_[1].valore);
  const char* parola = blocco.inizio;
  for (int i = 0; i < blocco.quante; ++i, parola += blocco.lunghezza) {
    const auto diverse = ((carica(parola) ^ v0) & m0) | ((carica(parola + secondo_) ^ v1) & m1);
    if (diverse == 0 && !accogli(i)) return false;
  }
  return true;
}

template <class Accogli>
bool ModelloParola::PerOgniAdatta(const BloccoDiParole& blocco, Accogli accogli) const {
  switch (ByteConfronto(lunghezza_)) {
    case 8:
      return Confronta<std::uint64_t>(blocco, accogli);
    case 4:
      return Confronta<std::uint32_t>(blocco, accogli);
    default:
      return Confronta<std::uint16_t>(blocco, accogli);
  }
}

}  // namespace telarium
