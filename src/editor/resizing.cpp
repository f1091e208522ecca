#include "editor/resizing.h"

#include "editor/commit.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "model/crossword_file.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr int MinPerTogliere = 4;  // columns or rows of a grid that can lose one

void Inizia(std::int16_t modo) {
  ImpostaPuntatoreMouse(PuntatoreClessidra);
  ModoGriglia = modo;
  SchemaModificato = Vero;
}

std::string& RigaDiGriglia(int riga) {
  return Schema(riga + RigheIntestazione);
}

// Gives every row line that many cells; a line that was too short for them gets empty ones.
void AllineaRighe(int celle) {
  for (int r = 1; r <= NumRighe; ++r)
    RigaDiGriglia(r).resize(2 * static_cast<std::size_t>(celle), CellaVuota);
}

// Commits a new number of columns, which NumColonne takes over from the snapshot.
void ConsolidaColonne(int colonne) {
  ScriviDimensioni(colonne, NumRighe);
  if (!ConsolidaSchema()) {
    NumColonne = static_cast<std::int16_t>(colonne);
    RidisegnaSchema();
  }
  ImpostaPuntatoreMouse(PuntatoreFreccia);
}

void ConsolidaRighe(int righe) {
  NumRighe = static_cast<std::int16_t>(righe);
  ScriviDimensioni(NumColonne, NumRighe);
  ConsolidaSchema();
  ImpostaPuntatoreMouse(PuntatoreFreccia);
}

}  // namespace

void AggiungiColonna() {
  LaFinestra().NascondiShape1();
  if (NumColonne >= MaxColonne)
    return Avvisa(Unisci("Numero massimo consentito di colonne: ", MaxColonne));
  if (NumColonne == 0) return;
  Inizia(ModoAggiungiColonna);
  AllineaRighe(NumColonne);  // what a line holds past its last cell is no cell
  AllineaRighe(NumColonne + 1);
  ConsolidaColonne(NumColonne + 1);
}

void TogliColonna() {
  LaFinestra().NascondiShape1();
  if (NumColonne < MinPerTogliere) return Avvisa("Non ha senso fare un cruciverba con 3 caselle!");
  Inizia(ModoTogliColonna);
  AllineaRighe(NumColonne - 1);
  ConsolidaColonne(NumColonne - 1);
}

void AggiungiRiga() {
  LaFinestra().NascondiShape1();
  if (NumRighe >= MaxRighe) return Avvisa(Unisci("Numero massimo consentito di righe: ", MaxRighe));
  if (NumColonne == 0) return;
  Inizia(ModoAggiungiRiga);
  RigaDiGriglia(NumRighe + 1).assign(2 * static_cast<std::size_t>(NumColonne), CellaVuota);
  ConsolidaRighe(NumRighe + 1);
}

void TogliRiga() {
  LaFinestra().NascondiShape1();
  if (NumRighe < MinPerTogliere) return Avvisa("Non ha senso un cruciverba con meno di 3 righe");
  Inizia(ModoTogliRiga);
  RigaDiGriglia(NumRighe).clear();
  ConsolidaRighe(NumRighe - 1);
}

}  // namespace telarium
