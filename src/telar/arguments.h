#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace telarium::telar {

/// Wrong arguments: `what` says in Italian (UTF-8) what is wrong. `main` shows it with the usage
/// text and ends with status 2.
class ArgomentiErrati : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An option "--nome"; `valore` is the name of its value in the usage text, empty for a switch.
struct Opzione {
  std::string_view nome;
  std::string_view valore;
  std::string_view aiuto;
};

/// What one command line holds: options wherever they stand, and the other arguments in order.
struct Argomenti {
  std::map<std::string, std::vector<std::string>, std::less<>> opzioni;  // as often as given
  std::vector<std::string> liberi;

  bool Ha(std::string_view opzione) const { return opzioni.contains(opzione); }
  /// The value of an option, of one that was given twice the later one.
  std::string Valore(std::string_view opzione, std::string_view altrimenti = {}) const;
  /// All values of an option that may be given more than once.
  std::vector<std::string> Valori(std::string_view opzione) const;

  /// The value of an option as a whole number from `minimo` on; `altrimenti` without the option.
  /// Throws ArgomentiErrati for anything else.
  std::int64_t Numero(std::string_view opzione, std::int64_t minimo, std::int64_t altrimenti) const;
};

/// Sorts the words of a command line. "--nome=valore" and "--nome valore" are both taken, "--"
/// ends the options. Throws ArgomentiErrati for an option
/// that `ammesse` does not hold, a value that is missing, or one too many.
Argomenti Separa(const std::vector<std::string>& parole, const std::vector<Opzione>& ammesse);

/// A decimal number that takes up the whole text, with digits only; none for anything else.
std::optional<std::int64_t> NumeroIntero(std::string_view testo);

}  // namespace telarium::telar
