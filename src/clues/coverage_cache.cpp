#include "clues/coverage_cache.h"

#include <chrono>
#include <cinttypes>
#include <cstdio>

#include "platform/digest.h"
#include "platform/temporary.h"
#include "platform/text.h"
#include "platform/user_folders.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view InizioNome = "copertura-";
constexpr std::string_view FineNome = ".idx";
constexpr std::chrono::hours Vecchiaia{60 * 24};

std::string Esadecimale(std::uint64_t numero) {
  char cifre[17];
  std::snprintf(cifre, sizeof cifre, "%016" PRIx64, numero);
  return cifre;
}

std::shared_ptr<const IndiceCopertura> Apri(const Percorso& file) {
  std::error_code errore;
  FileMappato mappato(file, errore);
  return errore ? nullptr : IndiceCopertura::Apri(std::move(mappato));
}

bool Vecchio(const Percorso& file) {
  std::error_code errore;
  const auto scritto = fs::last_write_time(file, errore);
  return !errore && fs::file_time_type::clock::now() - scritto > Vecchiaia;
}

bool SenzaArchivio(const Percorso& file) {
  const auto indice = Apri(file);
  std::error_code errore;
  return !indice || !fs::exists(ArchivioDelTimbro(indice->Timbro()), errore);
}

void TogliInutili(const Percorso& cartella) {
  TogliScrittureInterrotte(cartella);
  for (const Percorso& nome : ElencaFile(cartella, Unisci(InizioNome, '*', FineNome))) {
    std::error_code ignorato;
    if (Vecchio(cartella / nome) && SenzaArchivio(cartella / nome))
      fs::remove(cartella / nome, ignorato);
  }
}

}  // namespace

Percorso NomeIndice(const FontiIndice& fonti) {
  // No path holds this byte.
  const std::string percorsi = Unisci(fonti.archivio.string(), '\0', fonti.corredo.string());
  return Unisci(InizioNome, Esadecimale(ImprontaDi(percorsi)), FineNome);
}

std::shared_ptr<const IndiceCopertura> LeggiIndice(const Percorso& file, std::string_view timbro) {
  if (file.empty()) return nullptr;
  auto indice = Apri(file);
  return indice && indice->Timbro() == timbro ? indice : nullptr;
}

bool ScriviIndice(const Percorso& file, std::string_view byte) {
  // Not for the disk at once: what a power cut leaves of it has another digest.
  if (CreaCartellaPrivata(file.parent_path()) || ScriviFile(file, byte, Permanenza::Provvisoria))
    return false;
  TogliInutili(file.parent_path());
  return true;
}

}  // namespace telarium
