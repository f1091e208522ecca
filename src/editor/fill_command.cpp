#include "editor/fill_command.h"

#include "dictionary/open_dictionary.h"
#include "editor/commit.h"
#include "editor/placed_word.h"
#include "editor/redraw.h"
#include "model/crossword_file.h"
#include "model/documento.h"
#include "model/pointer.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"

namespace telarium {
namespace {

constexpr const char* Motivo = "Estrazione automatica";

Seguito ChiediVicoloCieco(const std::string& domanda) {
  switch (ChiUsa().ChiediVicoloCieco(domanda)) {
    case Risposta::No:
      return Seguito::DaCapo;
    case Risposta::Annulla:
      return Seguito::Basta;
    default:
      return Seguito::Avanti;
  }
}

void Accogli(const Cruciverba& cruciverba) {
  IlDocumento().Modifica(Motivo, [&](Cruciverba& attuale) { attuale = cruciverba; });
}

// Shows a run on the main window: the words are painted straight on the screen, and the surface
// gets the grid at the end. Meanwhile the current crossword is the emptied one.
class EstrazioneInVista : public OsservatoreEstrazione {
 public:
  EstrazioneInVista(const SegueEstrazione& segue, bool infinita)
      : segue_(segue), infinita_(infinita), pittore_(FinestraPrincipale()) {}

  bool Prosegue(const AvanzamentoEstrazione& avanzamento) override {
    return !segue_ || segue_(avanzamento);
  }

  bool Svuotata(const Cruciverba& cruciverba, std::int64_t tentativo) override {
    pittore_.DirettoSulloSchermo();
    bool accolta = true;
    if (tentativo == 1) {
      Accogli(cruciverba);
      accolta = ConsolidaSchema();
    } else {
      RidisegnaSenzaIstantanea();
    }
    pittore_.PreparaCarattere();
    return accolta;
  }

  void Collocata(const Slot& slot, std::string_view parola) override {
    pittore_.Dipingi(slot, parola);
  }

  Seguito VicoloCieco(const Slot&, const std::string& domanda) override {
    return infinita_ ? Seguito::DaCapo : ChiediVicoloCieco(domanda);
  }

  void Fine(const RisultatoEstrazione& risultato) {
    const EsitoEstrazione esito = risultato.esito;
    if (esito == EsitoEstrazione::SenzaParole) Avvisa(risultato.errore);
    if (esito != EsitoEstrazione::NonRegistrata) Accogli(risultato.cruciverba);
    if (esito == EsitoEstrazione::Completa) RidisegnaSchema();
    pittore_.Fine();
    if (esito == EsitoEstrazione::NonRegistrata) {
      RidisegnaSchema();  // a second try would only tell the same failure again
    } else {
      ConsolidaSchema();
    }
  }

 private:
  const SegueEstrazione& segue_;
  bool infinita_;
  PittoreDiParole pittore_;
};

bool ConfermaEstrazione() {
  return ChiUsa().MostraMessaggio(
             {.testo = std::string(
                  "L'estrazione automatica delle parole dal vocabolario, azzera il cruciverba "
                  "corrente ed inoltre richiede un processore molto veloce, è possibile "_cp
                  "interrompere questa operazione solamente durante i messaggi di errore sulla "
                  "estrazione, si desidera comunque procedere?"_cp),
              .titolo = "Estrazione automatica parole",
              .pulsanti = Pulsanti::OkAnnulla}) == Risposta::Ok;
}

}  // namespace

std::optional<EsitoEstrazione> ComandoEstrazione::EstraiSchema() {
  if (NumColonne == 0 || !ConfermaEstrazione()) return std::nullopt;
  return EseguiEstrazione();
}

EsitoEstrazione ComandoEstrazione::EseguiEstrazione() {
  const Dizionario& dizionario = IlDizionario();
  if (!dizionario.Leggibile()) {
    Avvisa(dizionario.TestoIlleggibile());
    return EsitoEstrazione::SenzaParole;
  }
  if (!ScriviIstantanea()) return EsitoEstrazione::NonRegistrata;
  ModoGriglia = ModoNeutro;
  IlDocumento().SegnaModificato(true);
  const PassoUnico passo(IlDocumento(), Motivo);
  const Clessidra clessidra;
  EstrazioneInVista vista(segue_, ProvaInfinita);
  Estrazione estrazione(
      IlDocumento().Valore(), dizionario, [] { return Sistema().Casuale(); }, vista);
  const RisultatoEstrazione risultato = estrazione.Esegui();
  vista.Fine(risultato);
  return risultato.esito;
}

}  // namespace telarium
