#pragma once

#include <cstdint>
#include <span>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

#include "composer/random.h"
#include "composer/state.h"

// One lane of the search: backtracking with propagation after each decision.
//
//   - Wanted words are placed first, the one with the fewest slots before the others.
//   - The slot of least log2(words) for its weight is next; the weight of a slot and of those that
//     cross it rises by one each time that one of them is left without words (dom/wdeg: Boussemart,
//     Hemery, Lecoutre and Sais, 2004).
//   - At first the slot gets one of its best words; after so many failures only the letter of one
//     cell is decided at a time, that which leaves both slots most words, with some chance.
//   - A conflict goes back to the last level that has a part in it, and what was decided there is
//     taken out, for the reason of the others (conflict-directed backjumping: Prosser, 1993).
//   - Decisions can be presumed below all others, to be dropped by hand only: what is then found
//     impossible is so together with them.
//   - A lane that looks for fills begins anew after so many failures, each time more, and keeps
//     weights and what is refuted for good.
namespace telarium {

/// How a lane searches.
struct Maniera {
  std::uint64_t seme = 1;
  int falliteAParole = 0;  // failures for which whole words are decided
  int primaRipresa = 0;    // failures before it begins anew for the first time; 0: never
};

/// Integer logarithm to the base 2 of a number from 1 on, in 1/256.
int Logaritmo(int numero);

class Ricerca {
 public:
  Ricerca(const Partenza& partenza, const Maniera& maniera);

  enum class Fine { Riempito, Impossibile, Sospesa };

  struct Decisione {
    int slot = -1;  // of a word; -1: of a letter
    int casella = -1;
    int valore = 0;  // number of the word, or letter
  };

  /// Root consistency. False when nothing can fill the problem.
  bool Comincia();

  /// Drops the search so far and presumes these decisions too, all in one level above what was
  /// presumed before. False on a conflict; they are to be dropped then. After Comincia has given
  /// true.
  bool Presumi(std::span<const Decisione> decisioni);
  /// Drops the search so far and all levels of presumptions but the first so many.
  void Rinuncia(int livelli);
  /// Words that are tried first from now on where they may still stand, by slot; -1: none.
  void Segui(std::vector<int> parole) { guida_ = std::move(parole); }

  /// Searches on until it ends or has done so many steps since it began, or is stopped.
  Fine Continua(std::int64_t passi, const std::stop_token& ferma);

  std::int64_t Passi() const { return passi_; }
  const Stato& Ora() const { return stato_; }
  /// The most whole entries that were met, and by cell their letters; of a fill all letters.
  int PiuPosati() const { return piuPosati_; }
  std::string LettereTrovate() const;
  void PrendiPesi(const std::vector<std::uint32_t>& pesi);
  const std::vector<std::uint32_t>& Pesi() const { return pesi_; }

 private:
  enum class Scelta { Fatta, Nessuna, Vicolo };

  static constexpr std::size_t S(int numero) { return static_cast<std::size_t>(numero); }
  const Reticolo& Griglia() const { return partenza_.Griglia(); }
  const Problema& Di() const { return partenza_.Di(); }

  Scelta Scegli(Decisione& decisione);
  Scelta ScegliVoluta(Decisione& decisione);
  bool Aperto(int slot) const;
  int ScegliSlot();
  Decisione ScegliParola(int slot);
  Decisione ScegliLettera(int slot);
  bool Decidi(const Decisione& decisione);
  bool Assegna(const Decisione& decisione);
  bool Ritratta();
  bool Togli(const Decisione& decisione, const Ragione& perche);
  void Pesa(int slot);
  void Riprendi();
  void Annota();

  const Partenza& partenza_;
  Maniera maniera_;
  Stato stato_;
  Caso caso_;
  bool cominciata_ = false;
  bool possibile_ = true;   // as far as root consistency tells
  int presunti_ = 0;        // levels of presumptions
  std::vector<int> guida_;  // words to be tried first, by slot; empty: none
  bool riempita_ = false;
  std::vector<Decisione> decisioni_;       // of each level
  std::vector<NumeroParola> volute_;       // wanted words
  std::vector<std::uint32_t> pesi_;        // of each slot
  std::vector<std::uint32_t> pesiVicini_;  // with those of the slots that cross it
  Ragione ragione_;                        // of the present conflict
  std::int64_t passi_ = 0;
  std::int64_t fallite_ = 0;
  std::int64_t prossimaRipresa_ = 0;
  std::int64_t attesa_ = 0;
  int piuPosati_ = 0;
  std::string migliori_;  // letters of all fixed cells when most entries were whole
  std::vector<int> prime_;
};

}  // namespace telarium
