#include "model/crossword_file.h"
#include "model/words.h"
#include "output/web_opening.h"
#include "telar/command.h"
#include "telar/files.h"

namespace telarium::telar {
namespace {

Stato ApriPagina(const Argomenti& argomenti, PiattaformaConsole&) {
  AscoltaInterruzione();  // breaks the fetch off
  const auto blocco = PrelevaBlocco(argomenti.liberi[0]);
  if (!blocco || ApriTestoDiCruciverba(*blocco) != Apertura::Intera) return Stato::Fallito;
  RicalcolaCaselle();  // the writer wants the words of the grid
  return Scrivi(argomenti.liberi[1]);
}

}  // namespace

std::vector<Comando> ComandiUscita() {
  // clang-format off
  return {
      {"apri", "INDIRIZZO USCITA", "", 2, 2, {},
       "Scrive il cruciverba di una pagina web: http://, https://, file:// o il nome di un file.",
       ApriPagina},
  };
  // clang-format on
}

}  // namespace telarium::telar
