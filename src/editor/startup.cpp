#include "editor/startup.h"

#include <optional>

#include "auxiliary/addresses.h"
#include "dictionary/open_dictionary.h"
#include "editor/cell_drawing.h"
#include "editor/commands.h"
#include "editor/commit.h"
#include "editor/history_commands.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "editor/update_check.h"
#include "model/crossword_file.h"
#include "model/documento.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/temporary.h"

namespace telarium {

Percorso RigaDiComando;
Percorso FileComando;
Booleano16 GiaAttivata = Falso;

namespace {

// Where the snapshot lies when the program folder takes no new files.
std::optional<CartellaTemporanea> cartellaProvvisoria;

const AzzeramentoDiSottosistema azzeramento([] {
  cartellaProvvisoria.reset();
  RigaDiComando.clear();
  FileComando.clear();
  GiaAttivata = Falso;
});

void ScegliCartellaIstantanea() {
  if (CartellaScrivibile(CartellaProgramma)) return;
  cartellaProvvisoria.emplace();
  CartellaIstantanea = cartellaProvvisoria->Nome();
}

void LeggiImpostazioniOTermina() {
  std::error_code errore;
  switch (LeggiImpostazioni(errore)) {
    case EsitoImpostazioni::Lette:
      return;
    case EsitoImpostazioni::Assenti:
      Avvisa(
          "Errore Fatale: Manca il file di inizializzazione : Telarium.ini. E' necessario "
          "reinstallare il programma.",
          {}, Icona::Stop);
      TerminaProgramma();
    case EsitoImpostazioni::Illeggibili:
      ImpostazioniIniziali();
      Avvisa(ConCausa("Il file di inizializzazione telarium.ini non si può leggere: valgono le "
                      "impostazioni iniziali."_cp,
                      FileImpostazioni(), errore),
             {}, Icona::Avviso);
  }
}

// Whatever could not be opened leaves the program as it is without a crossword.
void ApriRigaDiComando() {
  FileComando = RigaDiComando;
  const Apertura esito = ApriCruciverba(RigaDiComando);
  if (esito == Apertura::Assente) TerminaSenzaCruciverba(RigaDiComando);
  if (esito == Apertura::Rifiutata) {
    LaFinestra().MostraPicture1(true);
    return;
  }
  RidisegnaSchema();
  static_cast<void>(ScriviIstantanea());  // a failure has shown its message
}

}  // namespace

void CaricaProgramma(const Percorso& cartella) {
  CartellaProgramma = cartella;
  std::error_code ignorato;
  std::filesystem::current_path(cartella, ignorato);
  LeggiIndirizzi();
  ControllaAggiornamento();
  IlDizionario() = Dizionario(cartella);
  TastoSin = Falso;
  LeggiImpostazioniOTermina();
  ScegliCartellaIstantanea();
  EliminaIstantanea();
  ApriDizionario(IlDizionario());
  IlDocumento().SegnaModificato(false);
  FontDelleLettere();
}

void AbbandonaIstantanea() {
  EliminaIstantanea();
  cartellaProvvisoria.reset();
}

void MostraAvvio() {
  if (Superficie* superficie = FinestraPrincipale()) {
    superficie->Grassetto(false);
    superficie->Corsivo(false);
    superficie->Carattere(FontDelleLettere());
  }
  AggiornaSpunte();
  RiprendiSchema();
  RiferisciSullaCronologia();
  LaFinestra().MostraPicture1(RigaDiComando.empty());
  LaFinestra().TogliLabel1();
}

void AttivaForm1() {
  LaFinestra().MostraCommand3d15(false);
  if (!RigaDiComando.empty() && FileComando.empty()) ApriRigaDiComando();
  if (!GiaAttivata) {
    OffriLavoroPerso();
    ApriSuggerimenti();
    LaFinestra().CollocaPicture2();
    LaFinestra().MettiGraficaAMenuFile();
  }
  RiprendiSchema();
  GiaAttivata = Vero;
  LaFinestra().RinfrescaToolbar1();
  LaFinestra().AbilitaVoce("menurl", true);
}

}  // namespace telarium
