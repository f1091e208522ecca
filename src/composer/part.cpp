#include "composer/part.h"

#include <utility>

namespace telarium {
namespace {

// The cells of some slots, each once, in the order in which they are met.
std::vector<int> CaselleDi(const Problema& problema, const std::vector<int>& slot) {
  std::vector<int> caselle;
  std::vector<bool> vista(problema.lettere.size());
  for (const int uno : slot) {
    for (const int casella : problema.slot[static_cast<std::size_t>(uno)].caselle) {
      if (vista[static_cast<std::size_t>(casella)]) continue;
      vista[static_cast<std::size_t>(casella)] = true;
      caselle.push_back(casella);
    }
  }
  return caselle;
}

}  // namespace

Problema ParteDi(const Problema& problema, const std::vector<int>& slot,
                 std::vector<std::string> volute) {
  Problema parte;
  parte.vocabolario = problema.vocabolario;
  parte.altrove = problema.altrove;
  parte.volute = std::move(volute);
  parte.esenti = problema.esenti;
  parte.esenti.insert(parte.esenti.end(), problema.volute.begin(), problema.volute.end());
  parte.alMassimo = problema.alMassimo;
  parte.soloDefinite = problema.soloDefinite;
  parte.ammetteForme = problema.ammetteForme;
  std::vector<int> numeri(problema.lettere.size());
  for (const int casella : CaselleDi(problema, slot)) {
    numeri[static_cast<std::size_t>(casella)] = parte.Caselle();
    parte.lettere.push_back(problema.lettere[static_cast<std::size_t>(casella)]);
    if (!problema.lasciate.empty()) parte.lasciate.push_back(problema.Lasciata(casella));
  }
  for (const int uno : slot) {
    parte.slot.push_back(problema.slot[static_cast<std::size_t>(uno)]);
    for (int& casella : parte.slot.back().caselle)
      casella = numeri[static_cast<std::size_t>(casella)];
  }
  return parte;
}

std::string NelTutto(const Problema& problema, const std::vector<int>& slot,
                     const std::string& lettereDellaParte) {
  std::string lettere(problema.lettere.size(), SenzaLettera);
  std::size_t k = 0;
  for (const int casella : CaselleDi(problema, slot))
    lettere[static_cast<std::size_t>(casella)] = lettereDellaParte[k++];
  return lettere;
}

std::string NellaParte(const Problema& problema, const std::vector<int>& slot,
                       const std::string& lettere) {
  std::string dellaParte;
  for (const int casella : CaselleDi(problema, slot))
    dellaParte += lettere[static_cast<std::size_t>(casella)];
  return dellaParte;
}

}  // namespace telarium
