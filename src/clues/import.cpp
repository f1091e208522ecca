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

struct EsitoImportazione {
  ContoFusioni conto;
  ContoErrori errori;
};

// A word that cannot be added counts all the same, and the run goes on.
void UnisciCoppia(Enciclopedia& enciclopedia, std::string_view parola, std::string_view definizione,
                  EsitoImportazione& esito, Avanzamento& avanzamento) {
  const Presenza presenza = PresenzaDi(enciclopedia, parola, definizione);
  if (presenza == Presenza::ConDefinizione) return;
  const int prima = esito.conto.parole;
  try {
    UnisciDefinizione(enciclopedia, parola, definizione, esito.conto);
  } catch (const ErroreEnciclopedia& errore) {
    if (presenza != Presenza::Assente) throw;
    esito.errori.Aggiungi(errore);
    ++esito.conto.parole;
    // The next word may fare better; who holds the file keeps the run waiting once.
    enciclopedia.NonAttendere();
  }
  if (esito.conto.parole != prima) avanzamento.Aggiunta(esito.conto.parole, parola);
}

EsitoImportazione UnisciCoppie(Enciclopedia& enciclopedia, std::string_view testo) {
  EsitoImportazione esito;
  Avanzamento avanzamento;
  LettoreDiRighe righe(testo);
  // A last word without a line behind it is no pair.
  for (std::string_view parola, definizione;
       righe.Prossima(parola) && righe.Prossima(definizione);) {
    parola = SenzaSpazi(parola);
    definizione = SenzaSpazi(definizione);
    if (CoppiaAmmessa(parola, definizione))
      UnisciCoppia(enciclopedia, parola, definizione, esito, avanzamento);
    avanzamento.Avanza();
  }
  return esito;
}

}  // namespace

std::optional<RapportoDefinizioni> ImportaDefinizioni() {
  std::optional<RapportoDefinizioni> rapporto;
  ConEnciclopedia([&] {
    const EnciclopediaAperta enciclopedia = ApriEnciclopedia();
    const Clessidra clessidra;
    const auto testo = LeggiFileDefinizioni();
    if (!testo) return;
    enciclopedia->IniziaSerie();
    const auto [conto, errori] = UnisciCoppie(*enciclopedia, *testo);
    rapporto = RapportoDefinizioni{
        .testo = TestoFusioni("Le definizioni prelevate dal file di Internet sono state salvate "
                              "sull'enciclopedia con successo.",
                              conto),
        .nonFatto =
            errori.Testo("parola non è stata aggiunta"_cp, "parole non sono state aggiunte")};
  });
  return rapporto;
}

void Recupera_Definizioni() {
  if (const auto rapporto = ImportaDefinizioni()) Avvisa(rapporto->Intero());
}

}  // namespace telarium
