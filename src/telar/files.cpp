#include "telar/files.h"

#include "editor/redraw.h"
#include "model/crossword_file.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium::telar {
namespace {

// Why a list cannot be taken.
std::string_view Motivo(EsitoLettura esito) {
  switch (esito) {
    case EsitoLettura::Assente:
      return " non è stata trovata: "_cp;
    case EsitoLettura::TroppoGrande:
      return " è troppo grande: "_cp;
    default:
      return " non si può leggere: "_cp;
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
  Avvisa(Unisci("La ", nomeDellaLista, Motivo(esito), TestoPercorso(file)));
  return std::nullopt;
}

}  // namespace telarium::telar
