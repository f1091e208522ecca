#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "clues/clue_family.h"
#include "platform/mapped_file.h"

// The index of the words that have clues, as bytes: in a file of the cache, which is mapped, or in
// memory. It holds a table of its words, so that whoever looks one up reads two pages of it.
//
// It is for the machine that made it: numbers are in its byte order, which the header tells. What
// is of another order, version, length or digest is no index and is made anew.
//
//   header   bytes  content
//   0        8      "TELARCOP"
//   8        4      version: 1
//   12       4      01020304 hexadecimal
//   16       8      digest of all bytes from 24 on, block by block (see coverage_index.cpp)
//   24       4      words that have clues
//   28       4      slots T: a power of two above the number of entries
//   32       4      bytes of the entries, E
//   36       4      bytes of the stamp, S
//
//   40       8 T    slots: 0 for none, or a number whose upper half is that of ImprontaDi(word) and
//                   whose lower half tells where the entry begins in the entries, + 1. A word is
//                   looked for from its digest modulo T on, and the search ends at a 0
//            E      entries: bytes of the word (1), easy clues (2), hard clues (2), the word
//            S      stamp: what the index was made from
namespace telarium {

/// How many clues of each family a word has.
struct ConteggioDefinizioni {
  int facili = 0;
  int difficili = 0;

  int Di(QualiDefinizioni quali) const {
    return (quali == QualiDefinizioni::Difficili ? 0 : facili) +
           (quali == QualiDefinizioni::Facili ? 0 : difficili);
  }
  bool Alcuna() const { return facili + difficili > 0; }
  bool operator==(const ConteggioDefinizioni&) const = default;
};

/// A word in the code page and its clues.
struct VoceCopertura {
  std::string parola;
  ConteggioDefinizioni conteggio;
};

/// Longer words are in no index: they do not fit a grid.
inline constexpr std::size_t MaxLunghezzaIndice = 255;
/// What counts there are past this one is not told.
inline constexpr int MaxConteggio = 65'535;

/// An index in the making.
class ComposizioneIndice {
 public:
  /// Adds an entry. Of those of one word the first one counts, whatever it has.
  void Metti(std::string_view parola, ConteggioDefinizioni conteggio);

  /// The bytes of an index of all that was added.
  std::string Byte(std::string_view timbro) const;

 private:
  std::uint64_t& PostoDi(std::string_view parola, std::uint64_t impronta);
  void Raddoppia();

  std::vector<std::uint64_t> caselle_ = std::vector<std::uint64_t>(2);
  std::string voci_;
  std::uint32_t quante_ = 0;
  std::uint32_t conDefinizioni_ = 0;
};

/// The bytes of an index of some entries.
std::string ComponiIndice(std::span<const VoceCopertura> voci, std::string_view timbro);

/// Puts the digest of the contents into its place, if there is room for it.
void SegnaImpronta(std::string& byte);

/// An index. It never changes, so that threads share it. Nothing that lies in it leads outside it.
class IndiceCopertura {
 public:
  using Byte = std::variant<FileMappato, std::string>;

  /// None for bytes that are no sound index.
  static std::shared_ptr<const IndiceCopertura> Apri(Byte byte);

  std::string_view Timbro() const { return timbro_; }
  /// How many words have clues.
  int Parole() const { return parole_; }
  /// The clues of a word; none for one that is not there.
  ConteggioDefinizioni Cerca(std::string_view parola) const;

  /// The same of several words at once, in their order, into as many counts at least. The memory
  /// where they lie is asked for ahead, which is what a look-up waits for.
  void CercaInsieme(std::span<const std::string_view> parole,
                    std::span<ConteggioDefinizioni> conteggi) const;

  using Visita = std::function<void(std::string_view parola, ConteggioDefinizioni conteggio)>;
  /// Calls `visita` with each word that has clues, in the order of ComponiIndice.
  void PerOgniParola(const Visita& visita) const;

 private:
  explicit IndiceCopertura(Byte byte) : byte_(std::move(byte)) {}
  bool Riconosci();
  std::uint64_t CasellaDi(std::uint64_t impronta, std::size_t passo) const;
  ConteggioDefinizioni Cerca(std::string_view parola, std::uint64_t impronta) const;
  void ChiediVoce(std::uint64_t impronta) const;

  Byte byte_;
  int parole_ = 0;
  std::span<const std::byte> caselle_;
  std::span<const std::byte> voci_;
  std::string_view timbro_;
};

}  // namespace telarium
