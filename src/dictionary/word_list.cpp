#include "dictionary/word_list.h"

#include <algorithm>

#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

// The capitals that the letters from a code point on are written with when they lose their accents,
// one entry each; "-" marks one that is no accented letter.
struct Piegatura {
  char32_t primo;
  std::string_view lettere;
};

// clang-format off
constexpr Piegatura Piegature[] = {
    //       0       8       16      24
    {0xC0,  "AAAAAA" "\1" "CEEEEIIII" "-" "NOOOOO" "-" "OUUUUY" "-" "\3"    // capitals, sharp s
            "AAAAAA" "\1" "CEEEEIIII" "-" "NOOOOO" "-" "OUUUUY" "-" "Y"},   // small letters
    {0x100, "AAAAAACCCCCCCCDDDDEEEEEEEEEEGGGGGGGGHHHHIIIIIIIIII" "\4\4"
            "JJKK" "-" "LLLLLLLLLLNNNNNNN" "--" "OOOOOO" "\2\2"
            "RRRRRRSSSSSSSSTTTTTTUUUUUUUUUUUUWWYYYZZZZZZS"},
};
// clang-format on
// Letters that are written with two: the control characters of the table above are their numbers.
constexpr std::string_view Doppie[] = {"", "AE", "OE", "SS", "IJ"};

std::string_view Piegata(char32_t carattere) {
  for (const auto& [primo, lettere] : Piegature) {
    if (carattere < primo || carattere - primo >= lettere.size()) continue;
    const std::size_t posto = carattere - primo;
    if (lettere[posto] == '-') return {};
    if (lettere[posto] < ' ') return Doppie[static_cast<std::size_t>(lettere[posto])];
    return lettere.substr(posto, 1);
  }
  return {};
}

bool AccentoCombinato(char32_t carattere) {
  return carattere >= 0x300 && carattere <= 0x36F;
}

}  // namespace

std::optional<std::string_view> PiegaCarattere(char32_t carattere) {
  constexpr std::string_view alfabeto = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  if (carattere < 0x80) {
    const std::size_t posto = alfabeto.find(Maiuscola(static_cast<char>(carattere)));
    if (posto == std::string_view::npos) return std::nullopt;
    return alfabeto.substr(posto, 1);
  }
  const std::string_view piegata = Piegata(carattere);
  if (piegata.empty() && !AccentoCombinato(carattere)) return std::nullopt;
  return piegata;
}

std::optional<std::string> PiegaParola(std::string_view utf8) {
  std::string parola;
  while (!utf8.empty()) {
    const auto carattere = EstraiCarattereUtf8(utf8);
    const auto lettere = carattere ? PiegaCarattere(*carattere) : std::nullopt;
    if (!lettere) return std::nullopt;
    parola += *lettere;
  }
  return parola;
}

void AggiungiLista(std::string_view utf8, ListeDiParole& liste) {
  LettoreDiRighe righe(SenzaSegnoUtf8(utf8));
  std::string_view riga;
  while (righe.Prossima(riga)) {
    auto parola = PiegaParola(riga);
    if (parola && parola->size() >= MinLunghezza && parola->size() <= MaxLunghezza)
      liste[parola->size() - MinLunghezza].push_back(std::move(*parola));
  }
}

void OrdinaListe(ListeDiParole& liste) {
  for (auto& lista : liste) {
    std::sort(lista.begin(), lista.end());
    lista.erase(std::unique(lista.begin(), lista.end()), lista.end());
  }
}

}  // namespace telarium
