#include "telar/files.h"

#include "editor/redraw.h"
#include "model/crossword_file.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium::telar {
namespace {

// Why a list cannot be taken.
std::string_view Motivo(EsitoLettura esito) {
  switch (esito) {
    case EsitoLettura::Assente:
      return "Non trovata la ";
    case EsitoLettura::TroppoGrande:
      return "Troppo grande la ";
    default:
      return "Impossibile leggere la ";
  }
}

}  // namespace

bool Apri(const std::string& file) {
  NomeCruciverba = file;
  const Apertura esito = ApriCruciverba(NomeCruciverba);
  if (esito == Apertura::Assente) TerminaSenzaCruciverba(NomeCruciverba);
  if (esito != Apertura::Intera) return false;
  RidisegnaSchema();
  return true;
}

Stato Scrivi(const std::string& uscita) {
  AscoltaInterruzione();
  return ScriviCruciverba(uscita) ? Stato::Fatto : Stato::Fallito;
}

std::optional<std::string> LeggiLista(std::string_view nomeDellaLista, const Percorso& file,
                                      std::size_t massimo) {
  std::string contenuto;
  const EsitoLettura esito = LeggiFile(file, massimo, contenuto);
  if (esito == EsitoLettura::Letto) return contenuto;
  Avvisa(Unisci(Motivo(esito), nomeDellaLista, ": ", TestoPercorso(file)));
  return std::nullopt;
}

}  // namespace telarium::telar
