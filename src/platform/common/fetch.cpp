#include "platform/common/fetch.h"

#include <algorithm>
#include <curl/curl.h>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr long MaxRinvii = 5;
constexpr const char* Protocolli = "http,https";  // a page must not lead to local files
constexpr int PausaMassima = 50;                  // milliseconds between two looks at the user
constexpr std::string_view SchemaFile = "file://";

// The body of a page as it comes in.
struct Raccolta {
  std::string corpo;
  std::size_t massimo;
};

// Takes what arrives; anything but the number of bytes ends the transfer.
std::size_t Raccogli(const char* dati, std::size_t unita, std::size_t quante, void* dove) {
  auto& raccolta = *static_cast<Raccolta*>(dove);
  const std::size_t byte = unita * quante;
  if (byte > raccolta.massimo - raccolta.corpo.size()) return 0;
  raccolta.corpo.append(dati, byte);
  return byte;
}

using Presa = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;
using Insieme = std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)>;

// Users type blanks and accents, which no address has: "%" escapes stand for them behind the host,
// whose name the library knows how to write.
std::string ConEscape(std::string_view indirizzo) {
  constexpr std::string_view cifre = "0123456789ABCDEF";
  const std::size_t host = indirizzo.find("://") + 3;
  const std::size_t percorso = std::min(indirizzo.find_first_of("/?", host), indirizzo.size());
  std::string conEscape(indirizzo.substr(0, percorso));
  for (const char carattere : indirizzo.substr(percorso)) {
    const auto codice = static_cast<unsigned char>(carattere);
    if (codice > ' ' && codice < 0x7F) {
      conEscape += carattere;
    } else {
      conEscape += {'%', cifre[codice / 16], cifre[codice % 16]};
    }
  }
  return conEscape;
}

void Prepara(CURL* presa, const std::string& indirizzo, std::chrono::milliseconds tempo,
             Raccolta& raccolta) {
  curl_easy_setopt(presa, CURLOPT_URL, ConEscape(indirizzo).c_str());
  curl_easy_setopt(presa, CURLOPT_PROTOCOLS_STR, Protocolli);
  curl_easy_setopt(presa, CURLOPT_REDIR_PROTOCOLS_STR, Protocolli);
  curl_easy_setopt(presa, CURLOPT_FOLLOWLOCATION, 1L);
  curl_easy_setopt(presa, CURLOPT_MAXREDIRS, MaxRinvii);
  curl_easy_setopt(presa, CURLOPT_FAILONERROR, 1L);
  curl_easy_setopt(presa, CURLOPT_NOSIGNAL, 1L);
  // Without it a name server that does not answer holds up the end of what was broken off.
  curl_easy_setopt(presa, CURLOPT_QUICK_EXIT, 1L);
  curl_easy_setopt(presa, CURLOPT_TIMEOUT_MS, static_cast<long>(tempo.count()));
  curl_easy_setopt(presa, CURLOPT_WRITEFUNCTION, Raccogli);
  curl_easy_setopt(presa, CURLOPT_WRITEDATA, &raccolta);
}

// Runs the one transfer of the set to its end; none when it was broken off.
std::optional<CURLcode> Trasferisci(CURLM* insieme, const Raccolta& raccolta,
                                    const ProseguePrelievo& prosegue) {
  for (int inCorso = 1; inCorso > 0;) {
    if (curl_multi_perform(insieme, &inCorso) != CURLM_OK) return CURLE_FAILED_INIT;
    if (inCorso == 0) break;
    if (prosegue && !prosegue(raccolta.corpo.size())) return std::nullopt;
    if (curl_multi_poll(insieme, nullptr, 0, PausaMassima, nullptr) != CURLM_OK)
      return CURLE_FAILED_INIT;
  }
  int rimasti = 0;
  const CURLMsg* esito = curl_multi_info_read(insieme, &rimasti);
  return esito && esito->msg == CURLMSG_DONE ? esito->data.result : CURLE_FAILED_INIT;
}

// More than a page may hold, in a unit that is not 0.
std::string Misura(std::size_t byte) {
  constexpr std::size_t mega = 1u << 20;
  return byte < mega ? Unisci(byte, " byte") : Unisci(byte / mega, " MB");
}

std::string CausaDelSito(CURL* presa) {
  long codice = 0;
  curl_easy_getinfo(presa, CURLINFO_RESPONSE_CODE, &codice);
  if (codice == 404 || codice == 410) return "Il sito non ha questa pagina.";
  return Unisci("Il sito ha risposto con l'errore ", codice, '.');
}

