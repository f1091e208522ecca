#include "composer/domain.h"

#include <algorithm>
#include <bit>

#include "composer/block_kernels.h"

namespace telarium {
namespace {

// So many words are gone through sooner as a list than as blocks.
int SogliaElenco(int blocchi) {
  return 16 + blocchi / 2;
}

// The letters of a listed word.
const char* LettereDi(const char* lettere, std::int32_t numero, int lunghezza) {
  return lettere + static_cast<std::size_t>(numero) * static_cast<std::size_t>(lunghezza);
}

}  // namespace

bool Dominio::Ha(int numero) const {
  if (blocchi) return Contiene(blocchi, numero);
  return std::binary_search(elenco, elenco + conta, numero);
}

int Dominio::Migliore() const {
  if (elenco) return elenco[0];
  int blocco = 0;
  while (blocchi[blocco] == 0)
    ++blocco;
  return blocco * ParolePerBlocco + std::countr_zero(blocchi[blocco]);
}

void Dominio::Prime(int quante, std::vector<int>& parole) const {
  quante = std::min(quante, conta);
  if (elenco) {
    parole.assign(elenco, elenco + quante);
    return;
  }
  parole.clear();
  for (int blocco = 0; static_cast<int>(parole.size()) < quante; ++blocco) {
    for (Blocco resto = blocchi[blocco]; resto != 0; resto &= resto - 1)
      parole.push_back(blocco * ParolePerBlocco + std::countr_zero(resto));
  }
  parole.resize(static_cast<std::size_t>(quante));
}

void ContaLettere(const Vocabolario& vocabolario, int lunghezza, const Dominio& dominio, int posto,
                  Lettere chieste, LettereContate& quante) {
  quante.fill(0);
  if (dominio.elenco) {
    const char* lettere = vocabolario.LettereDi(lunghezza);
    for (int k = 0; k < dominio.conta; ++k) {
      const char lettera = LettereDi(lettere, dominio.elenco[k], lunghezza)[posto];
      ++quante[static_cast<std::size_t>(lettera - 'A')];
    }
    return;
  }
  const auto blocchi = static_cast<std::size_t>(vocabolario.Blocchi(lunghezza));
  for (Lettere resto = chieste; resto != 0; resto &= resto - 1) {
    const int lettera = std::countr_zero(resto);
    quante[static_cast<std::size_t>(lettera)] = nuclei::ContaComuni(
        dominio.blocchi, vocabolario.Insieme(lunghezza, posto, lettera), blocchi);
  }
}

void UnisciLettere(const Vocabolario& vocabolario, int lunghezza, const Dominio& dominio,
                   std::span<Lettere> unione) {
  nuclei::UnisciLettere(vocabolario.LettereDi(lunghezza),
                        {dominio.elenco, static_cast<std::size_t>(dominio.conta)},
                        static_cast<std::size_t>(lunghezza), unione.data());
}

void Revisione::Comincia(int lunghezza, const Dominio& dominio, std::span<const Cambio> cambi) {
  lunghezza_ = lunghezza;
  elencata_ = dominio.elenco != nullptr;
  if (elencata_) {
    FiltraElenco(dominio, cambi);
  } else {
    FiltraBlocchi(dominio, cambi);
  }
}

void Revisione::FiltraElenco(const Dominio& dominio, std::span<const Cambio> cambi) {
  const char* lettere = vocabolario_.LettereDi(lunghezza_);
  elenco_.clear();
  for (int k = 0; k < dominio.conta; ++k) {
    const char* parola = LettereDi(lettere, dominio.elenco[k], lunghezza_);
    const bool resta = std::all_of(cambi.begin(), cambi.end(), [&](const Cambio& cambio) {
      return (cambio.rimaste & SolaLettera(parola[cambio.posto])) != 0;
    });
    if (resta) elenco_.push_back(dominio.elenco[k]);
  }
}

void Revisione::FiltraBlocchi(const Dominio& dominio, std::span<const Cambio> cambi) {
  if (blocchi_.size() < Blocchi()) blocchi_.resize(Blocchi());
  const Blocco* da = dominio.blocchi;
  for (const Cambio& cambio : cambi) {
    const bool tolti = QuanteLettere(cambio.perse) < QuanteLettere(cambio.rimaste);
    insiemi_.clear();
    for (Lettere resto = tolti ? cambio.perse : cambio.rimaste; resto != 0; resto &= resto - 1)
      insiemi_.push_back(vocabolario_.Insieme(lunghezza_, cambio.posto, std::countr_zero(resto)));
    nuclei::Incrocia(blocchi_.data(), da, Blocchi(), insiemi_, tolti);
    da = blocchi_.data();
  }
  if (da != blocchi_.data()) std::copy_n(da, Blocchi(), blocchi_.data());
}

bool Revisione::Togli(int numero) {
  if (!elencata_) {
    if (!Contiene(blocchi_.data(), numero)) return false;
    Leva(blocchi_.data(), numero);
    return true;
  }
  const auto dove = std::lower_bound(elenco_.begin(), elenco_.end(), numero);
  if (dove == elenco_.end() || *dove != numero) return false;
  elenco_.erase(dove);
  return true;
}

void Revisione::Togli(const Blocco* insieme) {
  if (elencata_) {
    std::erase_if(elenco_, [&](int numero) { return Contiene(insieme, numero); });
  } else {
    nuclei::Incrocia(blocchi_.data(), blocchi_.data(), Blocchi(), {&insieme, 1}, true);
  }
}

int Revisione::Conta() const {
  return elencata_ ? static_cast<int>(elenco_.size()) : nuclei::Conta(blocchi_.data(), Blocchi());
}

void Revisione::Elenca() {
  elenco_.clear();
  for (std::size_t k = 0; k < Blocchi(); ++k) {
    for (Blocco resto = blocchi_[k]; resto != 0; resto &= resto - 1)
      elenco_.push_back(static_cast<std::int32_t>(k) * ParolePerBlocco + std::countr_zero(resto));
  }
  elencata_ = true;
}

Dominio Revisione::Conserva(Arena& memoria, const Dominio& prima, bool riusa, int conta) {
  if (!elencata_ && conta <= SogliaElenco(static_cast<int>(Blocchi()))) Elenca();
  if (elencata_) {
    auto* elenco = riusa && prima.elenco ? const_cast<std::int32_t*>(prima.elenco)
                                         : memoria.Prendi<std::int32_t>(elenco_.size());
    std::copy(elenco_.begin(), elenco_.end(), elenco);
    return {nullptr, elenco, conta};
  }
  auto* blocchi = riusa ? const_cast<Blocco*>(prima.blocchi) : memoria.Prendi<Blocco>(Blocchi());
  std::copy_n(blocchi_.data(), Blocchi(), blocchi);
  return {blocchi, nullptr, conta};
}

}  // namespace telarium
