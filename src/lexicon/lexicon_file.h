#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/layer.h"
#include "lexicon/lexicon_layout.h"
#include "platform/mapped_file.h"

// The file of one language's lexicon. It is mapped, and holds all that a search needs ready, so
// that opening one costs nothing: words of a length in the order of their score, and for each place
// and letter the set of words that have it there.
//
// All numbers are as the machine has them for which the file is built, and each section begins at a
// multiple of 8 bytes, so that they are used where they lie. Entries are numbered from 0: by
// length, in a length by falling score, equal ones by the letters. Lemmas are numbered from 0 in
// the order of their bytes.
//
//   header      bytes  content
//   0           8      "TELARLEX"
//   8           4      version: 2
//   12          4      01020304 hexadecimal, which tells the byte order
//   16          8      length of the file
//   24          8      digest of all bytes from 32 on (see ImprontaDi)
//   32          4      entries, N
//   36          4      lemmas, M
//   40          4      readings, R
//   44          4      slots of the table of words, T: a power of two, at least 2N
//   48          13*16  the sections: offset and length in bytes, 8 bytes each
//
//   section      content
//   lengths      for each length from 2 to 53: entries before it (4), its entries (4), offset of
//                its words in their section (8), offset of its sets in theirs (8)
//   words        the letters of the entries, one behind the other
//   scores       N bytes
//   marks        N times 2 bytes, the bits of Segno, and BitSoloFinita
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

/// The number of a lemma in a lexicon file, from 0 in the order of the bytes.
using NumeroLemma = std::uint32_t;

/// A reading with its lemma by number.
struct LetturaNumerata {
  NumeroLemma lemma = 0;
  Analisi analisi;
};

class FileLessico final : public Strato {
 public:
  /// Opens a lexicon file and checks its header, lengths and the bounds of its sections; what lies
  /// in them is checked where it is used, so that a damaged file gives fewer answers. None when
  /// that fails: `causa` then says why, in Italian, as the end of a sentence. `nome` is what the
  /// layer is called.
  static std::shared_ptr<const FileLessico> Apri(const Percorso& file, std::string nome,
                                                 std::string& causa);

  int Conta(int lunghezza) const override;
  NumeroVoce Prima(int lunghezza) const override;
  std::optional<NumeroVoce> Cerca(std::string_view parola) const override;

  /// Letters from A to Z alone; empty for a number that no entry has.
  std::string_view Parola(NumeroVoce numero) const override;
  /// From 0 to MaxPunteggio.
  int Punteggio(NumeroVoce numero) const override;
  Voce Leggi(NumeroVoce numero) const override;
  Segni LeggiSegni(NumeroVoce numero) const override;
  ColonneDiVoci Colonne(int lunghezza, MemoriaDiColonne& memoria) const override;
  const FileLessico* ComeFile() const override { return this; }

  /// The set of the words of a length that have a letter (0 for A) at a place from 0, as the file
  /// holds it; bit k of word j is the (64j+k)th best of the length, from 0. Empty outside the
  /// length, the alphabet or the lengths. In a damaged file bits past the last word of the length
  /// may be set: take it together with a set of the words that are wanted.
  std::span<const std::uint64_t> Insieme(int lunghezza, int posto, int lettera) const;

  /// The entries that share a lemma with one, itself too, rising. Empty without readings.
  std::vector<NumeroVoce> Famiglia(NumeroVoce numero) const;

  // The readings and families by the numbers of lemmas, for those who follow many of them.

  std::optional<NumeroLemma> CercaLemma(std::string_view lemma) const;
  /// As spelled; empty for a number that no lemma has.
  std::string_view Lemma(NumeroLemma numero) const { return Testo(lemmi_, numero); }
  /// The entries that have a reading of a lemma, rising; in a damaged file some may be none.
  std::span<const NumeroVoce> FormeDi(NumeroLemma lemma) const { return FamigliaDi(lemma); }
  /// The readings of an entry that Leggi gives, into a list that is emptied first.
  void LeggiLetture(NumeroVoce numero, std::vector<LetturaNumerata>& letture) const;

  /// Whether the digest is that of the contents, and whatever lies in them is sound: for the build
  /// and the tests, since it reads everything. `causa` as above.
  bool Verifica(std::string& causa) const;

 private:
  using Riga = lessico_interno::RigaLunghezza;

  FileLessico(FileMappato file, std::string nome)
      : Strato(std::move(nome)), file_(std::move(file)) {}

  // Each is a step of the opening, and gives why the file is none of ours; empty for none.
  std::string PrendiTestata();
  std::string PrendiSezioni();
  std::string PrendiLunghezze();

  template <class Elemento>
  bool PrendiSezione(lessico_interno::Sezione sezione, std::span<const Elemento>& elementi,
                     std::optional<std::uint64_t> quanti) const;

  // Null for a length that no entry has, and for a number that none has.
  const Riga* RigaDi(int lunghezza) const;
  const Riga* RigaDellaVoce(NumeroVoce numero) const;

  std::string_view LettereDi(const Riga& riga, NumeroVoce numero) const;
  // Calls `visita` with each sound reading, its lemma as a text too.
  template <class Visita>
  void PerOgniLettura(NumeroVoce numero, Visita visita) const;
  std::string_view Testo(std::span<const std::uint32_t> inizi, std::uint32_t numero) const;
  std::span<const lessico_interno::LetturaScritta> LettureDi(NumeroVoce numero) const;
  std::span<const NumeroVoce> FamigliaDi(std::uint32_t lemma) const;

  // The parts of Verifica; each gives the first fault, empty for none.
  std::string DifettoDelleParole() const;
  std::string DifettoDelleLetture() const;
  std::string DifettoDeiLemmi() const;
  std::string DifettoDegliInsiemi() const;
  int BitAccesi(int lunghezza, int posto) const;
  bool TuttiAccesi(int lunghezza, int posto) const;

  FileMappato file_;
  lessico_interno::Testata testata_{};
  std::array<Riga, lessico_interno::NumLunghezze> lunghezze_{};  // consistent, unlike the file's

  // The sections: each of the length that the numbers of the header ask for.
  std::span<const char> parole_;
  std::span<const std::uint8_t> punteggi_;
  std::span<const std::uint16_t> segni_;
  std::span<const std::uint32_t> grafie_;
  std::span<const std::uint32_t> capiVoce_;
  std::span<const lessico_interno::LetturaScritta> letture_;
  std::span<const std::uint32_t> lemmi_;
  std::span<const std::uint32_t> capiFamiglia_;
  std::span<const NumeroVoce> famiglie_;
  std::span<const char> testi_;
  std::span<const std::uint32_t> posti_;
  std::span<const std::uint64_t> insiemi_;
};

}  // namespace telarium
