#include <algorithm>
#include <cstdio>
#include <limits>

#include "composer/lookahead.h"
#include "laboratory/composition.h"
#include "model/documento.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"
#include "telar/command.h"
#include "telar/files.h"
#include "telar/option_values.h"
#include "telar/output.h"
#include "telar/watch.h"
#include "telar/word_options.h"

// What may stand in one place of a crossword.
namespace telarium::telar {
namespace {

constexpr Opzione OpzionePrimi = {"--primi", "N", "i primi N candidati (50)"};
constexpr Opzione OpzionePassi = {"--passi", "N", "i passi per provarne uno (100000)"};

void Stampa(const Composizione& composizione, const Copertura* copertura,
            const Candidato& candidato) {
  const Vocabolario& vocabolario = *composizione.problema.vocabolario;
  const std::string_view parola = vocabolario.Parola(candidato.parola);
  const std::string punteggio = std::to_string(vocabolario.Punteggio(candidato.parola));
  const auto definizioni = copertura ? copertura->Di(parola) : ConteggioDefinizioni();
  const std::string facili = std::to_string(definizioni.facili);
  const std::string difficili = std::to_string(definizioni.difficili);
  if (candidato.sorte != Sorte::Morta) {
    StampaCampi({"candidato", parola, punteggio, facili, difficili,
                 candidato.sorte == Sorte::Provata ? "provata" : "aperta"});
  } else if (candidato.incrocio < 0) {
    StampaCampi({"candidato", parola, punteggio, facili, difficili, "morta", "", "", "", ""});
  } else {
    const Slot& incrocio = composizione.slot[static_cast<std::size_t>(candidato.incrocio)];
    const auto [colonna, riga] = incrocio.inizio;
    StampaCampi({"candidato", parola, punteggio, facili, difficili, "morta",
                 std::to_string(colonna), std::to_string(riga), Sigla(incrocio.direzione),
                 candidato.maschera});
  }
  std::fflush(stdout);  // whoever reads has each one as soon as it is known
}

// Which slot of the composition is the word that starts there; none, told, when there is nothing to
// be filled.
std::optional<int> TrovaSlot(const Composizione& composizione, const InizioDiParola& inizio) {
  const auto& slot = composizione.slot;
  const auto trovato = std::ranges::find_if(slot, [&](const Slot& uno) {
    return uno.inizio == inizio.casella && uno.direzione == inizio.direzione;
  });
  if (trovato != slot.end()) return static_cast<int>(trovato - slot.begin());
  const bool inizia = composizione.griglia.Dentro(inizio.casella) &&
                      composizione.griglia.Inizia(inizio.casella, inizio.direzione);
  Avvisa(Unisci("Nella colonna ", inizio.casella.colonna, ", riga ", inizio.casella.riga,
                inizia                            ? ", la parola ha già tutte le lettere."_cp
                : inizio.direzione == Orizzontale ? ", non comincia nessuna parola orizzontale."
                                                  : ", non comincia nessuna parola verticale."));
  return std::nullopt;
}

// Who reads the first ones and goes has what was wanted.
Stato Fermato() {
  return LettoreAndato() ? Stato::Fatto : Stato::Interrotto;
}

Stato Vaglia(const Composizione& composizione, const Copertura* copertura, int slot, int quanti,
             const Limiti& limiti) {
  bool qualcuno = false;
  const bool finito =
      VagliaCandidati(composizione.problema, slot, quanti, limiti, [&](const Candidato& candidato) {
        qualcuno = true;
        Stampa(composizione, copertura, candidato);
        return std::ferror(stdout) == 0;
      });
  if (!finito && limiti.ferma.stop_requested()) return Fermato();
  if (qualcuno) return Stato::Fatto;
  Avvisa("Nessuna parola adatta.");
  return Stato::Negativo;
}

Stato Candidati(const Argomenti& argomenti, PiattaformaConsole& piattaforma) {
  const InizioDiParola inizio = LeggiInizio(argomenti.liberi[1], argomenti.liberi[2],
                                            argomenti.liberi[3], "l'inizio della parola");
  const int quanti = static_cast<int>(std::min<std::int64_t>(
      argomenti.Numero(OpzionePrimi.nome, 1, 50), std::numeric_limits<int>::max()));
  const std::int64_t passi = argomenti.Numero(OpzionePassi.nome, 0, 100'000);
  const Sorveglianza sorveglianza(piattaforma.ChiUsa(), {}, LettoreAndato);
  const Limiti limiti = {.passi = passi, .ferma = sorveglianza.Segnale()};
  auto parole = LeggiSceltaParole(argomenti);
  if (!parole || !Apri(argomenti.liberi[0])) return Stato::Fallito;
  const auto lessico = PreparaLessico(*parole);
  if (!lessico) return Stato::Fallito;
  const auto copertura = PreparaCopertura(limiti.ferma);
  if (sorveglianza.Fermata()) return Fermato();
  if (!copertura && parole->definizioni == UsoDefinizioni::Obbligatorie) return Stato::Fallito;
  std::string messaggio;
  const auto composizione = PreparaComposizione(
      IlDocumento().Valore(), {.parole = std::move(*parole)}, *lessico, copertura.get(), messaggio);
  if (!messaggio.empty()) Avvisa(messaggio);
  if (!composizione) return Stato::Fallito;
  const auto slot = TrovaSlot(*composizione, inizio);
  if (!slot) return Stato::Fallito;
  return Vaglia(*composizione, copertura.get(), *slot, quanti, limiti);
}

}  // namespace

std::vector<Comando> ComandiCandidati() {
  return {
      {"candidati", "FILE COLONNA RIGA O|V", "", 4, 4,
       ConOpzioniParole({OpzionePrimi, OpzionePassi}),
       "Elenca le parole che possono stare in un posto, e se il resto dello schema le regge.",
       Candidati, true, Stato::Interrotto},
  };
}

}  // namespace telarium::telar
