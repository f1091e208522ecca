#pragma once

#include <cstddef>
#include <span>

#include "composer/vocabulary.h"

// The loops over sets of words in which a search spends its time. Each is compiled for processors
// with wide registers and a bit count too, and the loader takes what the machine has; the results
// are the same.
namespace telarium::nuclei {

/// The union of the sets in `insiemi`, each of `blocchi` blocks from its pointer on, taken with
/// `dominio` into `esito` (which may be `dominio`); with `tolti` what is in none of them instead.
void Incrocia(Blocco* esito, const Blocco* dominio, std::size_t blocchi,
              std::span<const Blocco* const> insiemi, bool tolti);

/// How many words are in a set.
int Conta(const Blocco* dominio, std::size_t blocchi);

/// How many words are in both sets.
int ContaComuni(const Blocco* uno, const Blocco* altro, std::size_t blocchi);

/// The first block from `da` on in which two sets have a word in common; `blocchi` for none.
std::size_t PrimoComune(const Blocco* uno, const Blocco* altro, std::size_t da,
                        std::size_t blocchi);

/// The letters that listed words have at each place, into `unione`; `lettere` are those of all
/// words of the length, as a vocabulary has them.
void UnisciLettere(const char* lettere, std::span<const std::int32_t> elenco, std::size_t lunghezza,
                   Lettere* unione);

}  // namespace telarium::nuclei
