#include <algorithm>
#include <cstdio>
#include <exception>
#include <utility>

#include "clues/first_encyclopedia.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/console/console_platform.h"
#include "platform/program_folder.h"
#include "telar/command.h"
#include "telar/output.h"
#include "telarium_version.h"

// The console companion: reads its arguments, runs the routines of the core, prints.
namespace telarium::telar {
namespace {

constexpr Opzione OpzioneCartella = {"--cartella", "CARTELLA", "la cartella programma"};
constexpr Opzione OpzioneAiuto = {"--help", "", "mostra questo aiuto"};
constexpr Opzione OpzioneVersione = {"--version", "", "mostra la versione"};
constexpr const char* NotaEnciclopedia =
    "\nSe nella cartella dell'utente manca l'enciclopedia, la crea prima dalle liste installate.\n";

void Aggiungi(std::string& testo, std::initializer_list<std::string_view> parti) {
  for (const std::string_view parte : parti)
    testo += parte;
}

// A row of a list. The explanation has a column of its own, below a name that is too long for it.
void AggiungiVoce(std::string& testo, std::string voce, std::string_view spiegazione) {
  constexpr std::size_t colonna = 32;
  if (voce.size() >= colonna) {
    Aggiungi(testo, {voce, "\n"});
    voce.clear();
  }
  voce.resize(colonna, ' ');
  Aggiungi(testo, {voce, spiegazione, "\n"});
}

// The name of a command and what it takes.
std::string Forma(const Comando& comando) {
  std::string forma(comando.nome);
  if (!comando.argomenti.empty()) Aggiungi(forma, {" ", comando.argomenti});
  return forma.append(comando.uso);
}

void AggiungiOpzioni(std::string& testo, const std::vector<Opzione>& opzioni) {
  for (const auto& [nome, valore, aiuto] : opzioni) {
    std::string sinistra = "  " + std::string(nome);
    if (!valore.empty()) Aggiungi(sinistra, {" ", valore});
    AggiungiVoce(testo, std::move(sinistra), aiuto);
  }
}

std::string UsoGenerale() {
  std::string testo =
      "Uso: telar [--cartella CARTELLA] COMANDO [ARGOMENTI] [OPZIONI]\n\nComandi:\n";
  for (const Comando& comando : Comandi())
    AggiungiVoce(testo, "  " + Forma(comando), comando.aiuto);
  testo += "\nOpzioni:\n";
  AggiungiOpzioni(testo, {OpzioneCartella, OpzioneAiuto, OpzioneVersione});
  testo += "\n\"telar COMANDO --help\" spiega un comando.\n";
  return testo;
}

std::string UsoDi(const Comando& comando) {
  std::string testo;
  Aggiungi(testo,
           {"Uso: telar ", Forma(comando), " [OPZIONI]\n\n", comando.aiuto, "\n\nOpzioni:\n"});
  AggiungiOpzioni(testo, comando.opzioni);
  AggiungiOpzioni(testo, {OpzioneCartella, OpzioneAiuto});
  if (comando.usaEnciclopedia) testo += NotaEnciclopedia;
  return testo;
}

const Comando* TrovaComando(std::string_view nome) {
  const auto trovato = std::find_if(Comandi().begin(), Comandi().end(),
                                    [&](const Comando& uno) { return uno.nome == nome; });
  return trovato == Comandi().end() ? nullptr : &*trovato;
}

// The command is the first word that is neither an option nor the value of one that may stand
// before it. It is taken out of the words.
const Comando* PrendiComando(std::vector<std::string>& parole) {
  for (std::size_t i = 0; i < parole.size(); ++i) {
    if (parole[i] == OpzioneCartella.nome) {
      ++i;
    } else if (!parole[i].starts_with('-')) {
      const Comando* comando = TrovaComando(parole[i]);
      if (!comando) throw ArgomentiErrati("comando sconosciuto: " + parole[i]);
      parole.erase(parole.begin() + static_cast<std::ptrdiff_t>(i));
      return comando;
    }
  }
  return nullptr;
}

Argomenti Leggi(const std::vector<std::string>& parole, const Comando* comando) {
  std::vector<Opzione> ammesse = {OpzioneCartella, OpzioneAiuto, OpzioneVersione};
  if (comando) ammesse.insert(ammesse.end(), comando->opzioni.begin(), comando->opzioni.end());
  return Separa(parole, ammesse);
}

// Sets CartellaProgramma and gives the choice; no folder, told, when there is none that could be
// it.
SceltaCartella ScegliCartella(const Argomenti& argomenti) {
  SceltaCartella scelta;
  if (argomenti.Ha(OpzioneCartella.nome)) {
    const Percorso nominata = argomenti.Valore(OpzioneCartella.nome);
    if (nominata.empty()) throw ArgomentiErrati("--cartella richiede il nome di una cartella");
    std::error_code errore;
    scelta.cartella = std::filesystem::absolute(nominata, errore);
  } else {
    scelta = PreparaCartellaProgramma();
  }
  CartellaProgramma = scelta.cartella;
  return scelta;
}

// False when the encyclopedia is missing and could not be made, or Ctrl+C was pressed.
bool PreparaEnciclopediaMancante() {
  const Percorso installati = CartellaDatiInstallati();
  if (!MancaEnciclopedia(installati, CartellaProgramma)) return true;
  AscoltaInterruzione();
  Avvisa(
      "L'enciclopedia delle definizioni non c'è ancora: viene creata dalle liste installate, una "
      "volta sola."_cp);
  return PreparaEnciclopedia(installati, CartellaProgramma);
}

Stato Esegui(const Comando& comando, const Argomenti& argomenti, PiattaformaConsole& piattaforma) {
  const std::size_t quanti = argomenti.liberi.size();
  if (quanti < comando.minArgomenti || quanti > comando.maxArgomenti) {
    const char* quale = quanti < comando.minArgomenti ? "mancano argomenti" : "troppi argomenti";
    throw ArgomentiErrati(std::string(quale) + ", servono: " + std::string(comando.argomenti));
  }
  const SceltaCartella scelta = ScegliCartella(argomenti);
  if (scelta.cartella.empty()) return Stato::Fallito;
  if (scelta.daRiempire && !FileOrdinario(scelta.cartella / NomeBlocco))
    AggiornaCartellaProgramma(scelta.cartella, FileModificati::Lascia);
  if (scelta.daRiempire && comando.usaEnciclopedia && !PreparaEnciclopediaMancante())
    return piattaforma.ChiUsa().Interrotto() ? comando.interrotto : Stato::Fallito;
  return comando.esegui(argomenti, piattaforma);
}

Stato Rifiuta(const std::string& errore, const std::string& uso) {
  std::fprintf(stderr, "telar: %s\n%s", errore.c_str(), uso.c_str());
  return Stato::ArgomentiErrati;
}

Stato EseguiRigaDiComando(std::vector<std::string> parole, PiattaformaConsole& piattaforma) {
  const Comando* comando = nullptr;
  try {
    comando = PrendiComando(parole);
    const Argomenti argomenti = Leggi(parole, comando);
    if (argomenti.Ha(OpzioneAiuto.nome)) {
      std::fputs((comando ? UsoDi(*comando) : UsoGenerale()).c_str(), stdout);
      return Stato::Fatto;
    }
    if (argomenti.Ha(OpzioneVersione.nome)) {
      std::puts("telar " TELARIUM_VERSION);
      return Stato::Fatto;
    }
    if (!comando) throw ArgomentiErrati("manca il comando");
    return Esegui(*comando, argomenti, piattaforma);
  } catch (const ArgomentiErrati& errore) {
    return Rifiuta(errore.what(), comando ? UsoDi(*comando) : UsoGenerale());
  }
}

}  // namespace

const std::vector<Comando>& Comandi() {
  static const std::vector<Comando> comandi = [] {
    std::vector<Comando> tutti = ComandiCruciverba();
    for (const auto& altri :
         {ComandiDizionario(), ComandiDefinizioni(), ComandiUscita(), ComandiLessico(),
          ComandiControllo(), ComandiComposizione(), ComandiCandidati()})
      tutti.insert(tutti.end(), altri.begin(), altri.end());
    return tutti;
  }();
  return comandi;
}

}  // namespace telarium::telar

int main(int argc, char** argv) {
  using namespace telarium;
  std::signal(SIGXFSZ, SIG_IGN);  // a file over the limit is a write error like another
  PiattaformaConsole piattaforma;
  ImpostaPiattaforma(&piattaforma);
  telar::Stato stato = telar::Stato::Fallito;
  try {
    stato = telar::EseguiRigaDiComando({argv + 1, argv + argc}, piattaforma);
  } catch (const ProgrammaTerminato&) {
    // Its message has been shown.
  } catch (const std::bad_alloc&) {
    std::fputs("Memoria esaurita.\n", stderr);
  } catch (const std::exception& errore) {
    std::fprintf(stderr, "Errore imprevisto: %s\n", errore.what());
  }
  const bool persa = std::fflush(stdout) != 0 || std::ferror(stdout);
  if (persa && !telar::LettoreAndato()) {
    std::fputs("Errore di scrittura sull'uscita standard.\n", stderr);
    stato = telar::Stato::Fallito;
  }
  return static_cast<int>(stato);
}
