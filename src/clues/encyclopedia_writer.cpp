#include "clues/encyclopedia_writer.h"

#include <algorithm>
#include <optional>

#include "clues/clue_family.h"
#include "clues/encyclopedia.h"
#include "clues/sqlite_database.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/folder_lock.h"
#include "platform/text.h"

namespace telarium {
namespace {

using Voce = std::vector<VoceDiLista>::const_iterator;

// Shares of the whole time, as measured; the rest is the index and the file.
constexpr double QuotaOrdine = 0.4;
constexpr double QuotaRighe = 0.4;

// One family of the entries of one word; none without a clue.
std::optional<std::string> Famiglia(Voce da, Voce a, bool difficile, int& definizioni) {
  std::optional<std::string> famiglia;
  std::vector<std::string_view> prese;
  for (Voce voce = da; voce != a; ++voce) {
    const std::string_view una = voce->definizione;
    if (voce->difficile != difficile) continue;
    if (std::find(prese.begin(), prese.end(), una) != prese.end()) continue;
    prese.push_back(una);
    if (famiglia) {
      *famiglia += SeparatoreDefinizioni;
      *famiglia += una;
    } else {
      famiglia = una;
    }
  }
  definizioni += static_cast<int>(prese.size());
  return famiglia;
}

void OrdinaPerParola(std::vector<VoceDiLista>& voci) {
  const auto perParola = [](const VoceDiLista& a, const VoceDiLista& b) {
    return a.parola < b.parola;
  };
  std::stable_sort(voci.begin(), voci.end(), perParola);
}

// A row for each word; false when it was broken off.
bool InserisciParole(BaseDati& base, const std::vector<VoceDiLista>& voci,
                     const ProsegueOpera& prosegue, EsitoEnciclopedia& esito) {
  const auto quante = static_cast<double>(voci.size());
  Istruzione inserisci(base, "INSERT INTO Parole VALUES (?1, ?2, ?3)");
  for (Voce da = voci.begin(); da != voci.end();) {
    const double parte = static_cast<double>(da - voci.begin()) / quante;
    if (prosegue && !prosegue(QuotaOrdine + QuotaRighe * parte)) return false;
    const Voce a = std::find_if(
        da, voci.end(), [da](const VoceDiLista& voce) { return voce.parola != da->parola; });
    inserisci.Lega(1, std::string_view(da->parola));
    inserisci.Lega(2, Famiglia(da, a, false, esito.definizioni));
    inserisci.Lega(3, Famiglia(da, a, true, esito.definizioni));
    inserisci.Esegui();
    ++esito.parole;
    da = a;
  }
  return true;
}

// Fills an empty database; false when it was broken off. The rows go in sorted, so that neighbours
// lie side by side.
bool Componi(BaseDati& base, std::vector<VoceDiLista> voci, const ProsegueOpera& prosegue,
             EsitoEnciclopedia& esito) {
  OrdinaPerParola(voci);
  base.Esegui(
      "CREATE TABLE Parole (PAROLA TEXT NOT NULL, DEFINIZ_FACILE TEXT, DEFINIZ_DIFFIC TEXT);"
      "BEGIN");
  if (!InserisciParole(base, voci, prosegue, esito)) return false;
  base.Esegui("COMMIT; CREATE INDEX ParolePerParola ON Parole (PAROLA)");
  return true;
}

// What of a store that is gone would be played back over a new one.
void TogliRegistri(const Percorso& file) {
  for (const char* coda : {"-wal", "-shm", "-journal"}) {
    std::error_code ignorato;
    std::filesystem::remove(Percorso(file) += coda, ignorato);
  }
}

// Makes the file where there is none. False when another program has made one meanwhile: it stays,
// and so do its logs, since no other of our programs makes one while this one looks.
bool CreaFile(const Percorso& file, const BaseDati& nuova) {
  const BloccoCartella blocco(file.parent_path());
  if (!blocco.Preso()) throw ErroreEnciclopedia("un altro programma la sta creando");
  if (TrovaFile(file.parent_path(), file.filename())) return false;
  TogliRegistri(file);
  const std::error_code errore = ScriviFileNuovo(file, nuova.Immagine());
  if (!errore) return true;
  if (TrovaFile(file.parent_path(), file.filename())) return false;
  throw ErroreEnciclopedia(Unisci("impossibile scriverla: ", DescrizioneErrore(errore)));
}

// Puts new contents into the file that is there. Never another file in its place: whoever has the
// old one open would go on with it, and leave a log that is then played back over the new one.
// False when it was broken off.
bool SostituisciContenuto(const Percorso& file, const BaseDati& nuova,
                          const ProsegueOpera& prosegue) {
  BaseDati vecchia(file);
  vecchia.TieniPerSe();
  return vecchia.Ricevi(nuova, [&] { return !prosegue || prosegue(1); });
}

// Puts a complete database in its place; false when it was broken off.
using MettiAlSuoPosto = std::function<bool(const BaseDati& nuova)>;

EsitoEnciclopedia Fai(std::vector<VoceDiLista> voci, const ProsegueOpera& prosegue,
                      const MettiAlSuoPosto& metti) {
  EsitoEnciclopedia esito;
  try {
    BaseDati nuova;
    const bool fatta = Componi(nuova, std::move(voci), prosegue, esito) && metti(nuova);
    if (!fatta) return {.errore = {}, .interrotta = true};
  } catch (const ErroreEnciclopedia& errore) {
    return {.errore = errore.Descrizione()};
  }
  return esito;
}

}  // namespace

EsitoEnciclopedia ScriviEnciclopedia(std::vector<VoceDiLista> voci, const ProsegueOpera& prosegue) {
  return Fai(std::move(voci), prosegue, [&](const BaseDati& nuova) {
    const Percorso file = PercorsoNellaCartella(CartellaProgramma, NomeEnciclopedia);
    return CreaFile(file, nuova) || SostituisciContenuto(file, nuova, prosegue);
  });
}

EsitoEnciclopedia CreaEnciclopedia(const Percorso& cartella, std::vector<VoceDiLista> voci,
                                   const ProsegueOpera& prosegue) {
  return Fai(std::move(voci), prosegue, [&](const BaseDati& nuova) {
    CreaFile(cartella / NomeEnciclopedia, nuova);
    return true;
  });
}

}  // namespace telarium
