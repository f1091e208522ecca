#include "dictionary/sorted_words.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "dictionary/word_list.h"
#include "platform/codepage.h"

namespace telarium {
namespace {

// Stands for a character that is sorted as two letters.
constexpr unsigned char DueLettere = 0;

bool LetteraSemplice(char carattere) {
  return carattere >= 'A' && carattere <= 'Z';
}

// What a character is sorted as: its capital without an accent, which may be two letters; a sign as
// itself.
std::string Piegata(char carattere) {
  return PiegaParola(AUtf8({&carattere, 1})).value_or(std::string(1, carattere));
}

// The rank of each character when accents and case do not count: signs, then digits, then letters.
const std::array<unsigned char, 256>& Ranghi() {
  static const auto ranghi = [] {
    std::array<unsigned char, 256> tutti{};
    unsigned char rango = DueLettere;
    const auto assegna = [&](auto condizione) {
      for (int codice = 0; codice < 256; ++codice) {
        if (condizione(static_cast<char>(codice)))
          tutti[static_cast<std::size_t>(codice)] = ++rango;
      }
    };
    const auto cifra = [](char c) { return c >= '0' && c <= '9'; };
    const auto segno = [&](char c) {
      const std::string piegata = Piegata(c);
      return !cifra(c) && piegata.size() == 1 && !LetteraSemplice(piegata[0]);
    };
    assegna(segno);
    assegna(cifra);
    assegna(LetteraSemplice);
    for (std::size_t codice = 0; codice < tutti.size(); ++codice) {
      const std::string piegata = Piegata(static_cast<char>(codice));
      if (piegata.size() == 1) tutti[codice] = tutti[static_cast<unsigned char>(piegata[0])];
    }
    return tutti;
  }();
  return ranghi;
}

std::string Piegato(std::string_view testo) {
  std::string piegato;
  for (const char carattere : testo)
    piegato += Piegata(carattere);
  return piegato;
}

// Compares by ranks alone, from the first character of two letters on by its letters.
int ConfrontaRanghi(std::string_view a, std::string_view b) {
  const std::array<unsigned char, 256>& ranghi = Ranghi();
  const std::size_t comuni = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < comuni; ++i) {
    const unsigned char ra = ranghi[static_cast<unsigned char>(a[i])];
    const unsigned char rb = ranghi[static_cast<unsigned char>(b[i])];
    if (ra == DueLettere || rb == DueLettere)
      return ConfrontaRanghi(Piegato(a.substr(i)), Piegato(b.substr(i)));
    if (ra != rb) return ra < rb ? -1 : 1;
  }
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

bool Precede(std::string_view a, std::string_view b) {
  return ConfrontaItaliano(a, b) < 0;
}

}  // namespace

int ConfrontaItaliano(std::string_view a, std::string_view b) {
  if (const int ranghi = ConfrontaRanghi(a, b)) return ranghi;
  if (a == b) return 0;
  // Accented letters have higher codes than plain ones, and small letters higher than capitals.
  if (const int accenti = Maiuscole(a).compare(Maiuscole(b))) return accenti;
  return a.compare(b);
}

std::size_t PostoPerParola(const std::vector<std::string>& lista, std::string_view parola) {
  const auto dove = std::upper_bound(lista.begin(), lista.end(), parola, Precede);
  return static_cast<std::size_t>(dove - lista.begin());
}

void InserisciParole(std::vector<std::string>& lista, std::vector<std::string> parole) {
  if (!std::is_sorted(parole.begin(), parole.end(), Precede))
    std::sort(parole.begin(), parole.end(), Precede);
  const auto prime = static_cast<std::ptrdiff_t>(lista.size());
  lista.insert(lista.end(), std::move_iterator(parole.begin()), std::move_iterator(parole.end()));
  const auto confine = lista.begin() + prime;
  const bool inOrdine =
      confine == lista.begin() || confine == lista.end() || !Precede(*confine, *(confine - 1));
  if (!inOrdine) std::inplace_merge(lista.begin(), confine, lista.end(), Precede);
}

std::optional<std::size_t> PostoDellaParola(const std::vector<std::string>& lista,
                                            std::string_view parola) {
  const std::size_t posto = PrimoPostoDa(lista, parola);
  if (posto == lista.size() || lista[posto] != parola) return std::nullopt;
  return posto;
}

std::size_t PrimoPostoDa(const std::vector<std::string>& lista, std::string_view inizio) {
  const auto dove = std::lower_bound(lista.begin(), lista.end(), inizio, Precede);
  return static_cast<std::size_t>(dove - lista.begin());
}

}  // namespace telarium
