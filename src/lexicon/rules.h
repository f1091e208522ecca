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

/// What may stand in a slot of two letters.
enum class DueLettere { Corredo, Tutte };
/// And in one of three, besides words and names: real abbreviations, explained letter play,
/// whatever a layer has.
enum class TreLettere { Parole, Gioco, Tutte };

/// A kind of entry that a set of rules may limit.
enum class Genia { Finita, Tronca, Nome, Sigla, Straniera };

/// A named set of rules.
struct Regolamento {
  std::string nome;
  std::array<Quota, 5> quote;  // by Genia
  DueLettere due = DueLettere::Corredo;
  TreLettere tre = TreLettere::Parole;

  const Quota& Di(Genia genia) const { return quote[static_cast<std::size_t>(genia)]; }
  bool operator==(const Regolamento&) const = default;
};

/// `severe` (the one that holds when none is named), `settimanali`, `libere`; none for another
/// name.
const Regolamento* RegolamentoDiNome(std::string_view nome);
inline constexpr std::string_view RegolamentoIniziale = "severe";

/// A set of rules from the text of a file: see telar-regole in the man page. `causa` says in
/// Italian, with the line's number, what is wrong when there is none.
std::optional<Regolamento> InterpretaRegolamento(std::string_view testoUtf8, std::string_view nome,
                                                 std::string& causa);

/// The limited kinds that a word belongs to.
bool Appartiene(const Parola& parola, Genia genia);

/// Why a word may not stand in any crossword under a set of rules, whatever the shares: an Italian
/// sentence; none when it may. Bans are not looked at. A word in two letters that the layers have
/// but the kit lacks is refused where the kit is asked for.
std::optional<std::string> Divieto(const Parola& parola, const Regolamento& regole);

}  // namespace telarium
