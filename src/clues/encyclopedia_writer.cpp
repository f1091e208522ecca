#include "clues/encyclopedia_writer.h"

#include <algorithm>
#include <optional>

#include "clues/clue_family.h"
#include "clues/encyclopedia.h"
#include "clues/sqlite_database.h"
#include "model/state.h"
#include "platform/codepage.h"
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

// The database as a file has it. The rows go in sorted, so that neighbours lie side by side.
std::string ImmagineEnciclopedia(std::vector<VoceDiLista> voci, const ProsegueOpera& prosegue,
                                 EsitoEnciclopedia& esito) {
  OrdinaPerParola(voci);
  BaseDati base;
  base.Esegui(
      "CREATE TABLE Parole (PAROLA TEXT NOT NULL, DEFINIZ_FACILE TEXT, DEFINIZ_DIFFIC TEXT);"
      "BEGIN");
  esito.interrotta = !InserisciParole(base, voci, prosegue, esito);
  if (esito.interrotta) return {};
  base.Esegui("COMMIT; CREATE INDEX ParolePerParola ON Parole (PAROLA)");
  return base.Immagine();
}

constexpr const char* CodaRegistro = "-wal";

// Opened and closed, the old store takes its log in, so that nothing of it is lost if the new one
// fails. A log that is there behind that is another program's, which is writing.
void RaccogliRegistro(const Percorso& file) {
  try {
    ApriEnciclopedia();
  } catch (const ErroreEnciclopedia& errore) {
    if (errore.DiSpecie() == ErroreEnciclopedia::Specie::Occupata) throw;
    return;  // there is none, or none that could be kept
  }
  std::error_code ignorato;
  if (!std::filesystem::exists(Percorso(file) += CodaRegistro, ignorato)) return;
  throw ErroreEnciclopedia("il file è occupato da un altro programma"_cp,
                           ErroreEnciclopedia::Specie::Occupata);
}

// A log beside the old file would be played back over the new one.
void TogliRegistro(const Percorso& file) {
  for (const char* coda : {CodaRegistro, "-shm", "-journal"}) {
    std::error_code ignorato;
    std::filesystem::remove(Percorso(file) += coda, ignorato);
  }
}

// Puts the bytes of a complete database in their place.
using ScriviImmagine = std::function<std::error_code(const std::string& immagine)>;

EsitoEnciclopedia Componi(std::vector<VoceDiLista> voci, const ProsegueOpera& prosegue,
                          const ScriviImmagine& scrivi) {
  EsitoEnciclopedia esito;
  try {
    const std::string immagine = ImmagineEnciclopedia(std::move(voci), prosegue, esito);
    if (esito.interrotta) return {.errore = {}, .interrotta = true};
    if (const auto errore = scrivi(immagine))
      throw ErroreEnciclopedia(Unisci("impossibile scriverla: ", DescrizioneErrore(errore)));
  } catch (const ErroreEnciclopedia& errore) {
    return {.errore = errore.Descrizione()};
  }
  return esito;
}

}  // namespace

EsitoEnciclopedia ScriviEnciclopedia(std::vector<VoceDiLista> voci, const ProsegueOpera& prosegue) {
  return Componi(std::move(voci), prosegue, [](const std::string& immagine) {
    const Percorso nome = PercorsoNellaCartella(CartellaProgramma, NomeEnciclopedia);
    RaccogliRegistro(nome);
    TogliRegistro(nome);
    return ScriviFile(nome, immagine);
  });
}

EsitoEnciclopedia CreaEnciclopedia(const Percorso& cartella, std::vector<VoceDiLista> voci,
                                   const ProsegueOpera& prosegue) {
  if (!TrovaFile(cartella, NomeEnciclopedia)) TogliRegistro(cartella / NomeEnciclopedia);
  return Componi(std::move(voci), prosegue, [&](const std::string& immagine) {
    const std::error_code errore = ScriviFileNuovo(cartella / NomeEnciclopedia, immagine);
    const bool fattaDaAltri = errore && TrovaFile(cartella, NomeEnciclopedia);
    return fattaDaAltri ? std::error_code() : errore;
  });
}

}  // namespace telarium
