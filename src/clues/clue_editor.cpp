#include "clues/clue_editor.h"

#include <algorithm>

#include "clues/clue_search.h"
#include "dictionary/dictionary.h"
#include "dictionary/word_pattern.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr double Rientro = 1.2;  // sizes of the dialog that it keeps from an edge it would pass

// One coordinate of the place; `margine` is left free at the far edge.
double Collocata(double posto, double misura, double schermo, double margine) {
  if (posto + misura > schermo - margine) posto = schermo - Rientro * misura - margine;
  return std::max(posto, 0.0);
}

}  // namespace

std::string EsameDiParola::TitoloParola() const {
  return Unisci(parola_.numero, parola_.direzione == Orizzontale ? " Orizz. " : " Vertic. ");
}

std::string EsameDiParola::MascheraIniziale() const {
  std::string maschera = ParolaIniziale();
  if (!LunghezzaAmmessa(static_cast<int>(maschera.size()))) return {};
  std::replace(maschera.begin(), maschera.end(), CellaVuota, PostoLibero);
  return maschera;
}

bool EsameDiParola::AccettaDefinizione(ParolaDefinita scritta) {
  if (!ParolaAccettata(scritta.parola, static_cast<int>(ParolaIniziale().size()))) return false;
  accettata_ = std::move(scritta);
  return true;
}

std::string_view AiutoDefinizione() {
  return "Inserire la definizione della parola, in questa maschera si può anche variare la parola "
         "stessa. "
         "Nel caso di una parola composta da almeno 3 caratteri è possibile utilizzare la ricerca "
         "sul vocabolario delle parole"
         "con mascheramento , ad esempio si supponga di voler variare la parola MOLA, se vogliamo "
         "cercare tutte le parole di quattro caratteri che "
         "iniziano con M e finiscono con LA occorre cliccare sotto la lettera O, la quale sparirà "
         "e la maschera diverrà M_LA, se si clicca ora sul bottone <Cerca> apparirà una lista di "
         "parole (MELA, MALA, MULA, MOLA) dalla quale è possibile scegliere quella che ci serve."
         "\r\n"
         "Una volta inserita la parola si può cercare nell'enciclopedia delle definizioni se ne "
         "esiste già una precompilata."_cp;
}

Punto PostoDelDialogo(Misura dialogo, Misura schermo, double barraDiStato, Punto angolo) {
  return {Collocata(angolo.x, dialogo.larghezza, schermo.larghezza, 0),
          Collocata(angolo.y, dialogo.altezza, schermo.altezza, barraDiStato)};
}

}  // namespace telarium
