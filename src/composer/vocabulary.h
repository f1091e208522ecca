#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/entry.h"
#include "lexicon/rules.h"

// The words that a composition may use, in the form that a search wants: by length, the best ones
// first, and for each place and letter the set of words that have it there. A filter, a cut or a
// ban is a set too.
namespace telarium {

/// A part of a set of words of one length: bit k of block j is the word 64j+k.
using Blocco = std::uint64_t;
inline constexpr int ParolePerBlocco = 64;
constexpr bool Contiene(const Blocco* insieme, int numero) {
  return (insieme[numero / ParolePerBlocco] >> (numero % ParolePerBlocco) & 1) != 0;
}
constexpr void Metti(Blocco* insieme, int numero) {
  insieme[numero / ParolePerBlocco] |= Blocco{1} << (numero % ParolePerBlocco);
}
constexpr void Leva(Blocco* insieme, int numero) {
  insieme[numero / ParolePerBlocco] &= ~(Blocco{1} << (numero % ParolePerBlocco));
}

/// Letters as bits, A the lowest.
using Lettere = std::uint32_t;
inline constexpr Lettere TutteLeLettere = (1u << LettereAlfabeto) - 1;
constexpr Lettere SolaLettera(char lettera) {
  return 1u << (lettera - 'A');
}

constexpr bool UnaSola(Lettere lettere) {
  return lettere != 0 && (lettere & (lettere - 1)) == 0;
}
/// How many letters there are: without a call, which a count of bits is on plain processors.
constexpr int QuanteLettere(Lettere lettere) {
  lettere -= lettere >> 1 & 0x55555555u;
  lettere = (lettere & 0x33333333u) + (lettere >> 2 & 0x33333333u);
  return static_cast<int>(((lettere + (lettere >> 4)) & 0x0f0f0f0fu) * 0x01010101u >> 24);
}

/// The kinds of an entry of which a grid may have only so many, as bits by Genia.
using Genie = std::uint8_t;
constexpr Genie SolaGenia(Genia genia) {
  return static_cast<Genie>(1u << static_cast<unsigned>(genia));
}

/// A word of a vocabulary: its length, and its number in that length, from 0.
struct NumeroParola {
  int lunghezza = 0;
  int numero = 0;
  bool operator==(const NumeroParola&) const = default;
};

/// What a vocabulary is made of.
struct ParolaDaUsare {
  std::string_view lettere;  // 2 to 53 from A to Z
  int pregio = 0;            // how welcome it is, 0 to MaxPregio: their order, and what is improved
  int punteggio = 0;         // 0 to 100, which a least score is compared with
  bool definita = false;     // it has a clue
  bool propria = false;      // the author's own: no least score, demand of clues or kind binds it
  Genie genie = 0;
};
inline constexpr int MaxPregio = 1000;

/// A value that never changes; threads share it. Words of a length are in the order of falling
/// `pregio`, equal ones by their letters.
class Vocabolario {
 public:
  /// Gives the words that may not stand beside a word, as forms of one lemma, as letters; itself
  /// may be among them. Called in any thread.
  using Parentela = std::function<std::vector<std::string>(std::string_view parola)>;
  /// The same as numbers of the vocabulary, itself not among them.
  using ParentelaPerNumeri = std::function<std::vector<NumeroParola>(std::string_view parola)>;

  /// No words.
  Vocabolario() = default;
  /// Takes different words. `parentela` may be empty: no word is akin to another one.
  explicit Vocabolario(std::span<const ParolaDaUsare> parole, Parentela parentela = {});

  int Quante(int lunghezza) const { return Di(lunghezza).quante; }
  /// Blocks of a set of words of a length.
  int Blocchi(int lunghezza) const { return Di(lunghezza).blocchi; }

  std::string_view Parola(NumeroParola parola) const;
  /// The number of a word; none for one that is not in the vocabulary.
  std::optional<NumeroParola> Cerca(std::string_view parola) const;

  int Pregio(NumeroParola parola) const;
  int Punteggio(NumeroParola parola) const;
  bool Definita(NumeroParola parola) const;
  bool Propria(NumeroParola parola) const;
  Genie GenieDi(NumeroParola parola) const;
  /// The words akin to one that the vocabulary has, without itself.
  std::vector<NumeroParola> Parenti(std::string_view parola) const;
  bool HaParentele() const { return parentela_ || perNumeri_; }

  /// The words of a length with a letter (0 for A) at a place from 0.
  const Blocco* Insieme(int lunghezza, int posto, int lettera) const {
    const Fascia& fascia = Di(lunghezza);
    return fascia.insiemi.data() +
           static_cast<std::size_t>((posto * LettereAlfabeto + lettera) * fascia.blocchi);
  }
  /// The letters of the words of a length, one word behind the other; `Margine` more bytes may be
  /// read.
  const char* LettereDi(int lunghezza) const { return Di(lunghezza).lettere.data(); }
  static constexpr std::size_t Margine = 8;
  const std::uint16_t* Pregi(int lunghezza) const { return Di(lunghezza).pregi.data(); }

  /// The words of a length with a score of at least `minimo`, own ones too; with `definite` only
  /// those that have a clue, or are own ones.
  std::vector<Blocco> Ammesse(int lunghezza, int minimo, bool definite) const;
  /// The words of a length that are of a kind.
  std::span<const Blocco> DellaGenia(int lunghezza, Genia genia) const;

 private:
  // Words that stand near each other have nearly the same score.
  struct Estremi {
    std::uint8_t minimo = 255;
    std::uint8_t massimo = 0;
  };
  struct Fascia {
    void Riempi(int lunghezza, std::span<const ParolaDaUsare> parole,
                std::span<const std::uint32_t> ordine);
    void Aggiungi(const ParolaDaUsare& parola);
    void SegnaInsiemi(std::size_t lunghezza);
    Blocco DalPunteggio(std::size_t blocco, int minimo) const;

    int quante = 0;
    int blocchi = 0;
    std::vector<char> lettere;
    std::vector<std::uint16_t> pregi;
    std::vector<std::uint8_t> punteggi;
    std::vector<Genie> genie;
    std::vector<Blocco> definite;
    std::vector<Blocco> proprie;
    std::vector<Estremi> estremi;  // of the scores, by block
    std::vector<Blocco> insiemi;
    std::array<std::vector<Blocco>, NumGenie> perGenia;
  };

  const Fascia& Di(int lunghezza) const {
    return fasce_[static_cast<std::size_t>(lunghezza - MinLunghezzaVoce)];
  }
  friend class ComposizioneVocabolario;

  std::array<Fascia, MaxLunghezzaVoce - MinLunghezzaVoce + 1> fasce_;
  Parentela parentela_;
  ParentelaPerNumeri perNumeri_;
};

/// A vocabulary in the making.
class ComposizioneVocabolario {
 public:
  /// Takes all words of a length, different ones, the sooner the nearer they are to the order of a
  /// vocabulary. Gives which of them, from 0, has each number. Several threads may do so at once,
  /// each for another length.
  std::vector<std::uint32_t> Metti(int lunghezza, std::span<const ParolaDaUsare> parole);

  /// The vocabulary; nothing is left here.
  Vocabolario Chiudi(Vocabolario::ParentelaPerNumeri parenti = {}) &&;

 private:
  Vocabolario vocabolario_;
};

}  // namespace telarium
