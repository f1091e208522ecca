#include "platform/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace telarium {

std::int32_t ValoreNumerico(std::string_view testo) {
  const std::size_t inizio = testo.find_first_not_of(' ');
  if (inizio == std::string_view::npos) return 0;
  std::int64_t valore = 0;
  for (const char c : testo.substr(inizio)) {
    if (c < '0' || c > '9') break;
    valore = valore * 10 + (c - '0');
    if (valore > std::numeric_limits<std::int32_t>::max()) {
      return std::numeric_limits<std::int32_t>::max();
    }
  }
  return static_cast<std::int32_t>(valore);
}

double ValoreDecimale(std::string_view testo) {
  const std::size_t inizio = testo.find_first_not_of(' ');
  if (inizio == std::string_view::npos) return 0;
  testo.remove_prefix(inizio);
  const bool negativo = testo.front() == '-';
  if (negativo || testo.front() == '+') testo.remove_prefix(1);
  // from_chars would take a second sign and words such as "inf" too.
  if (testo.empty() || !(testo.front() == '.' || (testo.front() >= '0' && testo.front() <= '9'))) {
    return 0;
  }
  double valore = 0;
  const auto esito =
      std::from_chars(testo.data(), testo.data() + testo.size(), valore, std::chars_format::fixed);
  if (esito.ec == std::errc::result_out_of_range) {
    // So many digits make it too large; or, with nothing but zeros before the point, too small.
    const bool grande = testo.find_first_of("123456789") < testo.find('.');
    valore = grande ? std::numeric_limits<double>::max() : 0;
  }
  return negativo ? -valore : valore;
}

std::string FormaDiStampa(std::int64_t numero) {
  return Unisci(numero < 0 ? "" : " ", numero, ' ');
}

std::string ConMigliaia(std::int64_t numero) {
  if (numero == 0) return {};
  std::string testo = std::to_string(numero);
  const std::size_t primaCifra = numero < 0 ? 1 : 0;
  for (std::size_t dove = testo.size(); dove > primaCifra + 3;)
    testo.insert(dove -= 3, 1, '.');
  return testo;
}

std::string DueCifre(int numero) {
  return Unisci(numero < 10 ? "0" : "", numero);
}

int ArrotondaPari(double valore) {
  // The default rounding mode of the machine is to nearest, ties to even; nothing here changes it.
  return static_cast<int>(std::nearbyint(valore));
}

std::string_view SenzaSpazi(std::string_view testo) {
  const std::size_t inizio = testo.find_first_not_of(' ');
  if (inizio == std::string_view::npos) return {};
  return testo.substr(inizio, testo.find_last_not_of(' ') - inizio + 1);
}

std::string SenzaInterruzioni(std::string_view testo) {
  std::string riga;
  riga.reserve(testo.size());
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const bool primaDiDue = testo[i] == '\r' && testo.substr(i + 1, 1) == "\n";
    if (primaDiDue) continue;
    riga += testo[i] == '\r' || testo[i] == '\n' ? ' ' : testo[i];
  }
  return riga;
}

bool LettoreDiRighe::Prossima(std::string_view& riga) {
  if (resto_.empty()) return false;
  const auto interrompe = [](char c) { return c == '\r' || c == '\n'; };
  const std::size_t fine = static_cast<std::size_t>(
      std::find_if(resto_.begin(), resto_.end(), interrompe) - resto_.begin());
  riga = resto_.substr(0, fine);
  const bool dueCaratteri = resto_.substr(fine, 2) == "\r\n";
  resto_.remove_prefix(std::min(resto_.size(), fine + (dueCaratteri ? 2 : 1)));
  return true;
}

}  // namespace telarium
