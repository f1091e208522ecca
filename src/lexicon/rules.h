#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "lexicon/lexicon.h"

// What an editor accepts, as data.
namespace telarium {

/// How many entries of a kind a crossword may have: none, all, or one in so many.
struct Quota {
  static constexpr int Nessuna = 0;
  static constexpr int Libera = -1;
  int unaSu = Libera;

  /// How many of the entries of a crossword may be of the kind; a share is rounded down.
  int Ammesse(int voci) const;
  bool operator==(const Quota&) const = default;
};

/// What may stand in a slot of two letters: entries of the kit and of the user's lists, or any
/// letters.
enum class DueLettere { Corredo, Tutte };
/// And what besides words, names and abbreviations in a longer one: nothing, entries that letter
/// play explains, whatever a layer has. Entries of three letters are nearly all that it is about.
enum class TreLettere { Parole, Gioco, Tutte };

/// A kind of entry that a set of rules may limit. Gerunds count as finite forms.
enum class Genia { Finita, Tronca, Nome, Sigla, Straniera };
inline constexpr int NumGenie = 5;

/// A named set of rules.
struct Regolamento {
  std::string nome;                   // in the code page
  std::array<Quota, NumGenie> quote;  // by Genia
  DueLettere due = DueLettere::Corredo;
  TreLettere tre = TreLettere::Parole;

  const Quota& Di(Genia genia) const { return quote[static_cast<std::size_t>(genia)]; }
  Quota& Di(Genia genia) { return quote[static_cast<std::size_t>(genia)]; }
  bool operator==(const Regolamento&) const = default;
};

/// `severe` (the one that holds when none is named), `settimanali`, `libere`; none for another
/// name.
const Regolamento* RegolamentoDiNome(std::string_view nome);
inline constexpr std::string_view RegolamentoIniziale = "severe";
inline constexpr std::string_view NomiDeiRegolamenti = "severe, settimanali, libere";

/// The most bytes of a rule file that are worth reading.
inline constexpr std::size_t MaxByteRegolamento = 64u << 10;

/// A set of rules from the text of a file: a line `nome = valore` each, of which telar(1) has the
/// list, in UTF-8 or in the code page; `#` begins a comment line. `nome` is what the set is called.
/// `causa` says in Italian, with the number of the line, what is wrong when there is none.
std::optional<Regolamento> InterpretaRegolamento(std::string_view testo, std::string_view nome,
                                                 std::string& causa);

/// Whether a word is of a limited kind. HA and its like in the kit count as no finite forms: the
/// kit is what an editor takes in two letters.
bool Appartiene(const TrattiDiParola& tratti, Genia genia);
bool Appartiene(const Parola& parola, Genia genia);

/// What an entry of a kind is, as a predicate: "è una sigla".
std::string_view CheCosaE(Genia genia);

/// Why a word may not stand in any crossword under a set of rules, whatever the shares: an Italian
/// sentence, in which `chiamata` names the word if it is not to be its letters alone; none when it
/// may. Bans are not looked at.
std::optional<std::string> Divieto(const Parola& parola, const Regolamento& regole,
                                   std::string_view chiamata = {});
/// Whether it may, for those who ask for many.
bool Ammessa(const TrattiDiParola& tratti, const Regolamento& regole);

}  // namespace telarium
