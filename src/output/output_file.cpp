#include "output/output_file.h"

#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {

Percorso FileDiUscita(const Percorso& nome) {
  return CartellaProgramma / nome;
}

bool ScriviUscita(const Percorso& file, std::string_view contenuto) {
  // Each run makes the file anew: it need not survive a power cut.
  const std::error_code errore = ScriviFile(file, contenuto, Permanenza::Provvisoria);
  if (errore) AvvisaErroreDiUscita(file, errore);
  return !errore;
}

void AvvisaErroreDiUscita(const Percorso& file, std::string_view causa) {
  Avvisa(
      ConCausa("Si è verificato un errore di scrittura/accesso al file o drive!, controlla che "
               "eventualmente i files non siano impostati a sola lettura."_cp,
               file, causa));
}

void AvvisaErroreDiUscita(const Percorso& file, const std::error_code& errore) {
  AvvisaErroreDiUscita(file, DescrizioneErrore(errore));
}

void ApriUscita(const Percorso& file) {
  if (Sistema().ApriFile(file)) return;
  const bool presente = FileOrdinario(file);
  Avvisa(Unisci(presente ? "Manca un programma adatto per aprire il file " : "Manca il file ",
                TestoPercorso(file), '.'),
         {}, Icona::Avviso);
}

}  // namespace telarium
