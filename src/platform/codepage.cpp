#include "platform/codepage.h"

namespace telarium {
namespace {

void AggiungiUtf8(std::string& utf8, char16_t carattere) {
  if (carattere < 0x80) {
    utf8 += static_cast<char>(carattere);
  } else if (carattere < 0x800) {
    utf8 += static_cast<char>(0xC0 | carattere >> 6);
    utf8 += static_cast<char>(0x80 | (carattere & 0x3F));
  } else {
    utf8 += static_cast<char>(0xE0 | carattere >> 12);
    utf8 += static_cast<char>(0x80 | (carattere >> 6 & 0x3F));
    utf8 += static_cast<char>(0x80 | (carattere & 0x3F));
  }
}

constexpr std::array<char, 256> TabellaMaiuscole = [] {
  std::array<char, 256> tabella{};
  for (int i = 0; i < 256; ++i) {
    const bool minuscola = (i >= 'a' && i <= 'z') || (i >= 0xE0 && i <= 0xFE && i != 0xF7);
    tabella[i] = static_cast<char>(minuscola ? i - 0x20 : i);
  }
  // The three pairs with a caron or ligature lie 16 apart; the capital of 0xFF is not beside it.
  for (const int i : {0x9A, 0x9C, 0x9E})
    tabella[i] = static_cast<char>(i - 0x10);
  tabella[0xFF] = static_cast<char>(0x9F);
  return tabella;
}();

}  // namespace

std::string DaUtf8(std::string_view utf8) {
  std::string testo;
  testo.reserve(utf8.size());
  while (!utf8.empty()) {
    const auto carattere = EstraiCarattereUtf8(utf8);
    testo += carattere ? ByteDi(*carattere).value_or('?') : '?';
  }
  return testo;
}

std::optional<std::string> DaUtf8Esatto(std::string_view utf8) {
  std::string testo;
  testo.reserve(utf8.size());
  while (!utf8.empty()) {
    const auto carattere = EstraiCarattereUtf8(utf8);
    const auto byte = carattere ? ByteDi(*carattere) : std::nullopt;
    if (!byte) return std::nullopt;
    testo += *byte;
  }
  return testo;
}

std::string_view SenzaSegnoUtf8(std::string_view utf8) {
  constexpr std::string_view segno = "\xEF\xBB\xBF";
  return utf8.starts_with(segno) ? utf8.substr(segno.size()) : utf8;
}

std::string NellaCodePage(std::string testo) {
  const std::string_view senzaSegno = SenzaSegnoUtf8(testo);
  if (senzaSegno.size() < testo.size()) return DaUtf8(senzaSegno);
  if (auto convertito = DaUtf8Esatto(testo)) return std::move(*convertito);
  return testo;
}

std::string AUtf8(std::string_view testo) {
  std::string utf8;
  utf8.reserve(testo.size() + testo.size() / 8);
  for (const char c : testo)
    AggiungiUtf8(utf8, TabellaCodePage[static_cast<unsigned char>(c)]);
  return utf8;
}

char Maiuscola(char carattere) {
  return TabellaMaiuscole[static_cast<unsigned char>(carattere)];
}

std::string Maiuscole(std::string_view testo) {
  std::string capitali(testo);
  for (char& c : capitali)
    c = Maiuscola(c);
  return capitali;
}

}  // namespace telarium
