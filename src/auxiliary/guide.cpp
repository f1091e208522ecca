#include "auxiliary/guide.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/temporary.h"
#include "platform/text.h"

namespace telarium {
namespace {

struct Capitolo {
  std::string_view finestra, ancora;
};

constexpr Capitolo capitoli[] = {
    {"FormNew", "nuovo"},
    {"FormModels", "nuovo"},
    {"Form2", "salvare"},
    {"TelarSav", "salvare"},
    {"Settaggi", "aspetto"},
    {"fONTEN", "aspetto"},
    {"TelarDef", "editor"},
    {"TelarBro", "tabella"},
    {"telariummdb", "enciclopedia"},
    {"frmParole", "enctabella"},
    {"Form4", "gestione"},
    {"Form6", "menuutilita"},
    {"Form3", "menuaiuto"},
    {"frmTip", "suggerimenti"},
    {"StoriaDelleModifiche", "cronologia"},
    {"LavoroNonSalvato", "recupero"},
};

// A path in an address: each byte that could be a mark there by its code.
std::string Codificato(std::string_view percorso) {
  constexpr std::string_view semplici =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789/-_.~";
  constexpr std::string_view cifre = "0123456789ABCDEF";
  std::string codificato;
  for (const char carattere : percorso) {
    const auto codice = static_cast<unsigned char>(carattere);
    if (semplici.find(carattere) != std::string_view::npos) {
      codificato += carattere;
    } else {
      codificato += {'%', cifre[codice / 16], cifre[codice % 16]};
    }
  }
  return codificato;
}

// What opens files for the system takes no anchor behind a name, so a page that leads there is
// opened. A browser reads it in its own time: it stays until this program ends.
bool ApriAlCapitolo(std::string_view capitolo) {
  static const CartellaTemporanea cartella;
  const auto pagina = TrovaFile(CartellaProgramma, GemelloAiuto);
  if (!pagina || cartella.Nome().empty()) return false;
  std::error_code ignorato;
  const std::string indirizzo = Unisci(
      "file://", Codificato(std::filesystem::absolute(*pagina, ignorato).string()), '#', capitolo);
  const Percorso rinvio = cartella.Nome() / Unisci(capitolo, ".html");
  const std::string testo = Unisci(
      "<!DOCTYPE html><meta charset=\"utf-8\"><title>Telarium</title>"
      "<meta http-equiv=\"refresh\" content=\"0; url=",
      indirizzo, "\"><a href=\"", indirizzo, "\">La guida di Telarium</a>\n");
  return !ScriviFile(rinvio, testo, Permanenza::Provvisoria) && Sistema().ApriFile(rinvio);
}

bool Apri(const char* nome) {
  return Sistema().ApriFile(PercorsoNellaCartella(CartellaProgramma, nome));
}

}  // namespace

std::string_view CapitoloDellaFinestra(std::string_view finestra) {
  const auto trovato =
      std::find_if(std::begin(capitoli), std::end(capitoli),
                   [finestra](const Capitolo& uno) { return uno.finestra == finestra; });
  return trovato == std::end(capitoli) ? std::string_view() : trovato->ancora;
}

void ApriGuida(std::string_view capitolo) {
  if (!capitolo.empty() && ApriAlCapitolo(capitolo)) return;
  if (Apri(FileAiuto) || Apri(GemelloAiuto)) return;
  Avvisa(Unisci("Non è possibile aprire il file della guida "_cp, FileAiuto,
                ": manca il file o un programma adatto."),
         {}, Icona::Avviso);
}

}  // namespace telarium
