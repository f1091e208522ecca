#include "laboratory/checks.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "laboratory/examination.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::string_view Nomi[] = {
    "inesistente",
    "ripetuta",
    "regola",
    "separate",
    "senza-definizione",
    "definizione-ripetuta",
    "definizione-rivela",
    "vietata",
    "definizione-vietata",
    "definizione-lunga",
    "lemma-ripetuto",
    "tratto-comune",
    "rare",
    "schema-ripetuto",
    "riempitiva",
    "definizione-oltre",
    "cella-sola",
    "due-lettere",
    "incrocio-duro",
};

bool Precede(const Rilievo& uno, const Rilievo& altro) {
  const auto chiave = [](const Rilievo& r) {
    return std::tuple(r.inizio.riga, r.inizio.colonna, r.direzione, r.codice);
  };
  return chiave(uno) < chiave(altro);
}

}  // namespace

std::string_view NomeDi(Codice codice) {
  return Nomi[static_cast<std::size_t>(codice)];
}

Esame::Esame(const Cruciverba& cruciverba, const Criteri& criteri)
    : cruciverba(cruciverba),
      criteri(criteri),
      griglia(Deriva(cruciverba)),
      voci(VociDi(cruciverba, griglia, criteri)) {}

void Esame::Rileva(Codice codice, const VoceDiGriglia& voce, std::string testo) {
  rilievi_.push_back({codice, voce.slot.inizio, voce.slot.direzione, std::move(testo)});
}

void Esame::Rileva(Codice codice, Casella casella, std::string testo) {
  rilievi_.push_back({codice, casella, 0, std::move(testo)});
}

void Esame::Rileva(Codice codice, std::string testo) {
  Rileva(codice, Casella{}, std::move(testo));
}

std::string TraVirgolette(std::string_view testo) {
  return Unisci("«"_cp, testo, "»"_cp);
}

std::string MeglioAlMassimo(int voci) {
  return voci == 0 ? "meglio nessuna" : Unisci("meglio non più di "_cp, voci);
}

Verdetto Esame::Chiudi() && {
  std::stable_sort(rilievi_.begin(), rilievi_.end(), Precede);
  Verdetto verdetto;
  for (Rilievo& rilievo : rilievi_)
    (Errore(rilievo.codice) ? verdetto.errori : verdetto.avvisi).push_back(std::move(rilievo));
  verdetto.cifre = CifreDi(griglia, voci, criteri);
  return verdetto;
}

Verdetto Controlla(const Cruciverba& cruciverba, const Criteri& criteri) {
  Esame esame(cruciverba, criteri);
  EsaminaParole(esame);
  EsaminaDefinizioni(esame);
  EsaminaSchema(esame);
  return std::move(esame).Chiudi();
}

Criteri CriteriDi(const SceltaParole& scelta, Lessico lessico, const Copertura* copertura) {
  return {.lessico = std::move(lessico),
          .regole = scelta.regole,
          .copertura = copertura,
          .minimi = scelta.livelli,
          .vuoleDefinizioni = scelta.definizioni != UsoDefinizioni::No,
          .ammetteForme = scelta.ammetteForme};
}

}  // namespace telarium
