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

// Of a word's place in 32 bits; the length has the others. No layer has so many entries.
constexpr unsigned BitDelNumero = 24;

std::size_t QuanteVoci(const Strato& strato) {
  return strato.Prima(MaxLunghezzaVoce) + static_cast<std::size_t>(strato.Conta(MaxLunghezzaVoce));
}

bool Precede(const NumeroParola& una, const NumeroParola& altra) {
  return std::pair(una.lunghezza, una.numero) < std::pair(altra.lunghezza, altra.numero);
}

bool StessoLemma(const LetturaNumerata& una, const LetturaNumerata& altra) {
  return una.lemma == altra.lemma && una.analisi.categoria == altra.analisi.categoria;
}

}  // namespace

std::vector<LemmaDiCategoria> LemmiDi(const Parola& parola) {
  std::vector<LemmaDiCategoria> lemmi;
  for (const auto& [lemma, analisi] : parola.letture) {
    if (!ParolaPiena(analisi.categoria) || lemma.empty() || tabelle::LemmaVuoto(lemma)) continue;
    const LemmaDiCategoria uno{lemma, analisi.categoria};
    if (std::find(lemmi.begin(), lemmi.end(), uno) == lemmi.end()) lemmi.push_back(uno);
  }
  return lemmi;
}

// --- The same by numbers ---

Parentele::Parentele(Lessico lessico, bool dueLibere)
    : lessico_(std::move(lessico)), dueLibere_(dueLibere) {
  std::uint32_t livello = 0;
  for (const Lessico::Livello& uno : lessico_.Livelli()) {
    if (const FileLessico* const file = uno.strato->ComeFile()) {
      Lemmario& lemmario = lemmari_.emplace_back();
      lemmario.livello = livello;
      lemmario.file = file;
      lemmario.parole.resize(QuanteVoci(*file));
      for (const std::string_view vuoto : tabelle::LemmiVuoti()) {
        if (const auto lemma = file->CercaLemma(vuoto)) lemmario.vuoti.push_back(*lemma);
      }
    }
    ++livello;
  }
}

const Parentele::Lemmario* Parentele::LemmarioDi(std::uint32_t livello) const {
  const auto lemmario = std::ranges::find(lemmari_, livello, &Lemmario::livello);
  return lemmario == lemmari_.end() ? nullptr : &*lemmario;
}

// Whether a reading is among those of LemmiDi.
bool Parentele::Lemmario::Conta(const LetturaNumerata& lettura) const {
  return ParolaPiena(lettura.analisi.categoria) &&
         std::ranges::find(vuoti, lettura.lemma) == vuoti.end();
}

std::optional<NumeroParola> Parentele::Lemmario::ParolaDi(NumeroVoce voce) const {
  // A damaged file may name entries that it does not have.
  const std::uint32_t parola = voce < parole.size() ? parole[voce] : 0;
  if (parola == 0) return std::nullopt;
  constexpr std::uint32_t maschera = (1u << BitDelNumero) - 1;
  return NumeroParola{static_cast<int>(parola >> BitDelNumero),
                      static_cast<int>(parola & maschera)};
}

void Parentele::Metti(const Lessico::Fonte& fonte, NumeroParola parola) {
  const Lemmario* const lemmario = LemmarioDi(fonte.livello);
  if (!lemmario || NonParola(parola.lunghezza)) return;
  lemmari_[static_cast<std::size_t>(lemmario - lemmari_.data())].parole[fonte.numero] =
      static_cast<std::uint32_t>(parola.lunghezza) << BitDelNumero |
      static_cast<std::uint32_t>(parola.numero);
}

std::vector<NumeroParola> Parentele::Di(std::string_view parola) const {
  std::vector<NumeroParola> parenti;
  const auto fonte = lessico_.FonteDelleLetture(parola);
  const Lemmario* const suo = fonte ? LemmarioDi(fonte->livello) : nullptr;
  if (!suo || NonParola(static_cast<int>(parola.size()))) return parenti;
  std::vector<LetturaNumerata> lemmi;
  suo->file->LeggiLetture(fonte->numero, lemmi);
  std::erase_if(lemmi, [suo](const LetturaNumerata& lettura) { return !suo->Conta(lettura); });
  for (std::size_t posto = 0; posto < lemmi.size(); ++posto) {
    // A lemma of several readings stands at the first one's place: the later ones add nothing.
    for (const Lemmario& lemmario : lemmari_) {
      LetturaNumerata lettura = lemmi[posto];
      if (&lemmario != suo) {
        const auto lemma = lemmario.file->CercaLemma(suo->file->Lemma(lettura.lemma));
        if (!lemma) continue;
        lettura.lemma = *lemma;
      }
      AggiungiParenti(lemmario, lettura, posto, parenti);
    }
  }
  std::ranges::sort(parenti, Precede);
  const auto doppi = std::ranges::unique(parenti);
  parenti.erase(doppi.begin(), doppi.end());
  if (const auto stessa = suo->ParolaDi(fonte->numero)) std::erase(parenti, *stessa);
  return parenti;
}

// Adds the words of a layer that have the lemma of a reading, which is the one at `posto` of the
// word in question.
void Parentele::AggiungiParenti(const Lemmario& lemmario, const LetturaNumerata& lettura,
                                std::size_t posto, std::vector<NumeroParola>& parenti) const {
  std::vector<LetturaNumerata> letture;
  for (const NumeroVoce voce : lemmario.file->FormeDi(lettura.lemma)) {
    const auto parola = lemmario.ParolaDi(voce);
    if (!parola) continue;
    lemmario.file->LeggiLetture(voce, letture);
    const auto dove = std::ranges::find_if(
        letture, [&](const LetturaNumerata& una) { return StessoLemma(una, lettura); });
    if (dove == letture.end()) continue;
    const auto prima =
        std::count_if(letture.begin(), dove, [&](const auto& una) { return lemmario.Conta(una); });
    if (Lega(posto, static_cast<std::size_t>(prima))) parenti.push_back(*parola);
  }
}

}  // namespace telarium
