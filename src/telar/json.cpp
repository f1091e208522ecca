#include "telar/json.h"

#include <cstdio>

#include "platform/codepage.h"

namespace telarium::telar {
namespace {

std::string TraVirgolette(std::string_view testo) {
  std::string json = "\"";
  for (const char carattere : testo) {
    const auto codice = static_cast<unsigned char>(carattere);
    if (carattere == '"' || carattere == '\\') {
      json += '\\';
      json += carattere;
    } else if (codice < 0x20) {
      char sequenza[7];
      std::snprintf(sequenza, sizeof sequenza, "\\u%04x", codice);
      json += sequenza;
    } else {
      json += AUtf8({&carattere, 1});
    }
  }
  return json + '"';
}

}  // namespace

void Json::Separa() {
  if (daSeparare_) testo_ += ',';
  daSeparare_ = true;
}

void Json::Apri(char parentesi) {
  Separa();
  testo_ += parentesi;
  aperte_.push_back(parentesi);
  daSeparare_ = false;
}

void Json::Chiudi() {
  testo_ += aperte_.back() == '{' ? '}' : ']';
  aperte_.pop_back();
  daSeparare_ = true;
}

void Json::Nome(std::string_view nome) {
  Separa();
  testo_ += TraVirgolette(nome) + ':';
  daSeparare_ = false;
}

void Json::Testo(std::string_view testo) {
  Crudo(TraVirgolette(testo));
}

void Json::Numero(int numero) {
  Crudo(std::to_string(numero));
}

void Json::Crudo(std::string_view valore) {
  Separa();
  testo_ += valore;
}

}  // namespace telarium::telar
