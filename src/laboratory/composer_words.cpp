#include "laboratory/composer_words.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <limits>
#include <thread>
#include <utility>

#include "laboratory/entries.h"
#include "laboratory/kinship.h"

namespace telarium {
namespace {

// What rules say of a word: whether they allow it, and of which limited kinds it is.
struct Giudizio {
  bool ammessa = false;
  Genie genie = 0;
};

Giudizio Giudica(const TrattiDiParola& tratti, const Regolamento& regole) {
  Giudizio giudizio{.ammessa = Ammessa(tratti, regole)};
  for (int i = 0; i < NumGenie; ++i) {
    const auto genia = static_cast<Genia>(i);
    if (Appartiene(tratti, genia)) giudizio.genie |= SolaGenia(genia);
  }
  return giudizio;
}

// The judgements of all that an entry of one layer can be, so that whole layers are gone through.
// Entries of two letters have rules of their own, all longer ones share theirs.
class GiudiziDelLivello {
 public:
  GiudiziDelLivello(Origine origine, const Regolamento& regole) {
    for (std::size_t lettere = MinLunghezzaVoce; lettere <= MinLunghezzaVoce + 1; ++lettere) {
      for (int punteggio = 0; punteggio <= 1; ++punteggio) {
        for (std::uint16_t segni = 0; segni < QuantiSegni; ++segni) {
          const TrattiDiParola tratti = TrattiDiUnica(origine, lettere, punteggio, segni);
          if (tratti.segni.Ha(Segno::Bandita)) continue;
          giudizi_[Posto(lettere, punteggio) + segni] = Giudica(tratti, regole);
        }
      }
    }
  }

  const Giudizio& Di(std::size_t lettere, int punteggio, std::uint16_t segni) const {
    return giudizi_[Posto(lettere, punteggio) + segni % QuantiSegni];
  }

 private:
  static constexpr std::size_t QuantiSegni = 2 * BitSoloFinita;

  // A score of 0 may be a ban; any other one says nothing here.
  static std::size_t Posto(std::size_t lettere, int punteggio) {
    return QuantiSegni * (2 * (lettere > MinLunghezzaVoce) + (punteggio > 0));
  }

  std::array<Giudizio, QuantiSegni * 4> giudizi_{};
};

// What all lengths share.
struct Fondo {
  Fondo(const SceltaParole& scelta, const Lessico& lessico, const Copertura* copertura,
        const ParoleDiCruciverba& delCruciverba)
      : scelta(scelta),
        lessico(lessico),
        copertura(copertura),
        delCruciverba(delCruciverba),
        vietate(lessico, delCruciverba.vietate) {
    for (const Lessico::Livello& livello : lessico.Livelli())
      giudizi.emplace_back(livello.origine, scelta.regole);
  }

  // Entries of two letters of which nothing is demanded.
  bool Libere(int lunghezza) const {
    return lunghezza == MinLunghezzaVoce && scelta.regole.due == DueLettere::Tutte;
  }

  const SceltaParole& scelta;
  const Lessico& lessico;
  const Copertura* copertura;
  const ParoleDiCruciverba& delCruciverba;
  ParoleVietate vietate;
  std::vector<GiudiziDelLivello> giudizi;
};

constexpr std::array<std::array<char, 2>, LettereAlfabeto* LettereAlfabeto> TutteLeCoppie = [] {
  std::array<std::array<char, 2>, LettereAlfabeto * LettereAlfabeto> coppie{};
  for (std::size_t i = 0; i < coppie.size(); ++i)
    coppie[i] = {static_cast<char>('A' + i / LettereAlfabeto),
                 static_cast<char>('A' + i % LettereAlfabeto)};
  return coppie;
}();

// Of a word without readings.
constexpr Lessico::Fonte SenzaFonte = {std::numeric_limits<std::uint32_t>::max(), 0};

// Gathers the words of one length after the other. Nearly all of them stand in one layer alone, and
// nobody has named them: those are taken layer by layer. The others go the long way, through all
// layers.
class Raccolta {
 public:
  explicit Raccolta(const Fondo& fondo) : fondo_(fondo), memorie_(fondo.giudizi.size()) {}

  void Raccogli(int lunghezza) {
    lunghezza_ = lunghezza;
    particolari_.clear();
    parole_.clear();
    fonti_.clear();
    if (fondo_.Libere(lunghezza_)) {
      for (const auto& coppia : TutteLeCoppie)
        particolari_.emplace_back(coppia.data(), coppia.size());
    } else {
      TrovaParticolari();
      for (std::uint32_t livello = 0; livello < Livelli().size(); ++livello)
        PrendiLivello(livello);
    }
    for (const std::string_view parola : particolari_)
      PrendiParticolare(parola);
    SegnaDefinite();
    if (fondo_.scelta.definizioni == UsoDefinizioni::Obbligatorie) TieniDefinite();
  }

