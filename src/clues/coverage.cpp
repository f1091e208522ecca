#include "clues/coverage.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "clues/coverage_cache.h"
#include "clues/coverage_reader.h"
#include "clues/encyclopedia.h"
#include "clues/store_state.h"
#include "platform/user_folders.h"

namespace telarium {
namespace {

constexpr int TentativiDiLettura = 3;

FontiIndice FontiDellIndice(const FontiCopertura& fonti) {
  std::error_code errore;
  // The way to the file, not the names that lead there: its log lies beside it.
  Percorso vero = std::filesystem::weakly_canonical(fonti.enciclopedia, errore);
  return {.archivio = errore ? fonti.enciclopedia : std::move(vero), .corredo = fonti.corredo};
}

// What one reading of the store has given.
struct Letto {
  ComposizioneIndice indice;
  std::string timbro;  // what they are of; empty when that cannot be told
};

// None when it was broken off. A store that another one takes the place of meanwhile, or that
// changes, is read once more.
std::optional<Letto> LeggiArchivio(const FontiIndice& fonti, const std::stop_token& ferma) {
  const DefinizioniDelCorredo corredo(fonti.corredo);
  for (int i = 1;; ++i) {
    const bool ultimo = i == TentativiDiLettura;
    const std::string timbro = TimbroFermo(fonti).value_or("");
    const auto cambiato = [&] { return !timbro.empty() && TimbroDi(fonti) != timbro; };
    try {
      auto indice = LeggiVociCopertura(fonti.archivio, corredo, ferma);
      if (!indice) return std::nullopt;
      Letto letto{.indice = std::move(*indice), .timbro = timbro};
      if (!cambiato()) return letto;
      letto.timbro.clear();
      if (ultimo) return letto;
    } catch (const ErroreEnciclopedia&) {
      if (ultimo || !cambiato()) throw;
    }
  }
}

std::shared_ptr<const IndiceCopertura> FaiIndice(const FontiIndice& fonti, const Percorso& file,
                                                 const std::stop_token& ferma) {
  std::optional<Letto> letto = LeggiArchivio(fonti, ferma);
  if (!letto) return nullptr;
  std::string byte = std::exchange(letto->indice, {}).Byte(letto->timbro);
  if (!letto->timbro.empty() && !file.empty() && ScriviIndice(file, byte)) {
    // What is mapped takes no memory of the program's own.
    if (auto scritto = LeggiIndice(file, letto->timbro)) return scritto;
  }
  return IndiceCopertura::Apri(std::move(byte));
}

}  // namespace

Copertura::Copertura(std::span<const VoceCopertura> voci)
    : indice_(IndiceCopertura::Apri(ComponiIndice(voci, {}))) {}

ConteggioDefinizioni Copertura::Di(std::string_view parola) const {
  return indice_ ? indice_->Cerca(parola) : ConteggioDefinizioni{};
}

int Copertura::Parole() const {
  return indice_ ? indice_->Parole() : 0;
}

void Copertura::PerOgniParola(const IndiceCopertura::Visita& visita) const {
  if (indice_) indice_->PerOgniParola(visita);
}

std::vector<std::uint64_t> Copertura::Insieme(
    std::size_t quante, const std::function<std::string_view(std::size_t)>& parola,
    QualiDefinizioni quali) const {
  constexpr std::size_t Bit = 64;
  std::vector<std::uint64_t> insieme((quante + Bit - 1) / Bit);
  std::array<std::string_view, Bit> parole;
  std::array<ConteggioDefinizioni, Bit> conteggi;
  for (std::size_t primo = 0; indice_ && primo < quante; primo += Bit) {
    const std::size_t queste = std::min(Bit, quante - primo);
    for (std::size_t k = 0; k < queste; ++k)
      parole[k] = parola(primo + k);
    indice_->CercaInsieme(std::span(parole).first(queste), conteggi);
    for (std::size_t k = 0; k < queste; ++k)
      insieme[primo / Bit] |= std::uint64_t{conteggi[k].Di(quali) > 0} << k;
  }
  return insieme;
}

std::shared_ptr<const Copertura> CoperturaDa(const FontiCopertura& fonti, std::string& causa,
                                             const std::stop_token& ferma) {
  causa.clear();
  const FontiIndice fontiIndice = FontiDellIndice(fonti);
  const Percorso file = fonti.cache.empty() ? Percorso() : fonti.cache / NomeIndice(fontiIndice);
  std::shared_ptr<const IndiceCopertura> indice = LeggiIndice(file, TimbroDi(fontiIndice));
  try {
    if (!indice) indice = FaiIndice(fontiIndice, file, ferma);
  } catch (const ErroreEnciclopedia& errore) {
    causa = errore.Descrizione();
    return nullptr;
  }
  if (!indice && ferma.stop_requested()) return nullptr;
  return std::make_shared<const Copertura>(std::move(indice));
}

std::shared_ptr<const Copertura> CoperturaDi(const Percorso& enciclopedia, std::string& causa,
                                             const std::stop_token& ferma) {
  return CoperturaDa(
      {.enciclopedia = enciclopedia, .corredo = ListaDelCorredo(), .cache = CartellaCacheUtente()},
      causa, ferma);
}

}  // namespace telarium
