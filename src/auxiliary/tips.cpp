#include "auxiliary/tips.h"

#include <utility>

#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {

std::int32_t MostraSuggerimenti = 1;

namespace {

constexpr const char* NomeFile = "TLRMTIPS.TXT";
constexpr std::size_t MaxByteSuggerimenti = 1u << 18;  // some hundred pages: more is another file
constexpr const char* Chiave = "Options/Show Tips at Startup";

const AzzeramentoDiSottosistema azzeramento([] { MostraSuggerimenti = 1; });

std::string SenzaFile() {
  return Unisci("Impossibile trovare il file ", NomeFile, "\n\nCreare un file di testo denominato ",
                NomeFile,
                " utilizzando il Blocco note e inserendo un suggerimento per ogni riga. Inserire "
                "il file nella stessa directory dell'applicazione. ");
}

}  // namespace

void LeggiMostraSuggerimenti() {
  const bool voluti = ValoreDecimale(Sistema().LeggiImpostazione(Chiave).value_or("1")) != 0;
  MostraSuggerimenti = voluti ? 1 : 0;
}

void ScriviMostraSuggerimenti(bool voluti) {
  MostraSuggerimenti = voluti ? 1 : 0;
  Sistema().ScriviImpostazione(Chiave, Unisci(MostraSuggerimenti));
}

void Suggerimenti::Carica() {
  std::error_code errore;
  switch (LoadTips(PercorsoNellaCartella(CartellaProgramma, NomeFile), errore)) {
    case EsitoLettura::Letto:
      return;
    case EsitoLettura::Assente:
      testo_ = SenzaFile();
      return;
    default:
      testo_ =
          Unisci("Il file ", NomeFile, " non si può leggere: "_cp, DescrizioneErrore(errore), '.');
  }
}

EsitoLettura Suggerimenti::LoadTips(const Percorso& file, std::error_code& errore) {
  std::string contenuto;
  const EsitoLettura esito = LeggiFile(file, MaxByteSuggerimenti, contenuto, errore);
  if (esito != EsitoLettura::Letto) return esito;
  contenuto = NellaCodePage(std::move(contenuto));
  LettoreDiRighe righe(contenuto);
  for (std::string_view riga; righe.Prossima(riga);)
    suggerimenti_.emplace_back(riga);
  Estrai();
  return esito;
}

void Suggerimenti::Estrai() {
  if (suggerimenti_.empty()) return;
  const auto quanti = static_cast<double>(suggerimenti_.size());
  const auto numero = static_cast<std::size_t>(Sistema().Casuale() * quanti + 1);  // from 1
  testo_ = suggerimenti_.at(numero - 1);
}

}  // namespace telarium
