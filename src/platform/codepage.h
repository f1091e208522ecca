#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The text of the core: one byte per character in Windows-1252, as in the files. These are the only
// conversions between it and UTF-8.
namespace telarium {

/// Unicode value of each byte. The five bytes without a character stand for the control code of the
/// same number, so that every byte survives the way to UTF-8 and back.
inline constexpr std::array<char16_t, 256> TabellaCodePage = [] {
  std::array<char16_t, 256> tabella{};
  for (int i = 0; i < 256; ++i)
    tabella[i] = static_cast<char16_t>(i);
  // clang-format off
  constexpr char16_t da80a9F[32] = {
      0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
      0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
  // clang-format on
  for (int i = 0; i < 32; ++i)
    tabella[0x80 + i] = da80a9F[i];
  return tabella;
}();

/// The byte of a Unicode character; none when the code page has no such character.
constexpr std::optional<char> ByteDi(char32_t carattere) {
  if (carattere < 0x80) return static_cast<char>(carattere);
  for (int i = 0x80; i < 256; ++i) {
    if (TabellaCodePage[i] == carattere) return static_cast<char>(i);
  }
  return std::nullopt;
}

/// Takes the first character off a UTF-8 text that is not empty. A malformed sequence gives none
/// and takes one byte off, so that a reader always gets on.
constexpr std::optional<char32_t> EstraiCarattereUtf8(std::string_view& utf8) {
  // How a sequence of each length begins, and the least value that needs that length.
  struct Forma {
    unsigned char maschera, inizio;
    char32_t minimo;
  };
  constexpr Forma forme[] = {
      {0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};

  const auto byte = [testo = utf8](std::size_t i) { return static_cast<unsigned char>(testo[i]); };
  const std::size_t disponibili = utf8.size();
  const unsigned char primo = byte(0);
  utf8.remove_prefix(1);
  std::size_t seguenti = 0;
  while (seguenti < 4 && (primo & forme[seguenti].maschera) != forme[seguenti].inizio)
    ++seguenti;
  if (seguenti == 4 || seguenti >= disponibili) return std::nullopt;

  const Forma& forma = forme[seguenti];
  char32_t carattere = primo & static_cast<unsigned char>(~forma.maschera);
  for (std::size_t i = 1; i <= seguenti; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return std::nullopt;
    carattere = (carattere << 6) | (byte(i) & 0x3F);
  }
  const bool surrogato = carattere >= 0xD800 && carattere <= 0xDFFF;
  if (carattere < forma.minimo || carattere > 0x10FFFF || surrogato) return std::nullopt;
  utf8.remove_prefix(seguenti);
  return carattere;
}

/// A UTF-8 text in the code page; "?" stands for what the code page cannot write.
std::string DaUtf8(std::string_view utf8);

/// As DaUtf8, but none when a character has no place in the code page or the text is no UTF-8.
std::optional<std::string> DaUtf8Esatto(std::string_view utf8);

/// A UTF-8 text without the mark that some editors begin a file with.
std::string_view SenzaSegnoUtf8(std::string_view utf8);

/// What a user's file holds, in the code page. One that somebody has saved in UTF-8 is told by its
/// multi-byte characters, which no Italian text in the code page happens to hold.
std::string NellaCodePage(std::string testo);

/// A text of the code page in UTF-8.
std::string AUtf8(std::string_view testo);

/// The capital of a letter of the code page ("è" gives "È"); any other character as it is.
char Maiuscola(char carattere);

/// A text in capitals, character by character.
std::string Maiuscole(std::string_view testo);

namespace codepage_interno {

// Holds a UTF-8 literal as a template argument, converted once at compile time.
template <std::size_t N>
struct Letterale {
  std::array<char, N> testo{};
  std::size_t lunghezza = 0;

  consteval Letterale(const char (&utf8)[N]) {
    std::string_view resto(utf8, N - 1);
    while (!resto.empty()) {
      // value() of an empty optional is no constant expression: a character that the code page
      // cannot write stops the compilation here.
      testo[lunghezza++] = ByteDi(EstraiCarattereUtf8(resto).value()).value();
    }
  }
};

template <Letterale L>
inline constexpr Letterale Conservato = L;

}  // namespace codepage_interno

/// An Italian text with accents, written in UTF-8 in the source and in the code page when compiled:
/// "La parola è già nel dizionario."_cp
template <codepage_interno::Letterale L>
consteval std::string_view operator""_cp() {
  return {codepage_interno::Conservato<L>.testo.data(), codepage_interno::Conservato<L>.lunghezza};
}

}  // namespace telarium
