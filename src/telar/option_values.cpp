#include "telar/option_values.h"

#include <charconv>

namespace telarium::telar {

std::vector<std::string> DivisiDaVirgole(std::string_view testo) {
  std::vector<std::string> parti;
  for (std::size_t inizio = 0; inizio <= testo.size();) {
    const std::size_t fine = std::min(testo.find(',', inizio), testo.size());
    parti.emplace_back(testo.substr(inizio, fine - inizio));
    inizio = fine + 1;
  }
  return parti;
}

std::vector<std::string> Parti(const Argomenti& argomenti, const Opzione& opzione) {
  if (!argomenti.Ha(opzione.nome)) return {};
  std::vector<std::string> parti = DivisiDaVirgole(argomenti.Valore(opzione.nome));
  if (std::ranges::any_of(parti, &std::string::empty))
    throw ArgomentiErrati(Unisci(opzione.nome, " ha un valore vuoto"));
  return parti;
}

InsiemeDiParole Parole(const Argomenti& argomenti, const Opzione& opzione) {
  InsiemeDiParole parole;
  for (const std::string& parte : Parti(argomenti, opzione)) {
    auto parola = PiegaGrafiaUtf8(parte);
    if (!parola) {
      throw ArgomentiErrati(
          Unisci(opzione.nome, ": \"", parte, "\" non è una parola da 2 a 53 lettere"));
    }
    parole.insert(std::move(*parola));
  }
  return parole;
}

int Limitato(std::string_view testo, int minimo, int massimo, std::string_view nome) {
  const auto numero = NumeroIntero(testo);
  if (numero && *numero >= minimo && *numero <= massimo) return static_cast<int>(*numero);
  throw ArgomentiErrati(Unisci(nome, " richiede numeri da ", minimo, " a ", massimo));
}

InizioDiParola LeggiInizio(std::string_view colonna, std::string_view riga,
                           std::string_view direzione, std::string_view nome) {
  const Casella casella{Limitato(colonna, 1, MaxColonne, nome), Limitato(riga, 1, MaxRighe, nome)};
  if (direzione == "O" || direzione == "o") return {casella, Orizzontale};
  if (direzione == "V" || direzione == "v") return {casella, Verticale};
  throw ArgomentiErrati(Unisci(nome, " richiede O o V per la direzione"));
}

std::chrono::nanoseconds Secondi(const Argomenti& argomenti, const Opzione& opzione,
                                 std::chrono::nanoseconds altrimenti) {
  if (!argomenti.Ha(opzione.nome)) return altrimenti;
  using SecondiDecimali = std::chrono::duration<double>;
  constexpr SecondiDecimali massimo = std::chrono::hours(24 * 365);
  const std::string valore = argomenti.Valore(opzione.nome);
  const char* const fine = valore.data() + valore.size();
  double numero = 0;
  // No sign, and no "inf" or "nan" either.
  const bool cifra = !valore.empty() && valore.front() >= '0' && valore.front() <= '9';
  const auto [letto, errore] =
      std::from_chars(valore.data(), fine, numero, std::chars_format::fixed);
  if (!cifra || letto != fine || errore == std::errc::invalid_argument)
    throw ArgomentiErrati(
        Unisci(opzione.nome, " richiede un numero di secondi, per esempio 20 o 0.5"));
  if (errore == std::errc::result_out_of_range) numero = massimo.count();
  return std::chrono::duration_cast<std::chrono::nanoseconds>(
      std::min(SecondiDecimali(numero), massimo));
}

}  // namespace telarium::telar
