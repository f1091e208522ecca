#include "output/web_opening.h"

#include <algorithm>
#include <array>

#include "auxiliary/addresses.h"
#include "editor/commands.h"
#include "editor/commit.h"
#include "editor/file_commands.h"
#include "editor/main_window.h"
#include "model/crossword_file.h"
#include "output/interactive_page.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {

std::string IndirizzoWeb;

namespace {

const AzzeramentoDiSottosistema azzeramento([] { IndirizzoWeb.clear(); });

constexpr LimitiDiPrelievo Limiti{.tempo = std::chrono::seconds(60), .byte = 64u << 20};
constexpr std::string_view SchemaFile = "file://";
constexpr std::array<std::string_view, 3> Schemi = {"http://", "https://", SchemaFile};

bool HaSchema(const std::string& indirizzo) {
  return std::any_of(Schemi.begin(), Schemi.end(),
                     [&](std::string_view schema) { return indirizzo.starts_with(schema); });
}

// The wait ends with the fetch, before any message.
Prelevato PrelevaPagina(const std::string& indirizzo) {
  const auto attesa = ChiUsa().IniziaAttesa("Prelievo della pagina in corso ...");
  const auto prosegue = [&](std::size_t byte) { return attesa->Prosegue(byte); };
  Prelevato pagina = Sistema().Preleva(indirizzo, Limiti, prosegue);
  const bool fallita = !pagina.byte && !pagina.causa.empty();
  if (fallita && !HaSchema(indirizzo))
    pagina = Sistema().Preleva(Unisci(SchemaFile, indirizzo), Limiti, prosegue);
  return pagina;
}

std::string ChiediIndirizzo() {
  if (IndirizzoWeb.empty()) IndirizzoWeb = ConSchema(ValoreIndirizzo(Indirizzo::PaginaEsempio));
  const auto risposta = ChiUsa().ChiediTesto(
      {.richiesta = std::string(
           "Apri file da Internet, è possibile recuperare un file salvato su internet o sul file "
           "system di windows in formato HTML (Telarium 7 o superiore), nel caso di file su "
           "Internet ricordarsi di usare il suffisso http:// nel caso di file system windows usare "
           "il suffisso file:// "_cp),
       .predefinito = IndirizzoWeb,
       .titolo = "Apertura file HTML/Internet"});
  return std::string(SenzaSpazi(risposta.value_or("")));
}

}  // namespace

std::optional<std::string_view> BloccoDiSalvataggio(std::string_view pagina) {
  if (pagina.size() <= InizioDelBlocco.size()) return std::nullopt;
  const std::size_t inizio =
      pagina.rfind(InizioDelBlocco, pagina.size() - InizioDelBlocco.size() - 1);
  if (inizio == std::string_view::npos) return std::nullopt;
  return pagina.substr(inizio + InizioDelBlocco.size());
}

std::optional<std::string> PrelevaBlocco(const std::string& indirizzo) {
  const auto [pagina, causa] = PrelevaPagina(indirizzo);
  if (!pagina && causa.empty()) return std::nullopt;  // the user knows
  if (!pagina) Avvisa(Unisci("Errore apertura file HTML. ", causa));
  const auto blocco = BloccoDiSalvataggio(pagina ? *pagina : std::string_view());
  if (!blocco) {
    Avvisa(
        "File HTML su Internet non trovato/non valido (Solo versione Telarium 7 o superiore) "
        "oppure connessione a Internet non attiva.");
    return std::nullopt;
  }
  // A crossword is no longer than its file may be; the rest is tail.
  return std::string(blocco->substr(0, MaxByteCruciverba));
}

void ApriDaIndirizzo() {
  const std::string indirizzo = ChiediIndirizzo();
  if (indirizzo.empty()) return;
  const auto blocco = PrelevaBlocco(AUtf8(indirizzo));
  if (!blocco) return;
  if (SchemaModificato && !ChiediSalvataggio()) return;
  if (!ApriTestoDiCruciverba(*blocco)) return;
  static_cast<void>(ScriviIstantanea());  // a failure has shown its message
  LaFinestra().MostraPicture1(false);
  LaFinestra().NascondiShape1();  // it lies over a word of the other grid
  RiprendiSchema();
  ChiudiAnteprima();
}

}  // namespace telarium
