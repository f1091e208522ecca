#include "model/tables.h"

namespace telarium {
namespace {

// The characters behind each cell of a word, to its end.
void ScriviParola(TavoleDelCruciverba& tavole, const Slot& slot, const std::string& lettere) {
  for (int k = 1; k < slot.lunghezza; ++k) {
    const auto [c, r] = slot.Cella(k);
    tavole.parola(c, r, slot.direzione).assign(lettere, static_cast<std::size_t>(k) - 1);
  }
}

}  // namespace

void TavoleDelCruciverba::Rispecchia(const Cruciverba& prima, const Cruciverba& dopo,
                                     const Derivati& derivati) {
  RispecchiaRighe(prima, dopo);
  RispecchiaDefinizioni(prima, dopo);
  RispecchiaColori(prima, dopo);
  RispecchiaDerivati(derivati);
}

void TavoleDelCruciverba::RispecchiaRighe(const Cruciverba& prima, const Cruciverba& dopo) {
  for (std::size_t i = 0; i < dopo.intestazione->size(); ++i)
    schema(static_cast<int>(i) + 1) = (*dopo.intestazione)[i];
  const std::size_t massime = std::max(prima.griglia.size(), dopo.griglia.size());
  for (std::size_t r = 0; r < massime; ++r) {
    const bool resta = r < prima.griglia.size() && r < dopo.griglia.size() &&
                       prima.griglia[r].StessoDi(dopo.griglia[r]);
    std::string& riga = schema(static_cast<int>(r) + 1 + RigheIntestazione);
    if (!resta) riga = r < dopo.griglia.size() ? *dopo.griglia[r] : std::string();
  }
  colonne = static_cast<std::int16_t>(dopo.colonne);
  righe = static_cast<std::int16_t>(dopo.righe);
}

void TavoleDelCruciverba::RispecchiaDefinizioni(const Cruciverba& prima, const Cruciverba& dopo) {
  prima.definizioni.PerOgni(dopo.definizioni, [this](const std::string&, int c, int r, int d) {
    definizione(c, r, d).clear();
  });
  dopo.definizioni.PerOgni(prima.definizioni, [this](const std::string& testo, int c, int r,
                                                     int d) { definizione(c, r, d) = testo; });
}

void TavoleDelCruciverba::RispecchiaColori(const Cruciverba& prima, const Cruciverba& dopo) {
  prima.colori.PerOgni(dopo.colori, [this](Colore, int c, int r) { colore(c, r) = ColoreNero; });
  dopo.colori.PerOgni(prima.colori, [this](Colore nuovo, int c, int r) { colore(c, r) = nuovo; });
}

void TavoleDelCruciverba::RispecchiaDerivati(const Derivati& derivati) {
  for (int c = 1; c <= MaxColonne; ++c) {
    for (int r = 1; r <= MaxRighe; ++r) {
      const bool dentro = derivati.Dentro({c, r});
      lettera(c, r) = dentro ? derivati.Carattere({c, r}) : CellaVuota;
      tipo(c, r) = static_cast<std::int16_t>(dentro ? derivati.Tipo({c, r}) : 0);
      numero(c, r) = static_cast<std::int16_t>(dentro ? derivati.Numero({c, r}) : 0);
      for (const int d : Direzioni)
        parola(c, r, d).clear();
    }
  }
  for (const Slot& slot : derivati.Parole())
    ScriviParola(*this, slot, derivati.Lettere(slot));
}

}  // namespace telarium
