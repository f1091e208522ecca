#include "platform/common/fetch.h"

#include <curl/curl.h>
#include <memory>

namespace telarium {
namespace {

constexpr std::size_t MaxByte = 16u << 20;
constexpr long MaxRinvii = 5;
constexpr const char* Protocolli = "http,https,file";
constexpr const char* ProtocolliDiRinvio = "http,https";  // a page must not lead to local files

// Takes what arrives; anything but the number of bytes ends the transfer.
std::size_t Raccogli(const char* dati, std::size_t unita, std::size_t quante, void* dove) {
  auto& corpo = *static_cast<std::string*>(dove);
  const std::size_t byte = unita * quante;
  if (corpo.size() + byte > MaxByte) return 0;
  corpo.append(dati, byte);
  return byte;
}

}  // namespace

std::optional<std::string> PrelevaIndirizzo(const std::string& indirizzo,
                                            std::chrono::milliseconds limite) {
  static const CURLcode inizio = curl_global_init(CURL_GLOBAL_DEFAULT);
  const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> presa(curl_easy_init(),
                                                                  curl_easy_cleanup);
  if (inizio != CURLE_OK || !presa) return std::nullopt;
  std::string corpo;
  CURL* const curl = presa.get();
  curl_easy_setopt(curl, CURLOPT_URL, indirizzo.c_str());
  curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, Protocolli);
  curl_easy_setopt(curl, CURLOPT_REDIR_PROTOCOLS_STR, ProtocolliDiRinvio);
  curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 1L);
  curl_easy_setopt(curl, CURLOPT_MAXREDIRS, MaxRinvii);
  curl_easy_setopt(curl, CURLOPT_FAILONERROR, 1L);
  curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, static_cast<long>(limite.count()));
  curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, Raccogli);
  curl_easy_setopt(curl, CURLOPT_WRITEDATA, &corpo);
  if (curl_easy_perform(curl) != CURLE_OK) return std::nullopt;
  return corpo;
}

}  // namespace telarium
