#include "dictionary/open_dictionary.h"

#include "platform/platform.h"

namespace telarium {

Dizionario& IlDizionario() {
  static Dizionario dizionario;
  return dizionario;
}

bool ApriDizionario(Dizionario& dizionario) {
  switch (dizionario.Apri()) {
    case Dizionario::Apertura::Riuscita:
      return true;
    case Dizionario::Apertura::Illeggibile:
      Avvisa(dizionario.TestoIlleggibile());
      return false;
    default:
      Avvisa("Errore fatale! non trovato file di vocabolario: " +
             TestoPercorso(dizionario.NomeDizionario()));
      TerminaProgramma();
  }
}

void ConDizionario(Dizionario& aperto, const Percorso& nome,
                   const std::function<void(const Dizionario&)>& operazione) {
  Dizionario altro(aperto.Cartella());
  altro.Nomina(nome, aperto.LinguaDizionario());
  if (ApriDizionario(altro)) operazione(altro);
  ApriDizionario(aperto);
}

}  // namespace telarium
