#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Numbers in texts, and texts by lines, as the system's file formats have them.
namespace telarium {

/// The number that a text begins with: leading blanks are skipped, digits are taken up to the first
/// other character, and a text without digits gives 0. Values past 2,147,483,647 stay at that.
std::int32_t ValoreNumerico(std::string_view testo);

/// The decimal number that a text begins with, as far as it goes: leading blanks are skipped, then
/// a sign, digits and a fraction behind "." are taken. 0 for a text without a number.
double ValoreDecimale(std::string_view testo);

/// A number in print form: a blank or the minus sign, the digits, one blank behind.
std::string FormaDiStampa(std::int64_t numero);

/// A number with a point behind its thousands, as "274.092"; 0 gives an empty text.
std::string ConMigliaia(std::int64_t numero);

/// A number from 0 on in two digits at least.
std::string DueCifre(int numero);

/// To the nearest integer, a value exactly between two going to the even one.
int ArrotondaPari(double valore);

/// The text without the blanks at its two ends.
std::string_view SenzaSpazi(std::string_view testo);

/// A copy of the text in which each line break, of one or two characters, is one blank.
std::string SenzaInterruzioni(std::string_view testo);

namespace text_interno {
inline void Aggiungi(std::string& testo, std::string_view parte) {
  testo += parte;
}
inline void Aggiungi(std::string& testo, char parte) {
  testo += parte;
}
template <std::integral Numero>
void Aggiungi(std::string& testo, Numero parte) {
  testo += std::to_string(parte);
}
}  // namespace text_interno

/// Texts, characters and numbers (in decimal, without blanks) one behind the other.
template <class... Parti>
std::string Unisci(const Parti&... parti) {
  std::string testo;
  (text_interno::Aggiungi(testo, parti), ...);
  return testo;
}

/// Goes through a text line by line. A line ends with CR LF, CR or LF; the last one may go without.
class LettoreDiRighe {
 public:
  explicit LettoreDiRighe(std::string_view testo) : resto_(testo) {}

  bool Finito() const { return resto_.empty(); }

  /// Puts the next line, without its end, into `riga`. False, with `riga` untouched, at the end.
  bool Prossima(std::string_view& riga);

  /// What has not been read yet.
  std::string_view Resto() const { return resto_; }

 private:
  std::string_view resto_;
};

}  // namespace telarium
