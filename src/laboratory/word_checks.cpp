#include <algorithm>
#include <map>
#include <unordered_map>

#include "laboratory/clue_leaks.h"
#include "laboratory/examination.h"
#include "platform/codepage.h"
#include "platform/text.h"

// Faults and warnings that lie in the words of a grid.
namespace telarium {
namespace {

using PuntatoriAVoci = std::vector<const VoceDiGriglia*>;

// --- Faults ---

// Why an entry is no word, as a predicate; empty when it is one.
std::string_view PercheInesistente(const VoceDiGriglia& voce) {
  if (voce.HaVuote()) return "ha caselle vuote";
  if (voce.libera) return {};
  if (!voce.Intera()) return "ha un segno che non è una lettera"_cp;
  if (voce.parola || voce.propria) return {};
  return "non è in nessun elenco di parole"_cp;
}

void Inesistenti(Esame& esame) {
  for (const VoceDiGriglia& voce : esame.voci) {
    const std::string_view perche = PercheInesistente(voce);
    if (!perche.empty())
      esame.Rileva(Codice::Inesistente, voce, Unisci(voce.Nome(), ' ', perche, '.'));
  }
}

void Ripetute(Esame& esame) {
  std::unordered_map<std::string_view, const VoceDiGriglia*> prime;
  for (const VoceDiGriglia& voce : esame.voci) {
    if (!voce.Intera()) continue;
    const auto [prima, nuova] = prime.emplace(voce.lettere, &voce);
    if (nuova) continue;
    esame.Rileva(
        Codice::Ripetuta, voce,
        Unisci(voce.Nome(), " è nello schema anche come "_cp, prima->second->Luogo(), '.'));
  }
}

void Vietate(Esame& esame) {
  for (const VoceDiGriglia& voce : esame.voci) {
    if (voce.vietata)
      esame.Rileva(Codice::Vietata, voce, voce.Nome() + std::string(" è una parola vietata."_cp));
  }
}

void Divieti(Esame& esame) {
  for (const VoceDiGriglia& voce : esame.voci) {
    if (!voce.Giudicata()) continue;
    if (auto divieto = Divieto(*voce.parola, esame.criteri.regole, voce.Nome()))
      esame.Rileva(Codice::Regola, voce, std::move(*divieto));
  }
}

void Minimi(Esame& esame) {
  for (const VoceDiGriglia& voce : esame.voci) {
    const int minimo = esame.criteri.minimi[static_cast<std::size_t>(voce.slot.lunghezza)];
    const auto punteggio = voce.Punteggio();
    if (!punteggio || *punteggio >= minimo) continue;
    esame.Rileva(Codice::Regola, voce,
                 Unisci(voce.Nome(), " ha punteggio ", *punteggio, ": il minimo chiesto è "_cp,
                        minimo, '.'));
  }
}

// The entries beyond so many, those of the lowest scores: they are the ones to be changed.
PuntatoriAVoci Eccedenti(PuntatoriAVoci voci, int ammesse) {
  const std::size_t quante = voci.size() - std::min(voci.size(), static_cast<std::size_t>(ammesse));
  std::stable_sort(voci.begin(), voci.end(), [](const auto* una, const auto* altra) {
    return una->Punteggio() < altra->Punteggio();
  });
  voci.resize(quante);
  return voci;
}

template <class Condizione>
PuntatoriAVoci Scelte(const Esame& esame, Condizione condizione) {
  PuntatoriAVoci scelte;
  for (const VoceDiGriglia& voce : esame.voci) {
    if (condizione(voce)) scelte.push_back(&voce);
  }
  return scelte;
}

// "ne ammettono 2", "non ne ammettono".
std::string Ammettono(int quante) {
  return quante == 0 ? "non ne ammettono" : Unisci("ne ammettono ", quante);
}

void Quote(Esame& esame) {
  for (int i = 0; i < NumGenie; ++i) {
    const auto genia = static_cast<Genia>(i);
    const Quota& quota = esame.criteri.regole.Di(genia);
    if (quota.unaSu == Quota::Nessuna || quota.unaSu == Quota::Libera) continue;
    const auto voci = Scelte(esame, [genia](const VoceDiGriglia& voce) {
      return voce.Giudicata() && Appartiene(*voce.parola, genia);
    });
    const int ammesse = quota.Ammesse(esame.QuanteVoci());
    for (const VoceDiGriglia* voce : Eccedenti(voci, ammesse)) {
      esame.Rileva(Codice::Regola, *voce,
                   Unisci(voce->Nome(), ' ', CheCosaE(genia), ": lo schema ne ha ", voci.size(),
                          ", le regole ", Ammettono(ammesse), '.'));
    }
  }
}

// --- Warnings ---

void Rare(Esame& esame) {
  const auto rare = Scelte(esame, [](const VoceDiGriglia& voce) { return voce.Rara(); });
  const int ammesse = RareAmmesse(esame.QuanteVoci());
  for (const VoceDiGriglia* voce : Eccedenti(rare, ammesse)) {
    esame.Rileva(Codice::Rare, *voce,
                 Unisci(voce->Nome(), " è una parola rara: lo schema ne ha "_cp, rare.size(), ", ",
                        MeglioAlMassimo(ammesse), '.'));
  }
}

// Tells entries that are akin to an earlier one.
class FormeDiLemmi {
 public:
  explicit FormeDiLemmi(Esame& esame) : esame_(esame) {}

