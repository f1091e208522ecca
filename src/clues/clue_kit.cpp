#include "clues/clue_kit.h"

#include <algorithm>

#include "clues/clue_list.h"
#include "platform/program_folder.h"

namespace telarium {
namespace {

constexpr const char* NomeListaDelCorredo = "15-sigle.tsv";  // see data/CMakeLists.txt
constexpr std::size_t MaxByteCorredo = 1 << 20;

bool Compresa(std::size_t famiglia, QualiDefinizioni quali) {
  return quali == QualiDefinizioni::Tutte ||
         quali == (famiglia == 0 ? QualiDefinizioni::Facili : QualiDefinizioni::Difficili);
}

}  // namespace

Percorso ListaDelCorredo() {
  return CartellaDatiInstallati() / CartellaListeInstallate / NomeListaDelCorredo;
}

DefinizioniDelCorredo::DefinizioniDelCorredo(const Percorso& lista) {
  std::string contenuto;
  if (LeggiFile(lista, MaxByteCorredo, contenuto) != EsitoLettura::Letto) return;
  std::vector<VoceDiLista> voci;
  AggiungiVoci(contenuto, voci);
  for (VoceDiLista& voce : voci) {
    std::vector<std::string>& famiglia = parole_[voce.parola][voce.difficile ? 1 : 0];
    if (std::find(famiglia.begin(), famiglia.end(), voce.definizione) == famiglia.end())
      famiglia.push_back(std::move(voce.definizione));
  }
}

std::vector<std::string_view> DefinizioniDelCorredo::Di(std::string_view parola,
                                                        QualiDefinizioni quali) const {
  std::vector<std::string_view> definizioni;
  const auto trovata = parole_.find(parola);
  if (trovata == parole_.end()) return definizioni;
  for (std::size_t f = 0; f < trovata->second.size(); ++f) {
    const std::vector<std::string>& famiglia = trovata->second[f];
    if (Compresa(f, quali)) definizioni.insert(definizioni.end(), famiglia.begin(), famiglia.end());
  }
  return definizioni;
}

void DefinizioniDelCorredo::PerOgniParola(
    const std::function<void(const std::string& parola)>& visita) const {
  for (const auto& [parola, famiglie] : parole_)
    visita(parola);
}

}  // namespace telarium
