#include "clues/encyclopedia_writer.h"

#include <algorithm>
#include <optional>

#include "clues/clue_family.h"
#include "clues/encyclopedia.h"
#include "clues/sqlite_database.h"
#include "model/state.h"
#include "platform/text.h"

namespace telarium {
namespace {

using Voce = VociDiEnciclopedia::const_iterator;

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

// The database as a file has it. The rows go in sorted, so that neighbours lie side by side.
std::string ImmagineEnciclopedia(const VociDiEnciclopedia& voci, EsitoEnciclopedia& esito) {
  BaseDati base;
  base.Esegui(
      "CREATE TABLE Parole (PAROLA TEXT NOT NULL, DEFINIZ_FACILE TEXT, DEFINIZ_DIFFIC TEXT);"
      "BEGIN");
  {
    Istruzione inserisci(base, "INSERT INTO Parole VALUES (?1, ?2, ?3)");
    for (Voce da = voci.begin(); da != voci.end();) {
      const Voce a = std::find_if(
          da, voci.end(), [da](const VoceDiLista& voce) { return voce.parola != da->parola; });
      inserisci.Lega(1, std::string_view(da->parola));
      inserisci.Lega(2, Famiglia(da, a, false, esito.definizioni));
      inserisci.Lega(3, Famiglia(da, a, true, esito.definizioni));
      inserisci.Esegui();
      ++esito.parole;
      da = a;
    }
  }
  base.Esegui("COMMIT; CREATE INDEX ParolePerParola ON Parole (PAROLA)");
  return base.Immagine();
}

// A log beside the old file would be played back over the new one.
void TogliRegistro(const Percorso& file) {
  for (const char* coda : {"-wal", "-shm", "-journal"}) {
    std::error_code ignorato;
    std::filesystem::remove(Percorso(file) += coda, ignorato);
  }
}

// Opened and closed, the old store takes its log in: nothing of it is lost if the new one fails.
void RaccogliRegistro() {
  try {
    ApriEnciclopedia();
  } catch (const ErroreEnciclopedia&) {
    // There is none, or none that could be kept.
  }
}

}  // namespace

EsitoLista AggiungiVoci(std::string_view utf8, VociDiEnciclopedia& voci) {
  EsitoLista esito;
  LettoreDiRighe righe(utf8);
  int numero = 0;
  for (std::string_view riga; righe.Prossima(riga);) {
    ++numero;
    if (SenzaSpazi(riga).empty()) continue;
    if (auto voce = InterpretaVoce(riga)) {
      voci.push_back(std::move(*voce));
    } else if (esito.tralasciate++ == 0) {
      esito.primaTralasciata = numero;
    }
  }
  return esito;
}

EsitoEnciclopedia ScriviEnciclopedia(VociDiEnciclopedia voci) {
  const auto perParola = [](const VoceDiLista& a, const VoceDiLista& b) {
    return a.parola < b.parola;
  };
  std::stable_sort(voci.begin(), voci.end(), perParola);
  EsitoEnciclopedia esito;
  const Percorso nome = PercorsoNellaCartella(CartellaProgramma, NomeEnciclopedia);
  RaccogliRegistro();
  const auto errore = ScriviFile(nome, ImmagineEnciclopedia(voci, esito));
  if (errore) {
    return {.errore = Unisci("Impossibile scrivere l'enciclopedia ", NomeEnciclopedia, ": ",
                             DescrizioneErrore(errore), '.')};
  }
  TogliRegistro(nome);
  return esito;
}

}  // namespace telarium
