#pragma once

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>
#include <vector>

#include "composer/problem.h"

// The complete filler: it ends with a fill, with the proof that there is none, or out of time.
//
// The search runs in fixed lanes, each with a seed and a way of its own: one that begins anew after
// so many failures finds fills, one that never does finds proofs. The first lane searches alone for
// a fixed number of steps, then all of them take turns; the answer that took the fewest steps of
// its lane counts, of equal ones that of the lower lane. So the answer is the same whatever the
// number of workers. Steps are decisions and their failures; no clock decides anything.
namespace telarium {

enum class Esito { Riempito, Impossibile, Tempo };

/// How far a search may go, and what it is told on the way.
struct Limiti {
  std::uint64_t seme = 1;
  std::int64_t passi = 100'000'000;  // of all lanes together
  int lavoratori = 1;                // threads, the caller's own too
  std::stop_token ferma = {};        // ends it within a few milliseconds, as `Tempo`
};

struct Riempimento {
  Esito esito = Esito::Tempo;
  /// By cell, SenzaLettera for none. Of a fill every cell has a letter but those that are left;
  /// otherwise the most whole entries that were met, which may be none.
  std::string lettere;
  std::int64_t passi = 0;  // of the lane that answered; out of time those of all lanes
  /// How often each slot was left without words, by slot: the heavier, the harder. Never 0.
  std::vector<std::uint32_t> pesi;
};

/// Finds letters for a problem. A pure function: the same problem, seed and limit of steps give the
/// same answer, in any thread.
Riempimento Componi(const Problema& problema, const Limiti& limiti);

}  // namespace telarium