std::string CausaDi(CURLcode errore, CURL* presa, const LimitiDiPrelievo& limiti) {
  struct Voce {
    CURLcode errore;
    std::string_view causa;
  };
  constexpr Voce voci[] = {
      {CURLE_URL_MALFORMAT, "L'indirizzo non è valido."_cp},
      {CURLE_COULDNT_RESOLVE_HOST,
       "Il nome del sito non esiste, oppure manca il collegamento a Internet."},
      {CURLE_COULDNT_CONNECT, "Il sito non accetta collegamenti."},
      {CURLE_OPERATION_TIMEDOUT, "La pagina non è arrivata in tempo."_cp},
      {CURLE_TOO_MANY_REDIRECTS, "Il sito rinvia troppe volte a un altro indirizzo."},
      {CURLE_UNSUPPORTED_PROTOCOL, "Il sito rinvia a un indirizzo che non è di una pagina."_cp},
      {CURLE_GOT_NOTHING, "Il sito non ha risposto nulla."},
      {CURLE_PARTIAL_FILE, "La pagina è arrivata solo in parte."_cp},
      {CURLE_RECV_ERROR, "Il collegamento con il sito è caduto."_cp},
      {CURLE_SEND_ERROR, "Il collegamento con il sito è caduto."_cp},
      {CURLE_SSL_CONNECT_ERROR, "Il sito non offre un collegamento sicuro."},
      {CURLE_PEER_FAILED_VERIFICATION, "Il sito non dimostra di essere quello che dice."},
  };
  if (errore == CURLE_HTTP_RETURNED_ERROR) return CausaDelSito(presa);
  if (errore == CURLE_WRITE_ERROR)
    return Unisci("La pagina è più grande di "_cp, Misura(limiti.byte), '.');
  for (const auto& [codice, causa] : voci) {
    if (errore == codice) return std::string(causa);
  }
  return Unisci("Errore di rete ", static_cast<int>(errore), '.');
}

Prelevato PrelevaPagina(const std::string& indirizzo, const LimitiDiPrelievo& limiti,
                        const ProseguePrelievo& prosegue) {
  static const CURLcode inizio = curl_global_init(CURL_GLOBAL_DEFAULT);
  const Presa presa(curl_easy_init(), curl_easy_cleanup);
  const Insieme insieme(curl_multi_init(), curl_multi_cleanup);
  std::optional<CURLcode> esito = CURLE_FAILED_INIT;
  Raccolta raccolta{.corpo = {}, .massimo = limiti.byte};
  if (inizio == CURLE_OK && presa && insieme) {
    Prepara(presa.get(), indirizzo, limiti.tempo, raccolta);
    if (curl_multi_add_handle(insieme.get(), presa.get()) == CURLM_OK)
      esito = Trasferisci(insieme.get(), raccolta, prosegue);
    curl_multi_remove_handle(insieme.get(), presa.get());
  }
  if (!esito) return {};
  if (*esito != CURLE_OK) return {.byte = {}, .causa = CausaDi(*esito, presa.get(), limiti)};
  return {.byte = std::move(raccolta.corpo)};
}

std::string SenzaEscape(const std::string& percorso) {
  int lunghezza = 0;
  const std::unique_ptr<char, decltype(&curl_free)> decodificato(
      curl_easy_unescape(nullptr, percorso.data(), static_cast<int>(percorso.size()), &lunghezza),
      curl_free);
  return decodificato ? std::string(decodificato.get(), static_cast<std::size_t>(lunghezza))
                      : std::string();
}

// Why a file brings nothing.
std::string CausaDi(const Percorso& file, EsitoLettura esito, std::size_t massimo) {
  const std::string nome = Unisci('"', TestoPercorso(file), '"');
  std::error_code ignorato;
  if (esito == EsitoLettura::TroppoGrande)
    return Unisci("Il file ", nome, " è più grande di "_cp, Misura(massimo), '.');
  if (esito == EsitoLettura::Illeggibile)
    return Unisci("Il file ", nome, " non si può leggere."_cp);
  if (std::filesystem::exists(file, ignorato))
    return Unisci("Il nome ", nome, " non è quello di un file."_cp);
  return Unisci("Il file ", nome, " non esiste.");
}

// The library takes no relative names and no blanks in a file address, which a user types.
Prelevato PrelevaFile(std::string percorso, std::size_t massimo) {
  constexpr std::string_view questaMacchina = "localhost/";
  if (percorso.starts_with(questaMacchina)) percorso.erase(0, questaMacchina.size() - 1);
  std::string causa = CausaDi(percorso, EsitoLettura::Assente, massimo);
  for (const std::string& nome : {percorso, SenzaEscape(percorso)}) {
    std::string contenuto;
    if (nome.find('\0') != std::string::npos || !FileOrdinario(nome)) continue;
    const EsitoLettura esito = LeggiFile(nome, massimo, contenuto);
    if (esito == EsitoLettura::Letto) return {.byte = std::move(contenuto)};
    causa = CausaDi(nome, esito, massimo);
  }
  return {.byte = {}, .causa = std::move(causa)};
}

// Whether an address begins with that scheme, in any case.
bool HaSchema(std::string_view indirizzo, std::string_view schema) {
  return indirizzo.size() >= schema.size() &&
         curl_strnequal(indirizzo.data(), schema.data(), schema.size());
}

}  // namespace

Prelevato PrelevaIndirizzo(const std::string& indirizzo, const LimitiDiPrelievo& limiti,
                           const ProseguePrelievo& prosegue) {
  const Prelevato nonValido{.byte = {}, .causa = std::string("L'indirizzo non è valido."_cp)};
  // An embedded zero byte would cut the address short for the library.
  if (indirizzo.find('\0') != std::string::npos) return nonValido;
  if (HaSchema(indirizzo, SchemaFile))
    return PrelevaFile(indirizzo.substr(SchemaFile.size()), limiti.byte);
  if (HaSchema(indirizzo, "http://") || HaSchema(indirizzo, "https://"))
    return PrelevaPagina(indirizzo, limiti, prosegue);
  return nonValido;
}

}  // namespace telarium
