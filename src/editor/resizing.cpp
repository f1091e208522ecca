#include "editor/resizing.h"

#include "editor/commit.h"
#include "editor/main_window.h"
#include "model/documento.h"
#include "model/state.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr int MinPerTogliere = 4;  // columns or rows of a grid that can lose one

void Inizia(std::int16_t modo) {
  ImpostaPuntatoreMouse(PuntatoreClessidra);
  ModoGriglia = modo;
  IlDocumento().SegnaModificato(true);
}

void RidimensionaEConsolida(std::string_view motivo, int colonne, int righe) {
  IlDocumento().Modifica(motivo,
                         [&](Cruciverba& cruciverba) { Ridimensiona(cruciverba, colonne, righe); });
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
  RidimensionaEConsolida("Colonna aggiunta", NumColonne + 1, NumRighe);
}

void TogliColonna() {
  LaFinestra().NascondiShape1();
  if (NumColonne < MinPerTogliere) return Avvisa("Non ha senso fare un cruciverba con 3 caselle!");
  Inizia(ModoTogliColonna);
  RidimensionaEConsolida("Colonna tolta", NumColonne - 1, NumRighe);
}

void AggiungiRiga() {
  LaFinestra().NascondiShape1();
  if (NumRighe >= MaxRighe) return Avvisa(Unisci("Numero massimo consentito di righe: ", MaxRighe));
  if (NumColonne == 0) return;
  Inizia(ModoAggiungiRiga);
  RidimensionaEConsolida("Riga aggiunta", NumColonne, NumRighe + 1);
}

void TogliRiga() {
  LaFinestra().NascondiShape1();
  if (NumRighe < MinPerTogliere) return Avvisa("Non ha senso un cruciverba con meno di 3 righe");
  Inizia(ModoTogliRiga);
  RidimensionaEConsolida("Riga tolta", NumColonne, NumRighe - 1);
}

}  // namespace telarium
