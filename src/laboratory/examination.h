#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "laboratory/checks.h"

// The check of one crossword while it goes on.
namespace telarium {

class Esame {
 public:
  Esame(const Cruciverba& cruciverba, const Criteri& criteri);

  const Cruciverba& cruciverba;
  const Criteri& criteri;
  const Derivati griglia;
  const std::vector<VoceDiGriglia> voci;

  int QuanteVoci() const { return static_cast<int>(voci.size()); }

  void Rileva(Codice codice, const VoceDiGriglia& voce, std::string testo);
  void Rileva(Codice codice, Casella casella, std::string testo);
  /// Something that has no place.
  void Rileva(Codice codice, std::string testo);

  /// What was found, sorted, with the figures.
  Verdetto Chiudi() &&;

 private:
  std::vector<Rilievo> rilievi_;
};

/// A word of a clue or a lemma in a sentence.
std::string TraVirgolette(std::string_view testo);

/// "meglio non più di 3", "meglio nessuna": how many entries a crossword had better have.
std::string MeglioAlMassimo(int voci);

// The parts of the check.
void EsaminaParole(Esame& esame);
void EsaminaDefinizioni(Esame& esame);
void EsaminaSchema(Esame& esame);

}  // namespace telarium
