#include "telar/files.h"

#include "dictionary/open_dictionary.h"
#include "model/crossword_file.h"
#include "model/documento.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium::telar {
namespace {

std::string NonLetta(std::string_view nomeDellaLista, const Percorso& file, EsitoLettura esito,
                     const std::error_code& errore) {
  switch (esito) {
    case EsitoLettura::Assente:
      return Unisci("La ", nomeDellaLista, " non è stata trovata: "_cp, TestoPercorso(file));
    case EsitoLettura::TroppoGrande:
      return Unisci("La ", nomeDellaLista, " è troppo grande: "_cp, TestoPercorso(file));
    default:
      return ConCausa(Unisci("La ", nomeDellaLista, " non si può leggere."_cp), file, errore);
  }
}

}  // namespace

bool Apri(const std::string& file) {
  const Apertura esito = ApriCruciverba(file);
  if (esito == Apertura::Assente) TerminaSenzaCruciverba(file);
  return esito == Apertura::Intera;
}

Stato Scrivi(const std::string& uscita) {
  return Scrivi(IlDocumento().Valore(), uscita);
}

Stato Scrivi(const Cruciverba& cruciverba, const std::string& uscita) {
  AscoltaInterruzione();
  return ScriviCruciverba(cruciverba, uscita) ? Stato::Fatto : Stato::Fallito;
}

std::optional<Dizionario> ApriDizionario(const std::string& nome) {
  Dizionario dizionario(CartellaProgramma);
  dizionario.Nomina(nome, dizionario.LinguaDizionario());
  if (!telarium::ApriDizionario(dizionario)) return std::nullopt;
  return dizionario;
}

std::optional<std::string> LeggiLista(std::string_view nomeDellaLista, const Percorso& file,
                                      std::size_t massimo) {
  std::string contenuto;
  std::error_code errore;
  const EsitoLettura esito = LeggiFile(file, massimo, contenuto, errore);
  if (esito == EsitoLettura::Letto) return contenuto;
  Avvisa(NonLetta(nomeDellaLista, file, esito, errore));
  return std::nullopt;
}

}  // namespace telarium::telar
