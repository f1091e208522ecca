#include "composer/start.h"

#include "composer/block_kernels.h"

namespace telarium {
namespace {

// Finds the letters that the words of a base have at a place, and for each of them a block.
void CercaLettere(const Vocabolario& parole, int lunghezza, int posto, Base& base) {
  Lettere possibili = 0;
  for (int lettera = 0; lettera < LettereAlfabeto; ++lettera) {
    const Blocco* insieme = parole.Insieme(lunghezza, posto, lettera);
    const std::size_t trovato =
        nuclei::PrimoComune(base.parole.data(), insieme, 0, base.parole.size());
    const bool possibile = trovato < base.parole.size();
    if (possibile) possibili |= 1u << lettera;
    base.sostegni.push_back(possibile ? static_cast<std::uint16_t>(trovato) : 0);
  }
  base.lettere.push_back(possibili);
}

}  // namespace

Partenza::Partenza(const Problema& problema) : problema_(problema), reticolo_(problema) {
  for (const std::string& parola : problema.altrove) {
    if (const auto numero = Parole().Cerca(parola)) altrove_.push_back(*numero);
    if (problema.ammetteForme) continue;
    const auto parenti = Parole().Parenti(parola);
    altrove_.insert(altrove_.end(), parenti.begin(), parenti.end());
  }
  for (int slot = 0; slot < problema.Slot(); ++slot) {
    const int lunghezza = reticolo_.Lunghezza(slot);
    const int minimo = problema.slot[static_cast<std::size_t>(slot)].minimo;
    const auto [dove, nuova] = perMinimo_.try_emplace({lunghezza, minimo});
    Base& base = dove->second;
    if (nuova) {
      base.parole = Parole().Ammesse(lunghezza, minimo, problema.soloDefinite);
      AmmettiEsenti(lunghezza, minimo, base);
      TogliAltrove(lunghezza, base);
      base.conta = nuclei::Conta(base.parole.data(), base.parole.size());
      for (int posto = 0; posto < lunghezza; ++posto)
        CercaLettere(Parole(), lunghezza, posto, base);
    }
    basi_.push_back(&base);
  }
}

// Of words without a clue.
void Partenza::AmmettiEsenti(int lunghezza, int minimo, Base& base) const {
  if (!problema_.soloDefinite) return;
  for (const auto* const esenti : {&problema_.volute, &problema_.esenti}) {
    for (const std::string& parola : *esenti) {
      const auto numero = Parole().Cerca(parola);
      if (numero && numero->lunghezza == lunghezza && Parole().Punteggio(*numero) >= minimo)
        Metti(base.parole.data(), numero->numero);
    }
  }
}

void Partenza::TogliAltrove(int lunghezza, Base& base) const {
  for (const NumeroParola numero : altrove_) {
    if (numero.lunghezza == lunghezza) Leva(base.parole.data(), numero.numero);
  }
}

}  // namespace telarium
