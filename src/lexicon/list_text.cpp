#include "lexicon/list_text.h"

#include <algorithm>
#include <charconv>

#include "lexicon/entry.h"
#include "platform/codepage.h"

namespace telarium {

Codifica CodificaDi(std::string_view testo) {
  std::size_t sani = 0, guasti = 0;
  while (!testo.empty()) {
    const auto ascii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    testo.remove_prefix(static_cast<std::size_t>(
        std::find_if_not(testo.begin(), testo.end(), ascii) - testo.begin()));
    if (testo.empty()) break;
    ++(EstraiCarattereUtf8(testo) ? sani : guasti);
  }
  return guasti > sani ? Codifica::CodePage : Codifica::Utf8;
}

bool InUtf16(std::string_view testo) {
  constexpr std::size_t inizio = 256;  // any text in UTF-16 has a zero byte in so many
  return testo.starts_with("\xFF\xFE") || testo.starts_with("\xFE\xFF") ||
         testo.substr(0, inizio).find('\0') != std::string_view::npos;
}

std::optional<std::string> PiegaGrafia(std::string_view grafia, Codifica codifica) {
  return codifica == Codifica::Utf8 ? PiegaGrafiaUtf8(grafia) : PiegaGrafia(grafia);
}

std::string GrafiaNellaCodePage(std::string_view grafia, Codifica codifica) {
  if (codifica == Codifica::CodePage) return std::string(grafia);
  return DaUtf8Esatto(grafia).value_or(std::string());
}

std::string_view Ritagliato(std::string_view testo) {
  constexpr std::string_view bianchi = " \t";
  const std::size_t inizio = testo.find_first_not_of(bianchi);
  if (inizio == std::string_view::npos) return {};
  return testo.substr(inizio, testo.find_last_not_of(bianchi) - inizio + 1);
}

std::string_view Campo(std::string_view testo) {
  testo = Ritagliato(testo);
  const bool virgolette = testo.size() >= 2 && testo.starts_with('"') && testo.ends_with('"');
  return virgolette ? testo.substr(1, testo.size() - 2) : testo;
}

std::string_view StaccaCampo(std::string_view& riga, char separatore) {
  const std::size_t fine = std::min(riga.find(separatore), riga.size());
  const std::string_view campo = Campo(riga.substr(0, fine));
  riga.remove_prefix(std::min(fine + 1, riga.size()));
  return campo;
}

bool RigaVuota(std::string_view riga) {
  const std::string_view testo = Ritagliato(riga);
  return testo.empty() || testo.starts_with('#');
}

std::optional<int> InterpretaPunteggio(std::string_view campo) {
  int punteggio = 0;
  const char* const fine = campo.data() + campo.size();
  const auto [letto, errore] = std::from_chars(campo.data(), fine, punteggio);
  if (errore != std::errc() || letto != fine || punteggio < 0 || punteggio > MaxPunteggio)
    return std::nullopt;
  return punteggio;
}

}  // namespace telarium
