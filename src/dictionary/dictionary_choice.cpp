#include "dictionary/dictionary_choice.h"

#include "platform/text.h"

namespace telarium {
namespace {

// Adds a separator and the dictionaries of a group.
void AggiungiGruppo(const std::vector<Percorso>& file, std::string_view coda,
                    std::vector<VoceDiDizionario>& voci) {
  voci.push_back({"-", {}});
  for (const Percorso& nome : file)
    voci.push_back({Unisci(TestoPercorso(nome), coda), nome});
}

}  // namespace

std::vector<VoceDiDizionario> CaricaVociDizionari(const Percorso& cartella) {
  std::vector<VoceDiDizionario> voci;
  AggiungiGruppo(ElencaFile(cartella, "lessico*.dat"), " - (Diz. di sistema)", voci);
  const std::vector<Percorso> privati = ElencaFile(cartella, "*.priv");
  if (!privati.empty()) AggiungiGruppo(privati, " - (Diz. privato)", voci);
  return voci;
}

}  // namespace telarium
