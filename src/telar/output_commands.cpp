#include "auxiliary/addresses.h"
#include "editor/settings.h"
#include "model/crossword_file.h"
#include "output/interactive_page.h"
#include "output/output_file.h"
#include "output/static_page.h"
#include "output/web_opening.h"
#include "output/word_export.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "telar/command.h"
#include "telar/files.h"

namespace telarium::telar {
namespace {

// Opens the crossword of a command that makes something of it; the pages show the product's site.
bool ApriPerUscita(const Argomenti& argomenti) {
  StampaSoluzioni = argomenti.Ha("--senza-soluzioni") ? Vero : Falso;
  LeggiIndirizzi();
  if (!Apri(argomenti.liberi[0])) return false;
  AscoltaInterruzione();  // no half-written file must be left
  return true;
}

// A page in the place of its own crossword would be the end of that.
bool SulSuoCruciverba(const Argomenti& argomenti, const Percorso& uscita) {
  std::error_code ignorato;
  if (!std::filesystem::equivalent(argomenti.liberi[0], uscita, ignorato)) return false;
  Avvisa("L'uscita è il cruciverba stesso: nessun file scritto."_cp);
  return true;
}

Stato ScriviPagina(const Argomenti& argomenti, const char* nomeIniziale, const std::string& testo) {
  const Percorso file = argomenti.Ha("--uscita") ? Percorso(argomenti.Valore("--uscita"))
                                                 : FileDiUscita(nomeIniziale);
  const bool scritta = !SulSuoCruciverba(argomenti, file) && ScriviUscita(file, testo);
  return scritta ? Stato::Fatto : Stato::Fallito;
}

std::int16_t ModoDa(const std::string& valore) {
  if (valore == "1") return PaginaPerIlBrowser;
  if (valore == "2") return PaginaPerWord;
  throw ArgomentiErrati("--modo richiede 1 o 2");
}

Stato Html(const Argomenti& argomenti, PiattaformaConsole&) {
  const std::int16_t modo = ModoDa(argomenti.Valore("--modo", "1"));
  if (!ApriPerUscita(argomenti)) return Stato::Fallito;
  return ScriviPagina(argomenti, NomePaginaStatica, PaginaStatica(modo));
}

Stato Form(const Argomenti& argomenti, PiattaformaConsole&) {
  if (!ApriPerUscita(argomenti)) return Stato::Fallito;
  const auto pagina = PaginaInterattiva();
  if (pagina) return ScriviPagina(argomenti, NomePaginaInterattiva, *pagina);
  AvvisaErroreDiUscita(argomenti.liberi[0], CruciverbaNonScrivibile);
  return Stato::Fallito;
}

Stato Testo(const Argomenti& argomenti, PiattaformaConsole&) {
  if (!ApriPerUscita(argomenti)) return Stato::Fallito;
  const Percorso cartella = argomenti.Valore("--cartella-uscita", CartellaProgramma.string());
  return ScriviTestiNonome(cartella) ? Stato::Fatto : Stato::Fallito;
}

Stato ApriPagina(const Argomenti& argomenti, PiattaformaConsole& piattaforma) {
  AscoltaInterruzione();  // breaks the fetch off
  const auto blocco = PrelevaBlocco(argomenti.liberi[0]);
  if (!blocco && piattaforma.ChiUsa().Interrotto())
    Avvisa("Prelievo interrotto: nessun file scritto.");
  if (!blocco || !ApriTestoDiCruciverba(*blocco)) return Stato::Fallito;
  return Scrivi(argomenti.liberi[1]);
}

}  // namespace

std::vector<Comando> ComandiUscita() {
  constexpr Opzione senzaSoluzioni = {"--senza-soluzioni", "", "omette le soluzioni"};
  // clang-format off
  return {
      {"html", "FILE", "", 1, 1,
       {{"--modo", "1|2", "per il browser o per un programma di scrittura (1)"},
        senzaSoluzioni,
        {"--uscita", "PERCORSO", "il file (telarium_html.html della cartella programma)"}},
       "Scrive la pagina da leggere, con lo schema come tabella.",
       Html},
      {"form", "FILE", "", 1, 1,
       {senzaSoluzioni,
        {"--uscita", "PERCORSO", "il file (telarium_form.html della cartella programma)"}},
       "Scrive la pagina da risolvere nel browser, che si riapre con \"apri\".",
       Form},
      {"testo", "FILE", "", 1, 1,
       {{"--cartella-uscita", "CARTELLA", "dove scriverli (la cartella programma)"}},
       "Scrive le definizioni in NONOME.TXT e NONOME.html.",
       Testo},
      {"apri", "INDIRIZZO USCITA", "", 2, 2, {},
       "Scrive il cruciverba di una pagina web: http://, https://, file:// o il nome di un file.",
       ApriPagina},
  };
  // clang-format on
}

}  // namespace telarium::telar