  void Metti(ComposizioneVocabolario& composizione, Parentele* parentele) const {
    const auto ordine = composizione.Metti(lunghezza_, parole_);
    if (!parentele) return;
    for (std::size_t numero = 0; numero < ordine.size(); ++numero) {
      if (const Lessico::Fonte& fonte = fonti_[ordine[numero]]; fonte.livello != SenzaFonte.livello)
        parentele->Metti(fonte, {lunghezza_, static_cast<int>(numero)});
    }
  }

 private:
  const std::vector<Lessico::Livello>& Livelli() const { return fondo_.lessico.Livelli(); }

  void TrovaParticolari() {
    for (const InsiemeDiParole* nominate :
         {&fondo_.lessico.Vietate(), &fondo_.lessico.Ammesse(), &fondo_.delCruciverba.vietate,
          &fondo_.delCruciverba.proprie}) {
      for (const std::string& parola : *nominate) {
        if (static_cast<int>(parola.size()) == lunghezza_) particolari_.emplace_back(parola);
      }
    }
    for (std::size_t uno = 0; uno < Livelli().size(); ++uno) {
      for (std::size_t altro = 0; altro < uno; ++altro)
        TrovaComuni(*Livelli()[uno].strato, *Livelli()[altro].strato);
    }
    std::ranges::sort(particolari_);
    const auto doppie = std::ranges::unique(particolari_);
    particolari_.erase(doppie.begin(), doppie.end());
  }

  // The words that two layers have: those of the smaller one are looked for in the other one.
  void TrovaComuni(const Strato& uno, const Strato& altro) {
    const bool minore = uno.Conta(lunghezza_) < altro.Conta(lunghezza_);
    const Strato& piccolo = minore ? uno : altro;
    const Strato& grande = minore ? altro : uno;
    const auto voci = static_cast<NumeroVoce>(piccolo.Conta(lunghezza_));
    for (NumeroVoce i = 0; i < voci; ++i) {
      const std::string_view parola = piccolo.Parola(piccolo.Prima(lunghezza_) + i);
      if (grande.Cerca(parola)) particolari_.push_back(parola);
    }
  }

  // The entries of a layer that go the long way, by their place in the length.
  std::vector<bool> Saltate(const Strato& strato) const {
    std::vector<bool> saltate(static_cast<std::size_t>(strato.Conta(lunghezza_)), false);
    for (const std::string_view parola : particolari_) {
      if (const auto numero = strato.Cerca(parola))
        saltate[*numero - strato.Prima(lunghezza_)] = true;
    }
    return saltate;
  }

  void PrendiLivello(std::uint32_t livello) {
    const Strato& strato = *Livelli()[livello].strato;
    const std::vector<bool> saltate = Saltate(strato);
    const auto [tutte, punteggi, segni] = strato.Colonne(lunghezza_, memorie_[livello]);
    const auto lettere = static_cast<std::size_t>(lunghezza_);
    parole_.reserve(parole_.size() + punteggi.size());
    fonti_.reserve(fonti_.size() + punteggi.size());
    const bool sane = DiLettere(tutte);
    for (std::size_t i = 0; i < punteggi.size(); ++i) {
      const Giudizio& giudizio = fondo_.giudizi[livello].Di(lettere, punteggi[i], segni[i]);
      if (!giudizio.ammessa || saltate[i]) continue;
      const std::string_view parola = tutte.substr(i * lettere, lettere);
      if (!sane && !DiLettere(parola)) continue;
      parole_.push_back({.lettere = parola,
                         .punteggio = std::min<int>(punteggi[i], MaxPunteggio),
                         .genie = giudizio.genie});
      fonti_.push_back({livello, strato.Prima(lunghezza_) + static_cast<NumeroVoce>(i)});
    }
  }

  // Whether nothing is demanded of a word.
  bool Esente(std::string_view parola) const {
    return fondo_.Libere(lunghezza_) || fondo_.delCruciverba.proprie.contains(parola);
  }

  void PrendiParticolare(std::string_view lettere) {
    if (fondo_.vietate.Ha(lettere)) return;
    const auto parola = fondo_.lessico.Cerca(lettere);
    const bool esente = Esente(lettere);
    if (!parola && !esente) return;
    const Giudizio giudizio =
        esente ? Giudizio{.ammessa = true} : Giudica(TrattiDi(*parola), fondo_.scelta.regole);
    if (!giudizio.ammessa) return;
    parole_.push_back({.lettere = lettere,
                       .punteggio = parola ? parola->punteggio : PunteggioSenzaElenco(lettere),
                       .propria = esente,
                       .genie = giudizio.genie});
    fonti_.push_back(fondo_.lessico.FonteDelleLetture(lettere).value_or(SenzaFonte));
  }

