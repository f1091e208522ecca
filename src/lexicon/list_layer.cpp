#include "lexicon/list_layer.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include "platform/check.h"

namespace telarium {
namespace {

int PunteggioDi(const ElencoParole::Voce& voce) {
  return voce.punteggio == ElencoParole::SenzaPunteggio ? PunteggioIgnoto : voce.punteggio;
}

// The order of a layer: by length, the better scores first, equal ones by the letters.
bool Precede(const ElencoParole::Voce& una, const ElencoParole::Voce& altra) {
  if (una.parola.size() != altra.parola.size()) return una.parola.size() < altra.parola.size();
  const int punteggio = PunteggioDi(una), altro = PunteggioDi(altra);
  return punteggio != altro ? punteggio > altro : una.parola < altra.parola;
}

std::vector<std::uint32_t> InOrdine(const ElencoParole& elenco) {
  std::vector<std::uint32_t> numeri(elenco.Quante());
  std::iota(numeri.begin(), numeri.end(), 0u);
  std::sort(numeri.begin(), numeri.end(), [&](std::uint32_t uno, std::uint32_t altro) {
    return Precede(elenco[uno], elenco[altro]);
  });
  return numeri;
}

}  // namespace

bool ElencoParole::Metti(std::string_view parola, std::string_view grafia, int punteggio) {
  Verifica(LunghezzaDiVoce(parola.size()), "a word of a length that no entry has");
  const auto lettere = [this](std::uint32_t numero) { return Lettere(numero); };
  if (const auto numero = indice_.Cerca(parola, lettere)) {
    if (punteggio != SenzaPunteggio)
      righe_[*numero].punteggio = static_cast<std::int8_t>(punteggio);
    return false;
  }
  if (grafia == parola || grafia.size() > std::numeric_limits<std::uint8_t>::max()) grafia = {};
  righe_.push_back({.inizio = static_cast<std::uint32_t>(testi_.size()),
                    .lunghezza = static_cast<std::uint8_t>(parola.size()),
                    .lunghezzaGrafia = static_cast<std::uint8_t>(grafia.size()),
                    .punteggio = static_cast<std::int8_t>(punteggio)});
  testi_ += parola;
  testi_ += grafia;
  indice_.Aggiungi(parola, lettere);
  return true;
}

void ElencoParole::RaddoppiaPunteggi() {
  for (Riga& riga : righe_) {
    if (riga.punteggio == SenzaPunteggio) continue;
    riga.punteggio = static_cast<std::int8_t>(std::min(2 * riga.punteggio, MaxPunteggio));
  }
}

std::optional<std::uint32_t> ElencoParole::Cerca(std::string_view parola) const {
  return indice_.Cerca(parola, [this](std::uint32_t numero) { return Lettere(numero); });
}

ElencoParole::Voce ElencoParole::operator[](std::size_t numero) const {
  const Riga& riga = righe_[numero];
  const std::string_view testi = testi_;
  const std::string_view parola = testi.substr(riga.inizio, riga.lunghezza);
  const std::string_view grafia =
      riga.lunghezzaGrafia == 0 ? parola
                                : testi.substr(riga.inizio + riga.lunghezza, riga.lunghezzaGrafia);
  return {.parola = parola, .grafia = grafia, .punteggio = riga.punteggio};
}

std::string_view ElencoParole::Lettere(std::uint32_t numero) const {
  return std::string_view(testi_).substr(righe_[numero].inizio, righe_[numero].lunghezza);
}

StratoElenco::StratoElenco(std::string nome, const ElencoParole& elenco)
    : Strato(std::move(nome)), inizi_{0}, iniziGrafie_{0} {
  inizi_.reserve(elenco.Quante() + 1);
  iniziGrafie_.reserve(elenco.Quante() + 1);
  punteggi_.reserve(elenco.Quante());
  indice_.Riserva(elenco.Quante());
  for (const std::uint32_t numero : InOrdine(elenco))
    Prendi(elenco[numero]);
  std::partial_sum(prime_.begin(), prime_.end(), prime_.begin());
}

void StratoElenco::Prendi(const ElencoParole::Voce& voce) {
  lettere_ += voce.parola;
  inizi_.push_back(static_cast<std::uint32_t>(lettere_.size()));
  punteggi_.push_back(static_cast<std::int8_t>(voce.punteggio));
  if (voce.grafia != voce.parola) grafie_ += voce.grafia;
  iniziGrafie_.push_back(static_cast<std::uint32_t>(grafie_.size()));
  ++prime_[voce.parola.size() + 1];
  indice_.Aggiungi(voce.parola, [this](NumeroVoce numero) { return Parola(numero); });
}

int StratoElenco::Conta(int lunghezza) const {
  if (!LunghezzaDiVoce(static_cast<std::size_t>(lunghezza))) return 0;
  return static_cast<int>(Prima(lunghezza + 1) - Prima(lunghezza));
}

NumeroVoce StratoElenco::Prima(int lunghezza) const {
  return prime_[static_cast<std::size_t>(std::clamp(lunghezza, 0, MaxLunghezzaVoce + 1))];
}

std::optional<NumeroVoce> StratoElenco::Cerca(std::string_view parola) const {
  return indice_.Cerca(parola, [this](NumeroVoce numero) { return Parola(numero); });
}

std::string_view StratoElenco::Parola(NumeroVoce numero) const {
  return std::string_view(lettere_).substr(inizi_[numero], inizi_[numero + 1] - inizi_[numero]);
}

int StratoElenco::Punteggio(NumeroVoce numero) const {
  return HaPunteggio(numero) ? punteggi_[numero] : PunteggioIgnoto;
}

bool StratoElenco::HaPunteggio(NumeroVoce numero) const {
  return punteggi_[numero] != ElencoParole::SenzaPunteggio;
}

Voce StratoElenco::Leggi(NumeroVoce numero) const {
  const std::string_view parola = Parola(numero);
  const std::uint32_t inizio = iniziGrafie_[numero], fine = iniziGrafie_[numero + 1];
  return {
      .parola = parola,
      .grafia = inizio == fine ? parola : std::string_view(grafie_).substr(inizio, fine - inizio),
      .punteggio = Punteggio(numero),
      .segni = {},
      .letture = {}};
}

}  // namespace telarium
