#include "laboratory/kinship.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>
#include <utility>

#include "laboratory/clue_tables.h"

namespace telarium {
namespace {

// Lemmas that are one word. The lexicon has a preposition with each article as a lemma of its own.
struct UnaParola {
  Categoria categoria;
  std::array<std::string_view, 6> lemmi;  // the first one stands for all
};
constexpr UnaParola ParoleUniche[] = {
    {Categoria::Preposizione, {"al", "allo", "alla", "ai", "agli", "alle"}},
    {Categoria::Preposizione, {"col", "collo", "colla", "coi", "cogli", "colle"}},
    {Categoria::Preposizione, {"dal", "dallo", "dalla", "dai", "dagli", "dalle"}},
    {Categoria::Preposizione, {"del", "dello", "della", "dei", "degli", "delle"}},
    {Categoria::Preposizione, {"nel", "nello", "nella", "nei", "negli", "nelle"}},
    {Categoria::Aggettivo, {"mio", "miei"}},
};

// Null for a lemma that is a word by itself.
const UnaParola* UnicaDi(const LemmaDiCategoria& lemma) {
  const auto unica = std::ranges::find_if(ParoleUniche, [&](const UnaParola& una) {
    return una.categoria == lemma.categoria &&
           std::ranges::find(una.lemmi, lemma.lemma) != una.lemmi.end();
  });
  return unica == std::end(ParoleUniche) ? nullptr : unica;
}

// NOSTRO is one word whether it stands beside a noun or instead of one.
Categoria DiParentela(Categoria categoria) {
  return categoria == Categoria::Pronome ? Categoria::Aggettivo : categoria;
}

// An article has forms too, but of two letters, which are known as notes and pronouns rather.
bool HaForme(Categoria categoria) {
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

// The lemma by which a reading makes words akin; none for one by which they are not.
std::optional<LemmaDiCategoria> LemmaDi(std::string_view lemma, Categoria categoria) {
  if (lemma.empty() || tabelle::LemmaVuoto(lemma)) return std::nullopt;
  const LemmaDiCategoria uno{lemma, DiParentela(categoria)};
  if (const UnaParola* const unica = UnicaDi(uno))
    return LemmaDiCategoria{unica->lemmi.front(), uno.categoria};
  return HaForme(uno.categoria) ? std::optional(uno) : std::nullopt;
}

void Aggiungi(const std::optional<LemmaDiCategoria>& lemma, std::vector<LemmaDiCategoria>& lemmi) {
  if (lemma && std::ranges::find(lemmi, *lemma) == lemmi.end()) lemmi.push_back(*lemma);
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
  for (const auto& [lemma, analisi] : parola.letture)
    Aggiungi(LemmaDi(lemma, analisi.categoria), lemmi);
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
    }
    ++livello;
  }
}

const Parentele::Lemmario* Parentele::LemmarioDi(std::uint32_t livello) const {
  const auto lemmario = std::ranges::find(lemmari_, livello, &Lemmario::livello);
  return lemmario == lemmari_.end() ? nullptr : &*lemmario;
}

// Those of an entry as LemmiDi has them; what `lemmi` held is dropped.
void Parentele::Lemmario::LeggiLemmi(NumeroVoce voce, std::vector<LemmaDiCategoria>& lemmi) const {
  lemmi.clear();
  std::vector<LetturaNumerata> letture;
  file->LeggiLetture(voce, letture);
  for (const auto& [lemma, analisi] : letture)
    Aggiungi(LemmaDi(file->Lemma(lemma), analisi.categoria), lemmi);
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
  std::vector<LemmaDiCategoria> lemmi;
  suo->LeggiLemmi(fonte->numero, lemmi);
  for (std::size_t posto = 0; posto < lemmi.size(); ++posto) {
    for (const Lemmario& lemmario : lemmari_)
      AggiungiParenti(lemmario, lemmi[posto], posto, parenti);
  }
  std::ranges::sort(parenti, Precede);
  const auto doppi = std::ranges::unique(parenti);
  parenti.erase(doppi.begin(), doppi.end());
  if (const auto stessa = suo->ParolaDi(fonte->numero)) std::erase(parenti, *stessa);
  return parenti;
}

// Adds the words of a layer that are akin by a lemma, which is the one at `posto` of the word in
// question.
void Parentele::AggiungiParenti(const Lemmario& lemmario, const LemmaDiCategoria& lemma,
                                std::size_t posto, std::vector<NumeroParola>& parenti) const {
  const UnaParola* const unica = UnicaDi(lemma);
  const std::span<const std::string_view> grafie =
      unica ? std::span(unica->lemmi) : std::span(&lemma.lemma, 1);
  std::vector<LemmaDiCategoria> lemmi;
  for (const std::string_view grafia : grafie) {
    const auto numero = lemmario.file->CercaLemma(grafia);
    if (!numero) continue;
    for (const NumeroVoce voce : lemmario.file->FormeDi(*numero)) {
      const auto parola = lemmario.ParolaDi(voce);
      if (!parola) continue;
      lemmario.LeggiLemmi(voce, lemmi);
      const auto dove = std::ranges::find(lemmi, lemma);
      const auto altroPosto = static_cast<std::size_t>(dove - lemmi.begin());
      if (dove != lemmi.end() && Lega(posto, altroPosto)) parenti.push_back(*parola);
    }
  }
}

}  // namespace telarium
