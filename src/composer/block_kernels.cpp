#include "composer/block_kernels.h"

#include <algorithm>
#include <bit>

// Sanitizers start after the loader has already asked which version fits.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define TELARIUM_PIU_VERSIONI __attribute__((target_clones("arch=x86-64-v3", "default")))
#else
#define TELARIUM_PIU_VERSIONI
#endif

namespace telarium::nuclei {

TELARIUM_PIU_VERSIONI
void Incrocia(Blocco* esito, const Blocco* dominio, std::size_t blocchi,
              std::span<const Blocco* const> insiemi, bool tolti) {
  // A few sets at a time, so that a block is written once for them and not once for each.
  constexpr std::size_t fascio = 4;
  static constexpr std::size_t tratto = 64;  // blocks; their union stays in the registers' reach
  const Blocco inverti = tolti ? ~Blocco{0} : Blocco{0};
  for (std::size_t da = 0; da < blocchi; da += tratto) {
    const std::size_t quanti = std::min(tratto, blocchi - da);
    Blocco unione[tratto] = {};
    std::size_t i = 0;
    for (; i + fascio <= insiemi.size(); i += fascio) {
      const Blocco* a = insiemi[i] + da;
      const Blocco* b = insiemi[i + 1] + da;
      const Blocco* c = insiemi[i + 2] + da;
      const Blocco* d = insiemi[i + 3] + da;
      for (std::size_t k = 0; k < quanti; ++k)
        unione[k] |= a[k] | b[k] | c[k] | d[k];
    }
    for (; i < insiemi.size(); ++i) {
      const Blocco* a = insiemi[i] + da;
      for (std::size_t k = 0; k < quanti; ++k)
        unione[k] |= a[k];
    }
    for (std::size_t k = 0; k < quanti; ++k)
      esito[da + k] = dominio[da + k] & (unione[k] ^ inverti);
  }
}

TELARIUM_PIU_VERSIONI
int Conta(const Blocco* dominio, std::size_t blocchi) {
  int conta = 0;
  for (std::size_t k = 0; k < blocchi; ++k)
    conta += std::popcount(dominio[k]);
  return conta;
}

TELARIUM_PIU_VERSIONI
int ContaComuni(const Blocco* uno, const Blocco* altro, std::size_t blocchi) {
  int conta = 0;
  for (std::size_t k = 0; k < blocchi; ++k)
    conta += std::popcount(uno[k] & altro[k]);
  return conta;
}

TELARIUM_PIU_VERSIONI
std::size_t PrimoComune(const Blocco* uno, const Blocco* altro, std::size_t da,
                        std::size_t blocchi) {
  constexpr std::size_t passo = 8;
  while (da + passo <= blocchi) {
    Blocco qualcuno = 0;
    for (std::size_t k = 0; k < passo; ++k)
      qualcuno |= uno[da + k] & altro[da + k];
    if (qualcuno != 0) break;
    da += passo;
  }
  while (da < blocchi && (uno[da] & altro[da]) == 0)
    ++da;
  return da;
}

TELARIUM_PIU_VERSIONI
void UnisciLettere(const char* lettere, std::span<const std::int32_t> elenco, std::size_t lunghezza,
                   Lettere* unione) {
  // A register of places at once; what is read behind the end of a word is left out.
  constexpr std::size_t posti = Vocabolario::Margine;
  for (std::size_t da = 0; da < lunghezza; da += posti) {
    Lettere parte[posti] = {};
    for (const std::int32_t numero : elenco) {
      const char* parola = lettere + static_cast<std::size_t>(numero) * lunghezza + da;
      for (std::size_t posto = 0; posto < posti; ++posto)
        parte[posto] |= Lettere{1} << (static_cast<unsigned>(parola[posto] - 'A') % 32);
    }
    std::copy_n(parte, std::min(posti, lunghezza - da), unione + da);
  }
}

}  // namespace telarium::nuclei
