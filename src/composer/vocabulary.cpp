#include "composer/vocabulary.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "platform/check.h"

namespace telarium {
namespace {

// Bits of the marks that a vocabulary keeps of a word.
constexpr std::uint8_t SegnoDefinita = 1;
constexpr std::uint8_t SegnoPropria = 2;

bool Precede(const ParolaDaUsare* una, const ParolaDaUsare* altra) {
  if (una->pregio != altra->pregio) return una->pregio > altra->pregio;
  return una->lettere < altra->lettere;
}

void Ordina(std::vector<const ParolaDaUsare*>& parole) {
  if (!std::is_sorted(parole.begin(), parole.end(), Precede))
    std::sort(parole.begin(), parole.end(), Precede);
}

constexpr std::size_t BloccoDi(int numero) {
  return static_cast<std::size_t>(numero / ParolePerBlocco);
}

constexpr Blocco BitDi(int numero) {
  return Blocco{1} << (numero % ParolePerBlocco);
}

}  // namespace

Vocabolario::Vocabolario(std::span<const ParolaDaUsare> parole, Parentela parentela)
    : parentela_(std::move(parentela)) {
  std::array<std::vector<const ParolaDaUsare*>, MaxLunghezzaVoce + 1> perLunghezza;
  for (const ParolaDaUsare& parola : parole) {
    Verifica(LunghezzaDiVoce(parola.lettere.size()), "lunghezza della parola");
    perLunghezza[parola.lettere.size()].push_back(&parola);
  }
  for (int lunghezza = MinLunghezzaVoce; lunghezza <= MaxLunghezzaVoce; ++lunghezza) {
    Riempi(fasce_[static_cast<std::size_t>(lunghezza - MinLunghezzaVoce)], lunghezza,
           perLunghezza[static_cast<std::size_t>(lunghezza)]);
  }
}

void Vocabolario::Riempi(Fascia& fascia, int lunghezza, std::vector<const ParolaDaUsare*>& parole) {
  Ordina(parole);
  const std::size_t quante = parole.size();
  fascia.quante = static_cast<int>(quante);
  fascia.blocchi = (fascia.quante + ParolePerBlocco - 1) / ParolePerBlocco;
  const auto blocchi = static_cast<std::size_t>(fascia.blocchi);
  const auto lettere = static_cast<std::size_t>(lunghezza);
  fascia.lettere.reserve(quante * lettere);
  fascia.pregi.reserve(quante);
  fascia.punteggi.reserve(quante);
  fascia.segni.reserve(quante);
  fascia.genie.reserve(quante);
  fascia.insiemi.assign(lettere * LettereAlfabeto * blocchi, 0);
  for (auto& insieme : fascia.perGenia)
    insieme.assign(blocchi, 0);
  for (int numero = 0; numero < fascia.quante; ++numero) {
    const ParolaDaUsare& parola = *parole[static_cast<std::size_t>(numero)];
    fascia.lettere.insert(fascia.lettere.end(), parola.lettere.begin(), parola.lettere.end());
    fascia.pregi.push_back(static_cast<std::uint16_t>(parola.pregio));
    fascia.punteggi.push_back(static_cast<std::uint8_t>(parola.punteggio));
    fascia.segni.push_back(static_cast<std::uint8_t>((parola.definita ? SegnoDefinita : 0) |
                                                     (parola.propria ? SegnoPropria : 0)));
    fascia.genie.push_back(parola.genie);
    for (std::size_t posto = 0; posto < lettere; ++posto) {
      const auto lettera = static_cast<std::size_t>(parola.lettere[posto] - 'A');
      Verifica(lettera < LettereAlfabeto, "lettera della parola");
      fascia.insiemi[(posto * LettereAlfabeto + lettera) * blocchi + BloccoDi(numero)] |=
          BitDi(numero);
    }
    for (std::size_t genia = 0; genia < NumGenie; ++genia) {
      if (parola.genie >> genia & 1) fascia.perGenia[genia][BloccoDi(numero)] |= BitDi(numero);
    }
  }
}

std::string_view Vocabolario::Parola(NumeroParola parola) const {
  const auto lunghezza = static_cast<std::size_t>(parola.lunghezza);
  return {LettereDi(parola.lunghezza) + static_cast<std::size_t>(parola.numero) * lunghezza,
          lunghezza};
}

std::optional<NumeroParola> Vocabolario::Cerca(std::string_view parola) const {
  if (!LunghezzaDiVoce(parola.size())) return std::nullopt;
  const auto lunghezza = static_cast<int>(parola.size());
  if (Quante(lunghezza) == 0) return std::nullopt;
  std::vector<const Blocco*> insiemi;
  for (int posto = 0; posto < lunghezza; ++posto) {
    const int lettera = parola[static_cast<std::size_t>(posto)] - 'A';
    if (lettera < 0 || lettera >= LettereAlfabeto) return std::nullopt;
    insiemi.push_back(Insieme(lunghezza, posto, lettera));
  }
  for (int blocco = 0; blocco < Blocchi(lunghezza); ++blocco) {
    Blocco comuni = ~Blocco{0};
    for (std::size_t posto = 0; comuni != 0 && posto < insiemi.size(); ++posto)
      comuni &= insiemi[posto][blocco];
    if (comuni != 0)
      return NumeroParola{lunghezza, blocco * ParolePerBlocco + std::countr_zero(comuni)};
  }
  return std::nullopt;
}

int Vocabolario::Pregio(NumeroParola parola) const {
  return Di(parola.lunghezza).pregi[static_cast<std::size_t>(parola.numero)];
}

int Vocabolario::Punteggio(NumeroParola parola) const {
  return Di(parola.lunghezza).punteggi[static_cast<std::size_t>(parola.numero)];
}

bool Vocabolario::Definita(NumeroParola parola) const {
  return (Di(parola.lunghezza).segni[static_cast<std::size_t>(parola.numero)] & SegnoDefinita) != 0;
}

bool Vocabolario::Propria(NumeroParola parola) const {
  return (Di(parola.lunghezza).segni[static_cast<std::size_t>(parola.numero)] & SegnoPropria) != 0;
}

Genie Vocabolario::GenieDi(NumeroParola parola) const {
  return Di(parola.lunghezza).genie[static_cast<std::size_t>(parola.numero)];
}

std::vector<NumeroParola> Vocabolario::Parenti(std::string_view parola) const {
  std::vector<NumeroParola> parenti;
  if (!parentela_) return parenti;
  for (const std::string& altra : parentela_(parola)) {
    if (altra == parola) continue;
    if (const auto numero = Cerca(altra)) parenti.push_back(*numero);
  }
  return parenti;
}

std::vector<Blocco> Vocabolario::Ammesse(int lunghezza, int minimo, bool definite) const {
  const Fascia& fascia = Di(lunghezza);
  std::vector<Blocco> ammesse(static_cast<std::size_t>(fascia.blocchi), 0);
  for (int numero = 0; numero < fascia.quante; ++numero) {
    const auto parola = static_cast<std::size_t>(numero);
    const bool propria = (fascia.segni[parola] & SegnoPropria) != 0;
    const bool definita = (fascia.segni[parola] & SegnoDefinita) != 0;
    if (propria || (fascia.punteggi[parola] >= minimo && (definita || !definite)))
      ammesse[BloccoDi(numero)] |= BitDi(numero);
  }
  return ammesse;
}

std::span<const Blocco> Vocabolario::DellaGenia(int lunghezza, Genia genia) const {
  return Di(lunghezza).perGenia[static_cast<std::size_t>(genia)];
}

}  // namespace telarium