  void Aggiungi(const VoceDiGriglia& voce) {
    const auto lemmi = LemmiDi(*voce.parola);
    for (std::size_t i = 0; i < lemmi.size(); ++i) {
      const VoceDiGriglia* const altra = PrimaAffine(lemmi[i], i, voce);
      if (!altra) continue;
      esame_.Rileva(Codice::LemmaRipetuto, voce,
                    Unisci(voce.Nome(), " e ", altra->Nome(), " sono forme della stessa parola, ",
                           TraVirgolette(lemmi[i].lemma), '.'));
      break;
    }
    for (std::size_t i = 0; i < lemmi.size(); ++i)
      perLemma_[lemmi[i]].push_back({&voce, i});
  }

 private:
  // An entry that can be a form of a lemma, and where that stands among its lemmas.
  struct Forma {
    const VoceDiGriglia* voce;
    std::size_t posto;
  };

  const VoceDiGriglia* PrimaAffine(const LemmaDiCategoria& lemma, std::size_t posto,
                                   const VoceDiGriglia& voce) const {
    const auto forme = perLemma_.find(lemma);
    if (forme == perLemma_.end()) return nullptr;
    const auto affine = std::ranges::find_if(forme->second, [&](const Forma& altra) {
      return Lega(posto, altra.posto) && altra.voce->lettere != voce.lettere;
    });
    return affine == forme->second.end() ? nullptr : affine->voce;
  }

  Esame& esame_;
  std::map<LemmaDiCategoria, std::vector<Forma>> perLemma_;
};

void Lemmi(Esame& esame) {
  if (esame.criteri.ammetteForme) return;
  FormeDiLemmi forme(esame);
  for (const VoceDiGriglia& voce : esame.voci) {
    if (voce.parola && !voce.libera) forme.Aggiungi(voce);
  }
}

// The letters that two words share from two places on.
std::string_view Comuni(std::string_view una, std::string_view altra) {
  const auto fine = std::mismatch(una.begin(), una.end(), altra.begin(), altra.end()).first;
  return una.substr(0, static_cast<std::size_t>(fine - una.begin()));
}

// Tells entries that share a stretch of letters with an earlier one, each by the longest stretch.
class Tratti {
 public:
  explicit Tratti(Esame& esame) : esame_(esame) {}

  void Aggiungi(const VoceDiGriglia& voce) {
    std::string_view tratto;
    const VoceDiGriglia* altra = nullptr;
    for (std::size_t i = 0; i + LettereDiTratto <= voce.lettere.size(); ++i) {
      const auto resto = std::string_view(voce.lettere).substr(i);
      const auto [dove, nuovo] =
          primi_.try_emplace(resto.substr(0, LettereDiTratto), Posto{&voce, i});
      const auto& [prima, da] = dove->second;
      if (nuovo || prima->lettere == voce.lettere) continue;
      const auto comuni = Comuni(resto, std::string_view(prima->lettere).substr(da));
      if (comuni.size() <= tratto.size()) continue;
      tratto = comuni;
      altra = prima;
    }
    if (!altra) return;
    esame_.Rileva(Codice::TrattoComune, voce,
                  Unisci(voce.Nome(), " e ", altra->Nome(), " hanno in comune ", tratto, '.'));
  }

 private:
  struct Posto {
    const VoceDiGriglia* voce;
    std::size_t inizio;
  };

  Esame& esame_;
  std::unordered_map<std::string_view, Posto> primi_;
};

void TrattiComuni(Esame& esame) {
  Tratti tratti(esame);
  for (const VoceDiGriglia& voce : esame.voci)
    tratti.Aggiungi(voce);
}

void Incroci(Esame& esame) {
  for (const VoceDiGriglia& voce : esame.voci) {
    if (voce.slot.direzione != Orizzontale || !voce.Rara()) continue;
    for (int k = 1; k <= voce.slot.lunghezza; ++k) {
      const int parola = esame.griglia.ParolaPer(voce.slot.Cella(k), Verticale);
      if (parola == Derivati::NessunaParola) continue;
      const VoceDiGriglia& altra = esame.voci[static_cast<std::size_t>(parola)];
      if (!altra.Rara()) continue;
      esame.Rileva(
          Codice::IncrocioDuro, voce,
          Unisci(voce.Nome(), " e ", altra.Nome(), " si incrociano e sono rare tutt'e due."));
    }
  }
}

}  // namespace

void EsaminaParole(Esame& esame) {
  Inesistenti(esame);
  Ripetute(esame);
  Divieti(esame);
  Quote(esame);
  Minimi(esame);
  Vietate(esame);
  Lemmi(esame);
  TrattiComuni(esame);
  Rare(esame);
  Incroci(esame);
}

}  // namespace telarium
