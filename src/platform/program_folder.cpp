#include "platform/program_folder.h"

#include <cstdlib>
#include <limits>

#include "platform/platform.h"
#include "platform/text.h"
#include "platform/user_folders.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

std::error_code CopiaFile(const Percorso& da, const Percorso& a) {
  std::string contenuto;
  if (LeggiFile(da, std::numeric_limits<std::int32_t>::max(), contenuto) != EsitoLettura::Letto)
    return std::make_error_code(std::errc::io_error);
  const std::error_code errore = ScriviFileNuovo(a, contenuto, Permanenza::Provvisoria);
  // Another start of the program was faster.
  return errore == std::errc::file_exists && FileOrdinario(a) ? std::error_code() : errore;
}

void CopiaMancanti(const Percorso& da, const Percorso& a, const Percorso& relativo,
                   std::vector<CopiaFallita>& falliti) {
  const Percorso chiamata = relativo.empty() ? da : relativo;
  std::error_code errore;
  fs::create_directories(a, errore);
  if (errore) return falliti.push_back({chiamata, errore});
  for (fs::directory_iterator voce(da, errore), fine; !errore && voce != fine;
       voce.increment(errore)) {
    std::error_code ignorato;
    const Percorso nome = voce->path().filename();
    if (FileNascosto(nome)) continue;
    if (voce->is_directory(ignorato)) {
      if (relativo.empty() && RestaInstallata(nome)) continue;
      CopiaMancanti(voce->path(), PercorsoDellaCartella(a, nome), relativo / nome, falliti);
    } else if (!TrovaFile(a, nome)) {
      if (const auto fallito = CopiaFile(voce->path(), a / nome))
        falliti.push_back({relativo / nome, fallito});
    }
  }
  if (errore) falliti.push_back({chiamata, errore});
}

// One line for all of them: they have the same cause as a rule.
void DiciFalliti(const std::vector<CopiaFallita>& falliti, const Percorso& cartella,
                 std::string_view opera, std::string_view mancato) {
  if (falliti.empty()) return;
  std::string testo =
      Unisci("Impossibile ", opera, " la cartella programma ", TestoPercorso(cartella), ": ",
             DescrizioneErrore(falliti.front().errore), ". ", mancato, ": ");
  for (const CopiaFallita& fallito : falliti)
    testo += (&fallito == &falliti.front() ? "" : ", ") + TestoPercorso(fallito.nome);
  Avvisa(testo, {}, Icona::Avviso);
}

}  // namespace

Percorso CartellaEseguibile() {
  std::error_code errore;
  return fs::read_symlink("/proc/self/exe", errore).parent_path();
}

Percorso CartellaDatiInstallati() {
  return (CartellaEseguibile() / "../share/telarium").lexically_normal();
}

Percorso CartellaLessici() {
  return CartellaDatiInstallati() / CartellaLessiciInstallati;
}

SceltaCartella ScegliCartellaProgramma() {
  std::error_code errore;
  const char* const nominata = std::getenv("TELARIUM_CARTELLA");
  if (nominata && *nominata) return {fs::absolute(nominata, errore), false};
  const Percorso accanto = CartellaEseguibile();
  if (!accanto.empty() && TrovaFile(accanto, "telarium.INI")) return {accanto, false};
  const Percorso utente = CartellaDatiUtente();
  return {utente, !utente.empty()};
}

std::vector<CopiaFallita> RiempiCartella(const Percorso& installati, const Percorso& cartella) {
  std::vector<CopiaFallita> falliti;
  CopiaMancanti(installati, cartella, {}, falliti);
  return falliti;
}

SceltaCartella PreparaCartellaProgramma() {
  const SceltaCartella scelta = ScegliCartellaProgramma();
  if (scelta.cartella.empty()) {
    Avvisa("Impossibile stabilire la cartella programma: manca la cartella dell'utente (HOME).");
  } else if (scelta.daRiempire) {
    DiciFalliti(RiempiCartella(CartellaDatiInstallati(), scelta.cartella), scelta.cartella,
                "preparare", "Non copiati");
  }
  return scelta;
}

void AggiornaCartellaProgramma(const Percorso& cartella, FileModificati modificati) {
  DiciFalliti(AggiornaCartella(CartellaDatiInstallati(), cartella, modificati), cartella,
              "aggiornare", "Non sostituiti");
}

}  // namespace telarium
