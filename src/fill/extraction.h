#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fill/fill_grid.h"
#include "fill/word_choice.h"
#include "model/cruciverba.h"

// The automatic fill: greedy, and takes nothing back. It works on a crossword of its own; who runs
// it sees, and decides, through an observer.
namespace telarium {

/// How far a fill has come.
struct AvanzamentoEstrazione {
  std::int64_t tentativo = 0;  // starts of the clearing step so far, from 1
  int slotCollocati = 0;       // that have got a word in this attempt
  int slotTotali = 0;
};

/// What a slot, a dead end or one whole pass over the grid means for the run: on to the next one, a
/// new start, or the end.
enum class Seguito { Avanti, DaCapo, Basta };

/// How a fill ended.
enum class EsitoEstrazione {
  Completa,       // no white cell is empty
  Annullata,      // it was to stop at a dead end: what was placed stays
  Interrotta,     // it was to stop at a slot or a start: likewise
  NonRegistrata,  // the emptied grid was not taken
  SenzaParole,    // the dictionary could not be read any more
};

/// Who runs a fill. What is called may not touch it.
class OsservatoreEstrazione {
 public:
  virtual ~OsservatoreEstrazione() = default;

  /// Before each start and behind each slot. False: the run ends here.
  virtual bool Prosegue(const AvanzamentoEstrazione& avanzamento) = 0;

  /// The crossword has lost its letters, and its words their clues: at the start of each attempt,
  /// from 1. False: the run ends here.
  virtual bool Svuotata(const Cruciverba& cruciverba, std::int64_t tentativo) = 0;

  /// A word has its letters in the grid.
  virtual void Collocata(const Slot& slot, std::string_view parola) = 0;

  /// A dead end at a slot, with the question that tells it: Avanti accepts it.
  virtual Seguito VicoloCieco(const Slot& slot, const std::string& domanda) = 0;
};

struct RisultatoEstrazione {
  EsitoEstrazione esito;
  Cruciverba cruciverba;
  std::string errore;  // for SenzaParole: why, for the user
};

/// One run of the fill.
class Estrazione {
 public:
  /// What is handed in must outlive the run.
  Estrazione(const Cruciverba& cruciverba, const Dizionario& dizionario, Caso caso,
             OsservatoreEstrazione& osservatore);

  /// Fills the whole grid with words of the dictionary, once: erases all letters and the clues
  /// of all words, takes the slots from the longest to the shortest, puts one random fitting word
  /// in each and never takes one back. Dead ends are put to the observer. Then every cell still
  /// empty gets a random letter.
  RisultatoEstrazione Esegui();

 private:
  Seguito Basta(EsitoEstrazione esito);
  Seguito Riferisci();
  Seguito Passata();
  bool Svuota();
  Seguito PrendiSlot(const Slot& slot);
  Seguito VicoloCieco(const Slot& slot, const std::string& domanda);
  void Colloca(const Slot& slot, const std::string& parola);
  void RiempiCelleVuote();
  void RiportaLettere();

  Cruciverba cruciverba_;  // gets the letters at the end
  OsservatoreEstrazione& osservatore_;
  GrigliaInEstrazione griglia_;
  std::vector<Slot> slot_;  // in the order in which they are taken
  SceltaDiParole scelta_;
  AvanzamentoEstrazione avanzamento_;
  EsitoEstrazione esito_ = EsitoEstrazione::Completa;
};

}  // namespace telarium
