#include <algorithm>
#include <cstdio>

#include "crossworddialogs/new_crossword.h"
#include "editor/commit.h"
#include "fill/extraction.h"
#include "model/crossword_file.h"
#include "model/documento.h"
#include "model/words.h"
#include "platform/platform.h"
#include "platform/temporary.h"
#include "platform/text.h"
#include "telar/command.h"
#include "telar/files.h"
#include "telar/output.h"

namespace telarium::telar {
namespace {

// The snapshot of this run lies in a folder of its own, so that no open desktop is disturbed.
class IstantaneaPropria {
 public:
  IstantaneaPropria() { CartellaIstantanea = cartella_.Nome(); }

  bool Pronta() const {
    if (cartella_.Nome().empty()) Avvisa("Impossibile creare una cartella temporanea.");
    return !cartella_.Nome().empty();
  }

 private:
  CartellaTemporanea cartella_;
};

Stato Parole(const Argomenti& argomenti, PiattaformaConsole&) {
  if (!Apri(argomenti.liberi[0])) return Stato::Fallito;
  PerOgniParola([](const Slot& slot) {
    const auto [c, r] = slot.inizio;
    StampaCampi({std::to_string(NumeroCasella(c, r)), Sigla(slot.direzione), std::to_string(c),
                 std::to_string(r), std::to_string(slot.lunghezza),
                 ParolaCasella(c, r, slot.direzione), Definizione(c, r, slot.direzione)});
  });
  return Stato::Fatto;
}

Stato Griglia(const Argomenti& argomenti, PiattaformaConsole&) {
  if (!Apri(argomenti.liberi[0])) return Stato::Fallito;
  for (int r = 1; r <= NumRighe; ++r) {
    std::string riga;
    for (int c = 1; c <= NumColonne; ++c)
      riga += LetteraCasella(c, r);
    StampaCampi({riga});
  }
  return Stato::Fatto;
}

Stato Copia(const Argomenti& argomenti, PiattaformaConsole&) {
  if (!Apri(argomenti.liberi[0])) return Stato::Fallito;
  return Scrivi(argomenti.liberi[1]);
}

EsitoNuovo NuovoConDimensioni(const std::string& dimensioni) {
  const std::size_t per = dimensioni.find('x');
  const auto colonne = NumeroIntero(dimensioni.substr(0, per));
  const auto righe =
      NumeroIntero(per == std::string::npos ? std::string() : dimensioni.substr(per + 1));
  if (!colonne || !righe) {
    throw ArgomentiErrati("--dimensioni richiede colonne e righe, per esempio 15x13");
  }
  // The dialog's field takes numbers of any size; what matters of a large one is that it is too
  // large.
  const auto limitato = [](std::int64_t n) {
    return static_cast<int>(std::min<std::int64_t>(n, 1000));
  };
  return NuovoVuoto(limitato(*colonne), limitato(*righe));
}

EsitoNuovo NuovoConModello(const Argomenti& argomenti) {
  const std::int64_t numero = argomenti.Numero("--modello", 1, 1);
  const Percorso file = argomenti.Ha("--modelli")
                            ? Percorso(argomenti.Valore("--modelli"))
                            : PercorsoNellaCartella(CartellaProgramma, NomeModelliIniziale);
  const EsitoNuovo esito =
      NuovoDaModello(file, static_cast<int>(std::min<std::int64_t>(numero - 1, MaxParole)));
  if (esito == EsitoNuovo::ModelloAssente) {
    Avvisa(Unisci("Il file modelli ", TestoPercorso(file), " non ha righe per un modello numero ",
                  numero, '.'));
  }
  return esito;
}

Stato Nuovo(const Argomenti& argomenti, PiattaformaConsole&) {
  if (argomenti.Ha("--dimensioni") == argomenti.Ha("--modello")) {
    throw ArgomentiErrati(argomenti.Ha("--modello") ? "--dimensioni e --modello non vanno insieme"
                                                    : "serve --dimensioni o --modello");
  }
  if (argomenti.Ha("--modelli") && !argomenti.Ha("--modello")) {
    throw ArgomentiErrati("--modelli va insieme a --modello");
  }
  AscoltaInterruzione();  // before there is a temporary folder that has to be removed
  const IstantaneaPropria istantanea;
  if (!istantanea.Pronta()) return Stato::Fallito;
  const EsitoNuovo esito = argomenti.Ha("--dimensioni")
                               ? NuovoConDimensioni(argomenti.Valore("--dimensioni"))
                               : NuovoConModello(argomenti);
  if (esito != EsitoNuovo::Fatto) return Stato::Fallito;
  return Scrivi(argomenti.liberi[0]);
}

Seguito SeguitoDelVicoloCieco(const std::string& valore) {
  if (valore == "si") return Seguito::Avanti;
  if (valore == "no") return Seguito::DaCapo;
  if (valore == "annulla") return Seguito::Basta;
  throw ArgomentiErrati("--vicolo-cieco richiede si, no o annulla");
}

// What the command line says of a fill.
class RispostePerEstrazione : public OsservatoreEstrazione {
 public:
  RispostePerEstrazione(const Argomenti& argomenti, const UtenteConsole& utente)
      : vicoloCieco_(SeguitoDelVicoloCieco(argomenti.Valore("--vicolo-cieco", "si"))),
        tentativi_(argomenti.Numero("--tentativi", 1, 1000)),
        infinito_(argomenti.Ha("--infinito")),
        utente_(utente) {}

