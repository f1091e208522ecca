#include "platform/common/fetch.h"

#include <algorithm>
#include <curl/curl.h>
#include <memory>
#include <string_view>

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

// Runs the one transfer of the set to its end; false when it failed or was broken off.
bool Trasferisci(CURLM* insieme, const Raccolta& raccolta, const ProseguePrelievo& prosegue) {
  for (int inCorso = 1; inCorso > 0;) {
    if (curl_multi_perform(insieme, &inCorso) != CURLM_OK) return false;
    if (inCorso == 0) break;
    if (prosegue && !prosegue(raccolta.corpo.size())) return false;
    if (curl_multi_poll(insieme, nullptr, 0, PausaMassima, nullptr) != CURLM_OK) return false;
  }
  int rimasti = 0;
  const CURLMsg* esito = curl_multi_info_read(insieme, &rimasti);
  return esito && esito->msg == CURLMSG_DONE && esito->data.result == CURLE_OK;
}

std::optional<std::string> PrelevaPagina(const std::string& indirizzo,
                                         const LimitiDiPrelievo& limiti,
                                         const ProseguePrelievo& prosegue) {
  static const CURLcode inizio = curl_global_init(CURL_GLOBAL_DEFAULT);
  const Presa presa(curl_easy_init(), curl_easy_cleanup);
  const Insieme insieme(curl_multi_init(), curl_multi_cleanup);
  if (inizio != CURLE_OK || !presa || !insieme) return std::nullopt;
  Raccolta raccolta{.corpo = {}, .massimo = limiti.byte};
  Prepara(presa.get(), indirizzo, limiti.tempo, raccolta);
  if (curl_multi_add_handle(insieme.get(), presa.get()) != CURLM_OK) return std::nullopt;
  const bool intera = Trasferisci(insieme.get(), raccolta, prosegue);
  curl_multi_remove_handle(insieme.get(), presa.get());
  return intera ? std::optional(std::move(raccolta.corpo)) : std::nullopt;
}

std::string SenzaEscape(const std::string& percorso) {
  int lunghezza = 0;
  const std::unique_ptr<char, decltype(&curl_free)> decodificato(
      curl_easy_unescape(nullptr, percorso.data(), static_cast<int>(percorso.size()), &lunghezza),
      curl_free);
  return decodificato ? std::string(decodificato.get(), static_cast<std::size_t>(lunghezza))
                      : std::string();
}

// The library takes no relative names and no blanks in a file address, which a user types.
std::optional<std::string> PrelevaFile(std::string percorso, std::size_t massimo) {
  constexpr std::string_view questaMacchina = "localhost/";
  if (percorso.starts_with(questaMacchina)) percorso.erase(0, questaMacchina.size() - 1);
  for (const std::string& nome : {percorso, SenzaEscape(percorso)}) {
    std::string contenuto;
    if (nome.find('\0') != std::string::npos || !FileOrdinario(nome)) continue;
    if (LeggiFile(nome, massimo, contenuto) == EsitoLettura::Letto) return contenuto;
  }
  return std::nullopt;
}

// Whether an address begins with that scheme, in any case.
bool HaSchema(std::string_view indirizzo, std::string_view schema) {
  return indirizzo.size() >= schema.size() &&
         curl_strnequal(indirizzo.data(), schema.data(), schema.size());
}

}  // namespace

std::optional<std::string> PrelevaIndirizzo(const std::string& indirizzo,
                                            const LimitiDiPrelievo& limiti,
                                            const ProseguePrelievo& prosegue) {
  // An embedded zero byte would cut the address short for the library.
  if (indirizzo.find('\0') != std::string::npos) return std::nullopt;
  if (HaSchema(indirizzo, SchemaFile))
    return PrelevaFile(indirizzo.substr(SchemaFile.size()), limiti.byte);
  if (HaSchema(indirizzo, "http://") || HaSchema(indirizzo, "https://"))
    return PrelevaPagina(indirizzo, limiti, prosegue);
  return std::nullopt;
}

}  // namespace telarium
