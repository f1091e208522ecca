#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "composer/arena.h"
#include "composer/vocabulary.h"

// The words that are left in a slot, and how they get fewer.
//
// While they are many they are a set of blocks over all words of the length, then a list of their
// numbers. Arrays never change once they are kept, but for those that the present level of a search
// made itself, so that going back a level restores pointers (compare the reversible sparse bit sets
// of Demeulenaere and others, "Compact-Table", 2016).
namespace telarium {

struct Dominio {
  const Blocco* blocchi = nullptr;       // null when they are listed
  const std::int32_t* elenco = nullptr;  // their numbers, rising
  int conta = 0;

  bool Ha(int numero) const;
  /// The number of the best word; there must be one.
  int Migliore() const;
  /// The best `quante` words, at the most, best first.
  void Prime(int quante, std::vector<int>& parole) const;
};

/// What a place of a slot has lost, and what is left.
struct Cambio {
  int posto = 0;
  Lettere perse = 0;
  Lettere rimaste = 0;
};

/// How many words have each letter at a place.
using LettereContate = std::array<int, LettereAlfabeto>;
void ContaLettere(const Vocabolario& vocabolario, int lunghezza, const Dominio& dominio, int posto,
                  Lettere chieste, LettereContate& quante);

/// The letters that listed words have, by place, into `unione`.
void UnisciLettere(const Vocabolario& vocabolario, int lunghezza, const Dominio& dominio,
                   std::span<Lettere> unione);

/// The words of one slot while they are gone through.
class Revisione {
 public:
  explicit Revisione(const Vocabolario& vocabolario) : vocabolario_(vocabolario) {}

  /// Takes the words of a slot that the letters leave.
  void Comincia(int lunghezza, const Dominio& dominio, std::span<const Cambio> cambi);
  /// Takes a word out; false when it was not among them.
  bool Togli(int numero);
  /// Takes out all words of a set.
  void Togli(const Blocco* insieme);

  int Conta() const;
  bool Elencata() const { return elencata_; }
  /// The words, `conta` of them, in arrays of the arena, as a list when they are few. The arrays of
  /// `prima` are used again with `riusa`.
  Dominio Conserva(Arena& memoria, const Dominio& prima, bool riusa, int conta);

 private:
  std::size_t Blocchi() const { return static_cast<std::size_t>(vocabolario_.Blocchi(lunghezza_)); }
  void FiltraElenco(const Dominio& dominio, std::span<const Cambio> cambi);
  void FiltraBlocchi(const Dominio& dominio, std::span<const Cambio> cambi);
  void Elenca();

  const Vocabolario& vocabolario_;
  int lunghezza_ = MinLunghezzaVoce;
  bool elencata_ = false;
  std::vector<Blocco> blocchi_;
  std::vector<std::int32_t> elenco_;
  std::vector<const Blocco*> insiemi_;
};

}  // namespace telarium
