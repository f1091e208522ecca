#include "dictionary/dictionary_choice.h"

#include "dictionary/dictionary.h"
#include "model/state.h"
#include "platform/text.h"

namespace telarium {

std::int16_t NumVociDizionari = 0;

namespace {

const AzzeramentoDiSottosistema azzeramento([] { NumVociDizionari = 0; });

// Adds a separator and the dictionaries of a group.
void AggiungiGruppo(const std::vector<Percorso>& file, std::string_view coda,
                    std::vector<VoceDiDizionario>& voci) {
  voci.push_back({"-", {}});
  for (const Percorso& nome : file)
    voci.push_back({Unisci(TestoPercorso(nome), coda), nome});
}

}  // namespace

std::vector<VoceDiDizionario> CaricaVociDizionari() {
  std::vector<VoceDiDizionario> voci;
  AggiungiGruppo(ElencaFile(CartellaProgramma, "lessico*.dat"), " - (Diz. di sistema)", voci);
  const std::vector<Percorso> privati = ElencaFile(CartellaProgramma, "*.priv");
  if (!privati.empty()) AggiungiGruppo(privati, " - (Diz. privato)", voci);
  NumVociDizionari = static_cast<std::int16_t>(voci.size());
  return voci;
}

void ConDizionario(const Percorso& nome, const std::function<void()>& operazione) {
  // The name comes back whatever happens.
  struct Nome {
    Percorso prima = NomeDizionario;
    ~Nome() { NomeDizionario = prima; }
  };
  {
    const Nome conservato;
    NomeDizionario = nome;
    if (ApriDizionario()) operazione();
  }
  ApriDizionario();
}

}  // namespace telarium
