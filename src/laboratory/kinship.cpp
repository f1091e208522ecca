#include "laboratory/kinship.h"

#include <algorithm>
#include <utility>

#include "laboratory/clue_tables.h"

namespace telarium {
namespace {

bool ParolaPiena(Categoria categoria) {
  switch (categoria) {
    case Categoria::Ignota:
    case Categoria::Sostantivo:
    case Categoria::Aggettivo:
    case Categoria::Verbo:
    case Categoria::Avverbio:
    case Categoria::Numerale:
    case Categoria::NomeProprio:
      return true;
    default:
      return false;
  }
}

// Whether words may be akin by a reading.
bool Conta(std::string_view lemma, Categoria categoria) {
  return ParolaPiena(categoria) && !lemma.empty() && !tabelle::LemmaVuoto(lemma);
}

template <class Lemma>
void MettiSeNuovo(std::vector<Lemma>& lemmi, const Lemma& lemma) {
  if (std::find(lemmi.begin(), lemmi.end(), lemma) == lemmi.end()) lemmi.push_back(lemma);
}

// Of a word's place in 32 bits; the length has the others. No layer has so many entries.
constexpr unsigned BitDelNumero = 24;

std::size_t QuanteVoci(const Strato& strato) {
  return strato.Prima(MaxLunghezzaVoce) + static_cast<std::size_t>(strato.Conta(MaxLunghezzaVoce));
}

bool Precede(const NumeroParola& una, const NumeroParola& altra) {
  return std::pair(una.lunghezza, una.numero) < std::pair(altra.lunghezza, altra.numero);
}

}  // namespace

std::vector<LemmaDiCategoria> LemmiDi(const Parola& parola) {
  std::vector<LemmaDiCategoria> lemmi;
  for (const auto& [lemma, analisi] : parola.letture) {
    if (Conta(lemma, analisi.categoria))
      MettiSeNuovo(lemmi, LemmaDiCategoria{lemma, analisi.categoria});
  }
  return lemmi;
}

Parentele::Parentele(Lessico lessico, bool dueLibere)
    : lessico_(std::move(lessico)), dueLibere_(dueLibere) {
  for (const Lessico::Livello& livello : lessico_.Livelli()) {
    const FileLessico* const file = livello.strato->ComeFile();
    file_.push_back(file);
    parole_.emplace_back(file ? QuanteVoci(*file) : 0);
  }
}

void Parentele::Metti(const Lessico::Fonte& fonte, NumeroParola parola) {
  if (!file_[fonte.livello]) return;
  parole_[fonte.livello][fonte.numero] = static_cast<std::uint32_t>(parola.lunghezza)
                                             << BitDelNumero |
                                         static_cast<std::uint32_t>(parola.numero);
}

std::optional<NumeroParola> Parentele::ParolaDi(std::size_t livello, NumeroVoce voce) const {
  // A damaged file may name entries that it does not have.
  const std::uint32_t parola = voce < parole_[livello].size() ? parole_[livello][voce] : 0;
  if (parola == 0) return std::nullopt;
  constexpr std::uint32_t maschera = (1u << BitDelNumero) - 1;
  return NumeroParola{static_cast<int>(parola >> BitDelNumero),
                      static_cast<int>(parola & maschera)};
}

std::vector<NumeroParola> Parentele::Di(std::string_view parola) const {
  std::vector<NumeroParola> parenti;
  const auto fonte = lessico_.FonteDelleLetture(parola);
  if (!fonte || !file_[fonte->livello]) return parenti;
  if (dueLibere_ && parola.size() == MinLunghezzaVoce) return parenti;
  const FileLessico& file = *file_[fonte->livello];
  Lemmi lemmi;
  std::vector<LetturaNumerata> letture;
  LeggiLemmi(file, fonte->numero, letture, lemmi);
  for (std::size_t posto = 0; posto < lemmi.size(); ++posto) {
    for (std::size_t livello = 0; livello < file_.size(); ++livello) {
      if (!file_[livello]) continue;
      const std::optional<NumeroLemma> lemma =
          livello == fonte->livello ? lemmi[posto].lemma
                                    : file_[livello]->CercaLemma(file.Lemma(lemmi[posto].lemma));
      if (lemma) AggiungiParenti(livello, {*lemma, lemmi[posto].categoria}, posto, parenti);
    }
  }
  std::ranges::sort(parenti, Precede);
  const auto doppi = std::ranges::unique(parenti);
  parenti.erase(doppi.begin(), doppi.end());
  if (const auto stessa = ParolaDi(fonte->livello, fonte->numero)) std::erase(parenti, *stessa);
  return parenti;
}

// Adds the words of a layer that have a lemma which is the one at `posto` of the word in question.
void Parentele::AggiungiParenti(std::size_t livello, const LemmaNumerato& lemma, std::size_t posto,
                                std::vector<NumeroParola>& parenti) const {
  const FileLessico& file = *file_[livello];
  Lemmi lemmi;
  std::vector<LetturaNumerata> letture;
  for (const NumeroVoce voce : file.FormeDi(lemma.lemma)) {
    const auto parola = ParolaDi(livello, voce);
    if (!parola) continue;
    LeggiLemmi(file, voce, letture, lemmi);
    const auto dove = std::find(lemmi.begin(), lemmi.end(), lemma);
    if (dove != lemmi.end() && Lega(posto, static_cast<std::size_t>(dove - lemmi.begin())))
      parenti.push_back(*parola);
  }
}

// The same as the other LemmiDi.
void Parentele::LeggiLemmi(const FileLessico& file, NumeroVoce voce,
                           std::vector<LetturaNumerata>& letture, Lemmi& lemmi) {
  lemmi.clear();
  file.LeggiLetture(voce, letture);
  for (const auto& [lemma, analisi] : letture) {
    if (Conta(file.Lemma(lemma), analisi.categoria))
      MettiSeNuovo(lemmi, LemmaNumerato{lemma, analisi.categoria});
  }
}

}  // namespace telarium