  // An own word is as welcome as one of which nobody has told how common it is; any two letters are
  // not.
  int PunteggioSenzaElenco(std::string_view lettere) const {
    return fondo_.delCruciverba.proprie.contains(lettere) ? PunteggioIgnoto : 0;
  }

  void SegnaDefinite() {
    const auto lettere = [this](std::size_t i) { return parole_[i].lettere; };
    std::vector<std::uint64_t> definite;
    if (fondo_.copertura)
      definite = fondo_.copertura->Insieme(parole_.size(), lettere, fondo_.scelta.quali);
    for (std::size_t i = 0; i < parole_.size(); ++i) {
      ParolaDaUsare& parola = parole_[i];
      parola.definita = !definite.empty() && (definite[i / 64] >> i % 64 & 1) != 0;
      parola.pregio = PregioDi(parola.punteggio, parola.definita, fondo_.scelta.definizioni);
    }
  }

  void TieniDefinite() {
    std::size_t tenute = 0;
    for (std::size_t i = 0; i < parole_.size(); ++i) {
      if (!parole_[i].definita && !parole_[i].propria) continue;
      parole_[tenute] = parole_[i];
      fonti_[tenute] = fonti_[i];
      ++tenute;
    }
    parole_.resize(tenute);
    fonti_.resize(tenute);
  }

  const Fondo& fondo_;
  int lunghezza_ = 0;
  std::vector<std::string_view> particolari_;
  std::vector<ParolaDaUsare> parole_;
  std::vector<Lessico::Fonte> fonti_;      // of the readings, by word
  std::vector<MemoriaDiColonne> memorie_;  // by layer
};

// The lengths that are wanted, those of the most words first.
std::vector<int> InOrdine(const Lunghezze& lunghezze, const Lessico& lessico) {
  std::vector<std::pair<int, int>> perParole;
  for (int lunghezza = MinLunghezzaVoce; lunghezza <= MaxLunghezzaVoce; ++lunghezza) {
    if (!lunghezze[static_cast<std::size_t>(lunghezza)]) continue;
    int lettere = 0;
    for (const Lessico::Livello& livello : lessico.Livelli())
      lettere += livello.strato->Conta(lunghezza) * lunghezza;
    perParole.emplace_back(-lettere, lunghezza);
  }
  std::ranges::sort(perParole);
  std::vector<int> ordine;
  for (const auto& [lettere, lunghezza] : perParole)
    ordine.push_back(lunghezza);
  return ordine;
}

// Two threads take one length after the other, each as soon as it is done with the one before.
void RaccogliTutte(const Fondo& fondo, const std::vector<int>& lunghezze,
                   ComposizioneVocabolario& composizione, Parentele* parentele) {
  std::atomic<std::size_t> prossima = 0;
  const auto lavora = [&] {
    Raccolta raccolta(fondo);
    for (std::size_t i = prossima++; i < lunghezze.size(); i = prossima++) {
      raccolta.Raccogli(lunghezze[i]);
      raccolta.Metti(composizione, parentele);
    }
  };
  const std::jthread altro(lavora);
  lavora();
}

}  // namespace

int PregioDi(int punteggio, bool definita, UsoDefinizioni uso) {
  constexpr int PerPunto = MaxPregio / MaxPunteggio;
  if (uso != UsoDefinizioni::Preferite) return PerPunto * punteggio;
  // Less than half, so that the worst word with a clue comes before the best one without.
  constexpr int PerPuntoFraDue = 4;
  return definita ? MaxPregio - PerPuntoFraDue * (MaxPunteggio - punteggio)
                  : PerPuntoFraDue * punteggio;
}

ParoleDiCruciverba ParoleDi(const Laboratorio& laboratorio) {
  return {.proprie = Piegate(laboratorio.proprie), .vietate = Piegate(laboratorio.vietate)};
}

std::shared_ptr<const Vocabolario> VocabolarioDi(const SceltaParole& scelta, const Lessico& lessico,
                                                 const Copertura* copertura,
                                                 const Lunghezze& lunghezze,
                                                 const ParoleDiCruciverba& delCruciverba) {
  const Fondo fondo(scelta, lessico, copertura, delCruciverba);
  std::shared_ptr<Parentele> parentele;
  if (!scelta.ammetteForme)
    parentele = std::make_shared<Parentele>(lessico, scelta.regole.due == DueLettere::Tutte);
  ComposizioneVocabolario composizione;
  RaccogliTutte(fondo, InOrdine(lunghezze, lessico), composizione, parentele.get());
  Vocabolario::ParentelaPerNumeri parenti;
  if (parentele) parenti = [parentele](std::string_view parola) { return parentele->Di(parola); };
  return std::make_shared<const Vocabolario>(std::move(composizione).Chiudi(std::move(parenti)));
}

}  // namespace telarium
