#include "crossworddialogs/model_file.h"

#include <algorithm>
#include <utility>

#include "model/words.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

// Thousands of models of the largest size fit into this.
constexpr std::size_t MaxByteModelli = 4u << 20;

}  // namespace

bool CaricaModelli(const Percorso& nome, std::vector<Modello>& modelli) {
  std::string contenuto;
  std::error_code errore;
  switch (LeggiFile(nome, MaxByteModelli, contenuto, errore)) {
    case EsitoLettura::Letto:
      modelli = InterpretaModelli(contenuto);
      return true;
    case EsitoLettura::Assente:
      Avvisa(ConCausa("Errore: Non trovato file di definizione modelli standard!", nome, errore));
      return false;
    default:
      Avvisa(ConCausa("Impossibile leggere il file modelli.", nome, errore));
      return false;
  }
}

std::vector<Modello> InterpretaModelli(std::string_view contenuto) {
  std::vector<Modello> modelli;
  Modello righe;
  LettoreDiRighe lettore(contenuto);
  std::string_view riga;
  while (lettore.Prossima(riga)) {
    if (riga.size() > 1) righe.emplace_back(riga);
    if (riga.size() == 1) modelli.push_back(std::exchange(righe, {}));
  }
  return modelli;
}

bool ModelloValido(const Modello& modello) {
  return std::all_of(modello.begin(), modello.end(), [&](const std::string& riga) {
    return riga.size() == modello.front().size() &&
           std::all_of(riga.begin(), riga.end(), CarattereSemplice);
  });
}

void EsigiModelloValido(const Modello& modello) {
  if (ModelloValido(modello)) return;
  Avvisa("Tipo di file modelli non valido!");
  TerminaProgramma();
}

}  // namespace telarium
