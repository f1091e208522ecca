#include "clues/bulk.h"
#include "clues/clue_family.h"
#include "clues/clue_search.h"
#include "clues/encyclopedia_writer.h"
#include "clues/import.h"
#include "clues/store_use.h"
#include "dictionary/word_list.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"
#include "telar/command.h"
#include "telar/files.h"
#include "telar/output.h"

namespace telarium::telar {
namespace {

// Whether all was done. What was not is told, and then there is no result.
bool Riuscito(const std::optional<RapportoDefinizioni>& rapporto) {
  if (rapporto && !rapporto->nonFatto.empty()) Avvisa(rapporto->nonFatto);
  return rapporto && rapporto->nonFatto.empty();
}

// A report is a result, on one line: its last line break ends it.
Stato StampaRapporto(const std::optional<RapportoDefinizioni>& rapporto) {
  if (!Riuscito(rapporto)) return Stato::Fallito;
  const std::string_view testo = rapporto->testo;
  StampaCampi({SenzaInterruzioni(testo.substr(0, testo.find_last_not_of("\r\n") + 1))});
  return Stato::Fatto;
}

constexpr Opzione OpzioneVuoto = {"--vuoto", "",
                                  "ammette liste senza definizioni: l'enciclopedia sarà vuota"};

Stato EncCrea(const Argomenti& argomenti, PiattaformaConsole& piattaforma) {
  std::vector<VoceDiLista> voci;
  for (const std::string& file : argomenti.liberi) {
    const auto lista = LeggiLista("lista di definizioni", file, MaxByteLista);
    if (!lista) return Stato::Fallito;
    const auto [tralasciate, prima] = AggiungiVoci(*lista, voci);
    if (tralasciate > 0) {
      Avvisa(Unisci(TestoPercorso(file), ": righe tralasciate ", tralasciate, ", la prima è la "_cp,
                    prima, '.'));
    }
  }
  if (voci.empty() && !argomenti.Ha(OpzioneVuoto.nome)) {
    Avvisa("Nessuna definizione nelle liste: l'enciclopedia resta com'era.");
    return Stato::Fallito;
  }
  AscoltaInterruzione();  // a file beside the encyclopedia must not be left
  const EsitoEnciclopedia esito = ScriviEnciclopedia(
      std::move(voci), [&](double) { return !piattaforma.ChiUsa().Interrotto(); });
  if (!esito.errore.empty()) Avvisa(esito.errore);
  if (!esito.Fatta()) return Stato::Fallito;
  StampaCampi({std::to_string(esito.parole), std::to_string(esito.definizioni)});
  return Stato::Fatto;
}

std::int16_t ModoDa(const std::string& valore) {
  if (valore == "1") return ModoTutte;
  if (valore == "2") return ModoFacili;
  if (valore == "3") return ModoDifficili;
  throw ArgomentiErrati("--modo richiede 1, 2 o 3");
}

Stato Preleva(const Argomenti& argomenti, PiattaformaConsole&) {
  const std::int16_t modo = ModoDa(argomenti.Valore("--modo", "1"));
  if (!Apri(argomenti.liberi[0])) return Stato::Fallito;
  const auto rapporto = PrelevaTutte(modo);
  if (!Riuscito(rapporto) || Scrivi(argomenti.liberi[1]) != Stato::Fatto) return Stato::Fallito;
  return StampaRapporto(rapporto);
}

Stato Salva(const Argomenti& argomenti, PiattaformaConsole&) {
  if (!Apri(argomenti.liberi[0])) return Stato::Fallito;
  return StampaRapporto(SalvaTutte());
}

Stato Importa(const Argomenti&, PiattaformaConsole&) {
  return StampaRapporto(ImportaDefinizioni());
}

void StampaFamiglia(std::string_view sigla, const std::string& famiglia) {
  for (const std::string_view definizione : DefinizioniDellaFamiglia(famiglia))
    StampaCampi({sigla, definizione});
}

Stato Definizioni(const Argomenti& argomenti, PiattaformaConsole&) {
  std::optional<Famiglie> famiglie;
  const std::string& utf8 = argomenti.liberi[0];
  ConEnciclopedia([&] {
    famiglie = LeggiFamiglie(ParolaDaCercare(DaUtf8(utf8)));
    if (famiglie) return;
    // Words of a grid have no accents: "perché" is there as PERCHE.
    if (const auto piegata = PiegaParola(utf8)) famiglie = LeggiFamiglie(*piegata);
  });
  if (!famiglie) return Stato::Fallito;
  StampaFamiglia("F", famiglie->facili);
  StampaFamiglia("D", famiglie->difficili);
  return Stato::Fatto;
}

}  // namespace

std::vector<Comando> ComandiDefinizioni() {
  // clang-format off
  return {
      {"enc-crea", "LISTA...", "", 1, QuantiSiVuole, {OpzioneVuoto},
       "Crea l'enciclopedia da liste in UTF-8: parola, F o D, definizione, separate da TAB.",
       EncCrea},
      {"definizioni", "PAROLA", "", 1, 1, {},
       "Mostra le definizioni facili (F) e difficili (D) di una parola.",
       Definizioni, true},
      {"preleva", "FILE USCITA", "", 2, 2,
       {{"--modo", "1|2|3", "definizioni di ogni tipo, solo facili, solo difficili (1)"}},
       "Dà a ogni parola del cruciverba una definizione dell'enciclopedia.",
       Preleva, true},
      {"salva-definizioni", "FILE", "", 1, 1, {},
       "Aggiunge all'enciclopedia le definizioni del cruciverba.",
       Salva, true},
      {"importa-definizioni", "", "", 0, 0, {},
       "Aggiunge all'enciclopedia le coppie di definizIONI.txt della cartella programma.",
       Importa, true},
  };
  // clang-format on
}

}  // namespace telarium::telar