  bool Prosegue(const AvanzamentoEstrazione& avanzamento) override {
    return !utente_.Interrotto() && avanzamento.tentativo <= tentativi_;
  }
  bool Svuotata(const Cruciverba&, std::int64_t) override { return true; }
  void Collocata(const Slot&, std::string_view) override {}
  Seguito VicoloCieco(const Slot&, const std::string& domanda) override {
    if (infinito_) return Seguito::DaCapo;
    Avvisa(domanda);
    return vicoloCieco_;
  }

  // Why the run ended before the grid was full.
  std::string Rinuncia() const {
    return Unisci(utente_.Interrotto() ? "Estrazione interrotta"
                                       : Unisci("Rinuncia dopo ", ConMigliaia(tentativi_),
                                                tentativi_ == 1 ? " tentativo" : " tentativi"),
                  ": nessun file scritto.");
  }

 private:
  Seguito vicoloCieco_;
  std::int64_t tentativi_;  // starts of the clearing step before it is given up
  bool infinito_;
  const UtenteConsole& utente_;
};

Stato Estrai(const Argomenti& argomenti, PiattaformaConsole& piattaforma) {
  RispostePerEstrazione risposte(argomenti, piattaforma.ChiUsa());
  if (!Apri(argomenti.liberi[0])) return Stato::Fallito;
  const auto dizionario = ApriDizionario(argomenti.Valore("--dizionario", DizionariDiSistema[0]));
  if (!dizionario) return Stato::Fallito;
  AscoltaInterruzione();
  Estrazione estrazione(
      IlDocumento().Valore(), *dizionario, [] { return Sistema().Casuale(); }, risposte);
  const RisultatoEstrazione risultato = estrazione.Esegui();
  switch (risultato.esito) {
    case EsitoEstrazione::Completa:
    case EsitoEstrazione::Annullata:
      return Scrivi(risultato.cruciverba, argomenti.liberi[1]);
    case EsitoEstrazione::SenzaParole:
      Avvisa(risultato.errore);
      return Stato::Fallito;
    default:
      Avvisa(risposte.Rinuncia());
      return Stato::Fallito;
  }
}

}  // namespace

std::vector<Comando> ComandiCruciverba() {
  // clang-format off
  return {
      {"parole", "FILE", "", 1, 1, {},
       "Elenca le parole: numero, O o V, colonna, riga, lunghezza, lettere, definizione.",
       Parole},
      {"griglia", "FILE", "", 1, 1, {},
       "Mostra lo schema, un carattere per casella.",
       Griglia},
      {"copia", "FILE USCITA", "", 2, 2, {},
       "Apre il cruciverba e lo riscrive in USCITA.",
       Copia},
      {"nuovo", "USCITA", " --dimensioni CxR | --modello N", 1, 1,
       {{"--dimensioni", "CxR", "colonne per righe, da 3x3 a 53x30"},
        {"--modello", "N", "il modello numero N, da 1, al posto delle dimensioni"},
        {"--modelli", "FILE.dfc", "il file dei modelli (STANDARD.dfc della cartella programma)"}},
       "Scrive un cruciverba nuovo, vuoto o da un modello.",
       Nuovo},
      {"estrai", "FILE USCITA", "", 2, 2,
       {{"--dizionario", "NOME", "il dizionario (LessicoItaliano.dat)"},
        {"--vicolo-cieco", "si|no|annulla", "la risposta a ogni vicolo cieco (si)"},
        {"--infinito", "", "ricomincia da solo a ogni vicolo cieco"},
        {"--tentativi", "N", "rinuncia dopo N tentativi (1000)"}},
       "Riempie lo schema con parole estratte dal dizionario.",
       Estrai},
  };
  // clang-format on
}

}  // namespace telarium::telar
