#include "composer/vocabulary.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <utility>

#include "platform/check.h"

namespace telarium {
namespace {

void Controlla(std::span<const ParolaDaUsare> parole, int lunghezza) {
  for (const ParolaDaUsare& parola : parole) {
    Verifica(parola.lettere.size() == static_cast<std::size_t>(lunghezza),
             "lunghezza della parola");
    Verifica(parola.pregio >= 0 && parola.pregio <= MaxPregio, "pregio della parola");
  }
}

// The words in the order of a vocabulary, by where they stand. Layers come nearly in order: it is
// enough to part the words by their worth, and to look whether each part is in order.
std::vector<std::uint32_t> InOrdine(std::span<const ParolaDaUsare> parole) {
  std::vector<std::uint32_t> fine(std::size_t{MaxPregio} + 2, 0);
  const auto parte = [](const ParolaDaUsare& parola) {
    return static_cast<std::size_t>(MaxPregio - parola.pregio);
  };
  for (const ParolaDaUsare& parola : parole)
    ++fine[parte(parola) + 1];
  std::partial_sum(fine.begin(), fine.end(), fine.begin());
  std::vector<std::uint32_t> ordine(parole.size());
  for (std::uint32_t i = 0; i < parole.size(); ++i)
    ordine[fine[parte(parole[i])]++] = i;
  const auto lettere = [&](std::uint32_t quale) { return parole[quale].lettere; };
  for (std::size_t inizio = 0; inizio < ordine.size();) {
    const std::size_t dopo = fine[parte(parole[ordine[inizio]])];
    const auto questi = std::span(ordine).subspan(inizio, dopo - inizio);
    if (!std::ranges::is_sorted(questi, {}, lettere)) std::ranges::sort(questi, {}, lettere);
    inizio = dopo;
  }
  return ordine;
}

// Adds a block of words, the letters of at most 64 of them one behind the other, to the sets of
// their letters. Set by set a block is written once, so that all that is in use stays near.
void SegnaLettere(std::string_view lettere, std::size_t lunghezza, std::size_t blocco,
                  std::size_t blocchi, std::vector<Blocco>& insiemi) {
  for (std::size_t posto = 0; posto < lunghezza; ++posto) {
    std::array<Blocco, LettereAlfabeto> parti{};
    Blocco bit = 1;
    for (std::size_t i = posto; i < lettere.size(); i += lunghezza, bit <<= 1) {
      parti[static_cast<std::size_t>(lettere[i] - 'A')] |= bit;
    }
    for (std::size_t lettera = 0; lettera < parti.size(); ++lettera)
      insiemi[(posto * LettereAlfabeto + lettera) * blocchi + blocco] = parti[lettera];
  }
}

}  // namespace

std::vector<std::uint32_t> ComposizioneVocabolario::Metti(int lunghezza,
                                                          std::span<const ParolaDaUsare> parole) {
  Verifica(LunghezzaDiVoce(static_cast<std::size_t>(lunghezza)), "lunghezza delle parole");
  Controlla(parole, lunghezza);
  std::vector<std::uint32_t> ordine = InOrdine(parole);
  vocabolario_.fasce_[static_cast<std::size_t>(lunghezza - MinLunghezzaVoce)].Riempi(
      lunghezza, parole, ordine);
  return ordine;
}

Vocabolario ComposizioneVocabolario::Chiudi(Vocabolario::ParentelaPerNumeri parenti) && {
  vocabolario_.perNumeri_ = std::move(parenti);
  return std::move(vocabolario_);
}

Vocabolario::Vocabolario(std::span<const ParolaDaUsare> parole, Parentela parentela) {
  std::array<std::vector<ParolaDaUsare>, MaxLunghezzaVoce + 1> perLunghezza;
  for (const ParolaDaUsare& parola : parole) {
    Verifica(LunghezzaDiVoce(parola.lettere.size()), "lunghezza della parola");
    perLunghezza[parola.lettere.size()].push_back(parola);
  }
  ComposizioneVocabolario composizione;
  for (int lunghezza = MinLunghezzaVoce; lunghezza <= MaxLunghezzaVoce; ++lunghezza)
    composizione.Metti(lunghezza, perLunghezza[static_cast<std::size_t>(lunghezza)]);
  *this = std::move(composizione).Chiudi();
  parentela_ = std::move(parentela);
}

void Vocabolario::Fascia::Riempi(int lunghezza, std::span<const ParolaDaUsare> parole,
                                 std::span<const std::uint32_t> ordine) {
  quante = static_cast<int>(ordine.size());
  blocchi = (quante + ParolePerBlocco - 1) / ParolePerBlocco;
  const auto quanteLettere = static_cast<std::size_t>(lunghezza);
  lettere.reserve(ordine.size() * quanteLettere + Margine);
  pregi.reserve(ordine.size());
  punteggi.reserve(ordine.size());
  genie.reserve(ordine.size());
  const auto quantiBlocchi = static_cast<std::size_t>(blocchi);
  definite.assign(quantiBlocchi, 0);
  proprie.assign(quantiBlocchi, 0);
  estremi.assign(quantiBlocchi, {});
  for (auto& insieme : perGenia)
    insieme.assign(quantiBlocchi, 0);
  for (const std::uint32_t quale : ordine)
    Aggiungi(parole[quale]);
  SegnaInsiemi(quanteLettere);
  lettere.resize(lettere.size() + Margine);
}

void Vocabolario::Fascia::Aggiungi(const ParolaDaUsare& parola) {
  const auto numero = static_cast<int>(pregi.size());
  lettere.insert(lettere.end(), parola.lettere.begin(), parola.lettere.end());
  pregi.push_back(static_cast<std::uint16_t>(parola.pregio));
  punteggi.push_back(static_cast<std::uint8_t>(parola.punteggio));
  if (parola.definita) Metti(definite.data(), numero);
  if (parola.propria) Metti(proprie.data(), numero);
  Estremi& estremo = estremi[static_cast<std::size_t>(numero / ParolePerBlocco)];
  estremo.minimo = std::min(estremo.minimo, punteggi.back());
  estremo.massimo = std::max(estremo.massimo, punteggi.back());
  const Genie limitate = parola.propria ? Genie{0} : parola.genie;
  genie.push_back(limitate);
  for (std::size_t genia = 0; limitate >> genia != 0; ++genia) {
    if (limitate >> genia & 1) Metti(perGenia[genia].data(), numero);
  }
}

void Vocabolario::Fascia::SegnaInsiemi(std::size_t lunghezza) {
  const auto quanti = static_cast<std::size_t>(blocchi);
  insiemi.resize(lunghezza * LettereAlfabeto * quanti);
  const std::string_view tutte(lettere.data(), lettere.size());
  Verifica(DiLettere(tutte), "lettere delle parole");
  for (std::size_t blocco = 0; blocco < quanti; ++blocco) {
    SegnaLettere(tutte.substr(blocco * ParolePerBlocco * lunghezza, ParolePerBlocco * lunghezza),
                 lunghezza, blocco, quanti, insiemi);
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
  return Contiene(Di(parola.lunghezza).definite.data(), parola.numero);
}

bool Vocabolario::Propria(NumeroParola parola) const {
  return Contiene(Di(parola.lunghezza).proprie.data(), parola.numero);
}

Genie Vocabolario::GenieDi(NumeroParola parola) const {
  return Di(parola.lunghezza).genie[static_cast<std::size_t>(parola.numero)];
}

std::vector<NumeroParola> Vocabolario::Parenti(std::string_view parola) const {
  if (perNumeri_) return perNumeri_(parola);
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
  for (std::size_t k = 0; k < ammesse.size(); ++k) {
    const Blocco possibili = definite ? fascia.definite[k] : ~Blocco{0};
    ammesse[k] = (fascia.DalPunteggio(k, minimo) & possibili) | fascia.proprie[k];
  }
  return ammesse;
}

Blocco Vocabolario::Fascia::DalPunteggio(std::size_t blocco, int minimo) const {
  if (estremi[blocco].massimo < minimo) return 0;
  const std::size_t prima = blocco * ParolePerBlocco;
  const std::size_t parole = std::min<std::size_t>(ParolePerBlocco, punteggi.size() - prima);
  if (estremi[blocco].minimo >= minimo) return ~Blocco{0} >> (ParolePerBlocco - parole);
  Blocco bastano = 0;
  for (std::size_t k = 0; k < parole; ++k)
    bastano |= Blocco{punteggi[prima + k] >= minimo} << k;
  return bastano;
}

std::span<const Blocco> Vocabolario::DellaGenia(int lunghezza, Genia genia) const {
  return Di(lunghezza).perGenia[static_cast<std::size_t>(genia)];
}

}  // namespace telarium
