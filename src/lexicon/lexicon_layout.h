#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "lexicon/entry.h"

// The layout of a lexicon file, which lexicon_file.h describes: for its reader and its builder
// alone.
namespace telarium::lessico_interno {

inline constexpr std::array<char, 8> SiglaFile = {'T', 'E', 'L', 'A', 'R', 'L', 'E', 'X'};
inline constexpr std::uint32_t VersioneFile = 2;
inline constexpr std::uint32_t OrdineDeiByte = 0x01020304;
inline constexpr std::size_t Allineamento = 8;

// What a file of ours never passes, so that a damaged one costs no more than this: entries,
// readings of an entry, entries of a lemma, slots looked at for a word.
inline constexpr std::size_t MaxVoci = 1 << 24;
inline constexpr std::size_t MaxLetture = 64;
inline constexpr std::size_t MaxFamiglia = 4096;
inline constexpr std::size_t MaxPassi = 1024;

enum Sezione : std::size_t {
  Lunghezze,
  Parole,
  Punteggi,
  SegniDelleVoci,
  Grafie,
  CapiVoce,
  LettureDelleVoci,
  Lemmi,
  CapiFamiglia,
  Famiglie,
  Testi,
  Posti,
  Insiemi,
  NumSezioni
};

struct Tratto {
  std::uint64_t inizio, byte;
};

struct Testata {
  std::array<char, 8> sigla;
  std::uint32_t versione, ordine;
  std::uint64_t byte, impronta;
  std::uint32_t voci, lemmi, letture, posti;
  std::array<Tratto, NumSezioni> sezioni;
};
static_assert(sizeof(Testata) == 48 + NumSezioni * 16);

/// Where the digest begins.
inline constexpr std::size_t InizioImpronta = offsetof(Testata, voci);
static_assert(InizioImpronta == 32);

struct RigaLunghezza {
  std::uint32_t prima, voci;
  std::uint64_t parole, insiemi;
  bool operator==(const RigaLunghezza&) const = default;
};
static_assert(sizeof(RigaLunghezza) == 24);

inline constexpr std::size_t NumLunghezze = MaxLunghezzaVoce - MinLunghezzaVoce + 1;

struct LetturaScritta {
  std::uint32_t lemma, analisi;
};

/// 64-bit words in a set of so many entries.
constexpr std::size_t ParoleInsieme(std::size_t voci) {
  return (voci + 63) / 64;
}

/// Bytes of all sets of a length.
constexpr std::size_t ByteInsiemi(std::size_t lunghezza, std::size_t voci) {
  return lunghezza * LettereAlfabeto * ParoleInsieme(voci) * sizeof(std::uint64_t);
}

/// The rows of the lengths from how many entries each has: the rest of them follows from that.
constexpr std::array<RigaLunghezza, NumLunghezze> RigheDi(
    const std::array<std::uint32_t, NumLunghezze>& voci) {
  std::array<RigaLunghezza, NumLunghezze> righe{};
  RigaLunghezza prossima{};
  for (std::size_t i = 0; i < NumLunghezze; ++i) {
    const std::size_t lunghezza = i + MinLunghezzaVoce;
    prossima.voci = voci[i];
    righe[i] = prossima;
    prossima.prima += voci[i];
    prossima.parole += lunghezza * voci[i];
    prossima.insiemi += ByteInsiemi(lunghezza, voci[i]);
  }
  return righe;
}

}  // namespace telarium::lessico_interno
