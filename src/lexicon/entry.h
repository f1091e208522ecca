#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What the lexicon knows of a word. Words are folded: capitals from A to Z without accents, blanks,
// apostrophes, hyphens and points ("CITTA", "LAQUILA", "LUNAPARK"). Spelled forms and lemmas are
// in the code page.
namespace telarium {

inline constexpr int MinLunghezzaVoce = 2;
inline constexpr int MaxLunghezzaVoce = 53;
inline constexpr int LettereAlfabeto = 26;

constexpr bool LunghezzaDiVoce(std::size_t lunghezza) {
  return lunghezza >= MinLunghezzaVoce && lunghezza <= MaxLunghezzaVoce;
}

/// Whether there are letters from A to Z alone. As quick for many words one behind the other.
bool DiLettere(std::string_view testo);

/// Scores: commonness of the word and of its lemma, from 0 to 100.
inline constexpr int MaxPunteggio = 100;
/// The least that most solvers know.
inline constexpr int PunteggioNoto = 50;
/// A word under this one is rare.
inline constexpr int PunteggioRaro = 30;
/// Of a word of which nobody has told how common it is: neither rare nor known.
inline constexpr int PunteggioIgnoto = 40;

/// Marks of an entry, of which it may have several. The numbers stand in lexicon files.
enum class Segno : std::uint16_t {
  Nome = 1,       // of a person, a place, a brand, a work
  Sigla = 2,      // an abbreviation
  Straniera = 4,  // a foreign word
  Locuzione = 8,  // several words
  Gioco = 16,     // no word: only letter play explains it
  Tronca = 32,    // an infinitive or a noun without its last vowel that is no word itself
  Bandita = 64,   // not to be printed
};

class Segni {
 public:
  constexpr Segni() = default;
  constexpr Segni(std::initializer_list<Segno> segni) {
    for (const Segno segno : segni)
      Metti(segno);
  }
  constexpr explicit Segni(std::uint16_t bit) : bit_(bit & Tutti) {}

  constexpr bool Ha(Segno segno) const { return (bit_ & static_cast<std::uint16_t>(segno)) != 0; }
  constexpr void Metti(Segno segno) { bit_ |= static_cast<std::uint16_t>(segno); }
  constexpr void Togli(Segno segno) {
    bit_ &= static_cast<std::uint16_t>(~static_cast<unsigned>(segno));
  }
  constexpr std::uint16_t Bit() const { return bit_; }
  constexpr bool operator==(const Segni&) const = default;

 private:
  static constexpr std::uint16_t Tutti = 127;
  std::uint16_t bit_ = 0;
};

/// Beside the marks of an entry, where they stand as a number: it can be nothing but a finite verb
/// form or a gerund (see SoloFinita).
inline constexpr std::uint16_t BitSoloFinita = 128;

// Parts of an analysis. The numbers stand in lexicon files; 0 is "not known" or "none" in each.
enum class Categoria : std::uint8_t {
  Ignota,
  Sostantivo,
  Aggettivo,
  Verbo,
  Avverbio,
  Pronome,
  Articolo,
  Preposizione,
  Congiunzione,
  Interiezione,
  Numerale,
  NomeProprio,
  Abbreviazione
};
enum class Modo : std::uint8_t {
  Nessuno,
  Infinito,
  Gerundio,
  Participio,
  Indicativo,
  Congiuntivo,
  Condizionale,
  Imperativo,
  Finito  // finite, and nothing more is known
};
enum class Tempo : std::uint8_t { Nessuno, Presente, Imperfetto, Passato, Futuro };
enum class Genere : std::uint8_t { Invariabile, Maschile, Femminile };
enum class Numero : std::uint8_t { Invariabile, Singolare, Plurale };

/// Part of speech and form of a word, as one of its readings has them.
struct Analisi {
  Categoria categoria = Categoria::Ignota;
  Modo modo = Modo::Nessuno;
  Tempo tempo = Tempo::Nessuno;
  std::uint8_t persona = 0;  // 1 to 3 of a finite verb; its singular or plural is `numero`
  Genere genere = Genere::Invariabile;
  Numero numero = Numero::Invariabile;
  bool clitica = false;    // with pronouns attached
  bool comparata = false;  // comparative or absolute superlative

  /// A finite verb form: anything but infinitive, gerund and participle.
  constexpr bool Finita() const { return modo >= Modo::Indicativo; }
  /// A verb form that a sentence alone can use: anything but infinitive and participle. Editors
  /// count a gerund (AMANDO) with the finite forms.
  constexpr bool SoloVerbale() const { return Finita() || modo == Modo::Gerundio; }
  constexpr bool operator==(const Analisi&) const = default;
};

/// An analysis in the writing of the lexicon's sources, as "v.part.pass.ms": category, then
/// attributes, divided by points. None for anything else. lexicon_builder.h lists the codes.
std::optional<Analisi> InterpretaAnalisi(std::string_view codice);

/// An analysis in 32 bits, as lexicon files hold it. Bits that mean nothing give none.
std::uint32_t BitDi(const Analisi& analisi);
std::optional<Analisi> AnalisiDaBit(std::uint32_t bit);

/// One way to read a word.
struct Lettura {
  std::string_view lemma;  // as spelled, in the code page
  Analisi analisi;
  bool operator==(const Lettura&) const = default;
};

/// An entry as its layer holds it. The views are valid as long as the layer is.
struct Voce {
  std::string_view parola;  // folded
  std::string_view grafia;  // as spelled, in the code page
  int punteggio = 0;
  Segni segni;
  std::vector<Lettura> letture;  // the commonest first; may be empty
};

/// Whether an entry can be nothing but a finite verb form or a gerund: it has readings, and each of
/// them is one.
bool SoloFinita(const std::vector<Lettura>& letture);

/// The names of the marks that an entry has, in the order of the enumeration, divided by commas.
std::string NomiDeiSegni(Segni segni);
/// Likewise what form of its lemma a reading is: lemma, plurale, femminile, infinito, participio,
/// gerundio, finita, clitica, comparata. The plural of a finite verb is not named. `grafia` is the
/// spelled form of the entry.
std::string NomiDelleForme(const Lettura& lettura, std::string_view grafia);
/// The mark of a name; none for another text.
std::optional<Segno> SegnoDiNome(std::string_view nome);

/// A spelled text in the code page as a word: none when a character is no letter and nothing that
/// spelling puts between letters, or when the length is outside 2 to 53.
std::optional<std::string> PiegaGrafia(std::string_view grafia);
/// The same of a text in UTF-8, which may have letters that the code page lacks.
std::optional<std::string> PiegaGrafiaUtf8(std::string_view grafia);

}  // namespace telarium
