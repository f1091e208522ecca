#include "clues/import.h"

#include "clues/encyclopedia.h"
#include "clues/merging.h"
#include "clues/store_use.h"
#include "editor/main_window.h"
#include "model/pointer.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/pace.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::size_t MaxByteFile = 256u << 20;  // far above any list; it is held in memory

// Tells on Command1 how far the import has come, and looks at the message loop, now and then; at
// the end once more.
class Avanzamento {
 public:
  ~Avanzamento() { Mostra(); }

  void Aggiunta(int parole, std::string_view parola) { didascalia_ = Unisci(parole, ' ', parola); }

  void Avanza() {
    if (!cadenza_.Scaduta()) return;
    Mostra();
    ChiUsa().CediAiMessaggi();
  }

 private:
  void Mostra() {
    if (!didascalia_.empty()) LaFinestra().ScriviCommand1(didascalia_);
  }

  std::string didascalia_;
  Cadenza cadenza_;
};

// Reads the file; a failure has been told.
std::optional<std::string> LeggiFileDefinizioni() {
  std::string testo;
  const EsitoLettura esito =
      LeggiFile(PercorsoNellaCartella(CartellaProgramma, NomeFileDefinizioni), MaxByteFile, testo);
  if (esito == EsitoLettura::Letto) return NellaCodePage(std::move(testo));
  const std::string_view perche = esito == EsitoLettura::Assente
                                      ? "non c'è nella cartella del programma"_cp
                                      : "non si può leggere"_cp;
  Avvisa(Unisci("Il file ", NomeFileDefinizioni, ' ', perche,
                ": nessuna definizione è stata importata."_cp));
  return std::nullopt;
}

// A word that cannot be added counts all the same, and the run goes on.
void UnisciCoppia(Enciclopedia& enciclopedia, std::string_view parola, std::string_view definizione,
                  ContoFusioni& conto, Avanzamento& avanzamento) {
  if (enciclopedia.CercaParola(parola)) return UnisciAllaRiga(enciclopedia, definizione, conto);
  try {
    enciclopedia.AggiungiParola(parola, definizione);
  } catch (const ErroreEnciclopedia&) {
    // The next word may fare better; who holds the file keeps the run waiting once.
    enciclopedia.NonAttendere();
  }
  avanzamento.Aggiunta(++conto.parole, parola);
}

ContoFusioni UnisciCoppie(Enciclopedia& enciclopedia, std::string_view testo) {
  ContoFusioni conto;
  Avanzamento avanzamento;
  LettoreDiRighe righe(testo);
  // A last word without a line behind it is no pair.
  for (std::string_view parola, definizione;
       righe.Prossima(parola) && righe.Prossima(definizione);) {
    parola = SenzaSpazi(parola);
    definizione = SenzaSpazi(definizione);
    if (CoppiaAmmessa(parola, definizione))
      UnisciCoppia(enciclopedia, parola, definizione, conto, avanzamento);
    avanzamento.Avanza();
  }
  return conto;
}

}  // namespace

std::optional<std::string> ImportaDefinizioni() {
  std::optional<std::string> rapporto;
  ConEnciclopedia([&] {
    const EnciclopediaAperta enciclopedia = ApriEnciclopedia();
    const Clessidra clessidra;
    const auto testo = LeggiFileDefinizioni();
    if (!testo) return;
    rapporto = RapportoFusioni(
        "Le definizioni prelevate dal file di Internet sono state salvate sull'enciclopedia con "
        "successo.",
        UnisciCoppie(*enciclopedia, *testo));
  });
  return rapporto;
}

void Recupera_Definizioni() {
  if (const auto rapporto = ImportaDefinizioni()) Avvisa(*rapporto);
}

}  // namespace telarium
