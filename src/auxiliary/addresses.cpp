#include "auxiliary/addresses.h"

#include <algorithm>
#include <array>
#include <utility>

#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr const char* NomeFile = "indirizzi.txt";
constexpr std::size_t MaxByteIndirizzi = 1u << 20;

struct Voce {
  std::string_view nome;
  std::string_view iniziale;
};

// In the order of Indirizzo.
constexpr std::array<Voce, 17> voci = {{
    {"SitoProdotto", "www.telarium.example"},
    {"PaginaProdotto", "www.telarium.example/telarium/"},
    {"PaginaDizionario", "www.telarium.example/telarium/dizionario.html"},
    {"PaginaAmici", "social.telarium.example/telarium"},
    {"MailAutore", "autore@telarium.example"},
    {"MailSchemi", "schemi@telarium.example"},
    {"PaginaEsempio", "www.telarium.example/telarium/esempio.html"},
    {"ServerAggiornamenti", ""},
    {"Menui0", "dizionario-1.example"},
    {"MenuI1", "dizionario-2.example"},
    {"Menui2", "dizionario-3.example"},
    {"Menui3", "enciclopedia-1.example"},
    {"Menui4", "enciclopedia-2.example"},
    {"TitoloMenui2", "Terzo dizionario online"},
    {"TitoloMenui4", "Seconda enciclopedia online"},
    {"PaginaAccessoDati", "accesso-dati.example"},
    {"ScaricoAccessoDati", "accesso-dati.example/scarico.html"},
}};

using Valori = std::array<std::string, voci.size()>;

Valori ValoriIniziali() {
  Valori iniziali;
  std::transform(voci.begin(), voci.end(), iniziali.begin(),
                 [](const Voce& voce) { return std::string(voce.iniziale); });
  return iniziali;
}

Valori valori = ValoriIniziali();

const AzzeramentoDiSottosistema azzeramento([] { valori = ValoriIniziali(); });

std::string_view SenzaBianchi(std::string_view testo) {
  constexpr std::string_view bianchi = " \t";
  const std::size_t inizio = testo.find_first_not_of(bianchi);
  if (inizio == std::string_view::npos) return {};
  return testo.substr(inizio, testo.find_last_not_of(bianchi) - inizio + 1);
}

void InterpretaRiga(std::string_view riga) {
  const std::size_t uguale = riga.find('=');
  if (uguale == std::string_view::npos) return;
  const auto voce = std::find_if(
      voci.begin(), voci.end(),
      [nome = SenzaBianchi(riga.substr(0, uguale))](const Voce& una) { return una.nome == nome; });
  if (voce == voci.end()) return;
  valori[static_cast<std::size_t>(voce - voci.begin())] = SenzaBianchi(riga.substr(uguale + 1));
}

}  // namespace

void LeggiIndirizzi() {
  valori = ValoriIniziali();
  const Percorso file = PercorsoNellaCartella(CartellaProgramma, NomeFile);
  std::string testo;
  std::error_code errore;
  const EsitoLettura esito = LeggiFile(file, MaxByteIndirizzi, testo, errore);
  if (esito != EsitoLettura::Letto && esito != EsitoLettura::Assente) {
    Avvisa(ConCausa("Il file degli indirizzi non si può leggere: valgono quelli iniziali."_cp, file,
                    errore),
           {}, Icona::Avviso);
  }
  LettoreDiRighe righe(testo);
  for (std::string_view riga; righe.Prossima(riga);)
    InterpretaRiga(riga);
}

const std::string& ValoreIndirizzo(Indirizzo quale) {
  return valori.at(static_cast<std::size_t>(quale));
}

std::string ConSchema(std::string_view indirizzo) {
  const bool nudo = !indirizzo.empty() && indirizzo.find("://") == std::string_view::npos;
  return Unisci(nudo ? "https://" : "", indirizzo);
}

}  // namespace telarium
