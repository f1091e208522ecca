#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "lexicon/layer.h"
#include "platform/digest.h"
#include "platform/mapped_file.h"

// The file of one language's lexicon. It is mapped, and holds all that a search needs ready, so
// that opening one costs nothing: words of a length in the order of their score, and for each place
// and letter the set of words that have it there.
//
// All numbers are little-endian; each section begins at a multiple of 8 bytes. Entries are numbered
// from 0: by length, in a length by falling score, equal ones by the letters. Lemmas are numbered
// from 0 in the order of the bytes.
//
//   header      bytes  content
//   0           8      "TELARLEX"
//   8           4      version: 1
//   12          4      01020304 hexadecimal, which tells the byte order
//   16          8      length of the file
//   24          8      digest of all bytes from 32 on (see ImprontaDi)
//   32          4      entries, N
//   36          4      lemmas, M
//   40          4      readings, R
//   44          4      slots of the table of words, T: a power of two, at least 2N
//   48          16*12  the sections: offset and length in bytes, 8 bytes each
//
//   section      content
//   lengths      for each length from 2 to 53: entries before it (4), its entries (4), offset of
//   its
//                words in their section (8), offset of its sets in theirs (8)
//   words        the letters of the entries, one behind the other
//   scores       N bytes
//   marks        N times 2 bytes, the bits of Segno
//   spellings    N+1 times 4 bytes: where the spelled form of an entry begins in the texts; one of
//                no bytes is the word itself
//   entry heads  N+1 times 4 bytes: the first reading of an entry
//   readings     R times: lemma (4), analysis (4, see BitDi)
//   lemmas       M+1 times 4 bytes: where a lemma begins in the texts
//   family heads M+1 times 4 bytes: the first entry of a lemma in the families
//   families     entries by lemma, 4 bytes each, rising: the words that have a reading of it
//   texts        the spelled forms, then the lemmas
//   slots        T times 4 bytes: entry + 1 of a word, 0 for none. A word is looked for from
//                ImprontaDi(word) modulo T on, and the search ends at a 0
//   sets         for each length L, place from 0 and letter: 64-bit words, bit k of word j is the
//                entry 64j+k of the length; as many words as all entries of the length need
namespace telarium {

class FileLessico final : public Strato {
 public:
  /// Opens a lexicon file and checks its header, lengths and the bounds of its sections; what lies
  /// in them is checked where it is used. None when that fails: `causa` then says why, in Italian,
  /// as the end of a sentence. `nome` is what the layer is called.
  static std::shared_ptr<const FileLessico> Apri(const Percorso& file, std::string nome,
                                                 std::string& causa);

  int Conta(int lunghezza) const override;
  std::optional<NumeroVoce> Cerca(std::string_view parola) const override;
  NumeroVoce Prima(int lunghezza) const override;
  std::string_view Parola(NumeroVoce numero) const override;
  int Punteggio(NumeroVoce numero) const override;
  Voce Leggi(NumeroVoce numero) const override;

  /// The set of the words of a length that have a letter (0 for A) at a place from 0, as the file
  /// holds it; bit k of word j is the (64j+k)th best of the length.
  std::span<const std::uint64_t> Insieme(int lunghezza, int posto, int lettera) const;

  /// The other entries that share a lemma with one, itself too, rising. Empty without readings.
  std::vector<NumeroVoce> Famiglia(NumeroVoce numero) const;

  /// Whether the digest is that of the contents, and whatever lies in them is sound: for the build
  /// and the tests. `causa` as above.
  bool Verifica(std::string& causa) const;

 private:
  explicit FileLessico(FileMappato file, std::string nome);
  // to be designed by whoever writes it
};

}  // namespace telarium
