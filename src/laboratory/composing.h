#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "laboratory/composition.h"
#include "laboratory/remedies.h"

// A composition from the search to all that is told of it: fills, their floor and improvement; or,
// where there is none, the guilty entries and what would help. Console and window run the same.
namespace telarium {

/// What a composition was made from. All of it must outlive what uses it.
struct FontiComposizione {
  const SceltaComposizione& scelta;
  const Lessico& lessico;
  const Copertura* copertura;  // null: no word has a clue
  LuoghiLessico luoghi;        // where further languages lie
};

/// What is wanted beside the problem itself.
struct RichiestaComposizione {
  std::int64_t finestre = 5'000;  // of the improvement
  bool soglia = false;            // first the highest least score, with its proof
  int proposte = 1;               // fills that differ in at least half of their entries
};

enum class FaseComposizione { Ricerca, Soglia, Miglioramento, Colpevoli, Rimedi };

struct AvanzamentoComposizione {
  FaseComposizione fase;
  std::int64_t finestre = 0;             // done, while it is improved
  const std::string* lettere = nullptr;  // the best fill so far, by cell of the problem
};
/// Called now and then, and at the start of each phase, in the thread that composes.
using SegueComposizione = std::function<void(const AvanzamentoComposizione&)>;

/// A fill.
struct Proposta {
  std::string lettere = {};  // by cell of the problem
  std::int64_t passi = 0;    // of all that was tried for it
  /// When the first fill stood that it was made from. A clock decides nothing: this is for telling
  /// alone.
  std::chrono::steady_clock::time_point primo = {};
  bool interrotta = false;  // a stop has cut its improvement
};

/// The floor of the fills.
struct SogliaTrovata {
  int fino = 0;              // no score of theirs is lower
  std::optional<int> oltre;  // with this as the least there is no fill; none: not proved
};

struct RisultatoComposizione {
  Esito esito = Esito::Tempo;
  std::vector<Proposta> proposte;       // Riempito: one or more, up to as many as were wanted
  std::optional<SogliaTrovata> soglia;  // Riempito, when it was wanted
  /// When it is not Riempito: by cell of the problem, the most whole entries that were met.
  std::string lettere;
  std::int64_t passi = 0;  // of all that was tried
  /// When it is Impossibile, in reading order: the entries for which there are no words, whatever
  /// stands in the others.
  std::vector<Slot> colpevoli;
  std::vector<std::string> volute;  // the wanted words for which they have no place
  std::vector<Rimedio> rimedi;      // each tried
};

/// Composes a crossword. `limiti.passi` are those of all phases together: what one has taken the
/// next one lacks. A stop ends it soon, with what there is by then: a fill that stands is Riempito,
/// a proof that stands Impossibile. Any thread; the same composition, request, seed and steps give
/// the same result, but for what a stop has cut.
RisultatoComposizione ComponiCruciverba(const Composizione& composizione,
                                        const FontiComposizione& fonti,
                                        const RichiestaComposizione& richiesta,
                                        const Limiti& limiti, const SegueComposizione& segui = {});

/// What is told of a fill.
struct CifreRiempimento {
  int voci = 0;      // runs of two and more cells
  int definite = 0;  // those that have a clue, of the wanted family in the store or of their own
  // Of the scores that count: not those of the author's own words, nor of two letters where the
  // rules take any. Empty where none counts.
  std::string media;  // one decimal
  std::string minimo;
};

/// `riempito` is what ConLettere has made of the composition.
CifreRiempimento CifreDi(const Composizione& composizione, const Cruciverba& riempito,
                         const FontiComposizione& fonti);

}  // namespace telarium
