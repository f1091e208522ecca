#include "dictionary/maintenance.h"

#include <algorithm>

#include "dictionary/dictionary.h"
#include "dictionary/word_list.h"
#include "platform/codepage.h"
#include "platform/random_access_file.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::string_view Estensione = ".priv";
constexpr int MaxRigheImportate = 32'200;

// Whether a character can stand in a file name wherever the dictionary is taken to. "?" also stands
// for what the code page cannot write.
bool AmmessoInUnNome(char carattere) {
  constexpr std::string_view vietati = "\\/:*?\"<>|";
  return static_cast<unsigned char>(carattere) >= ' ' && vietati.find(carattere) == vietati.npos;
}

// What a file begins with, which holds more lines than are taken; none when it cannot be read.
std::optional<std::string> LeggiInizio(const Percorso& nome, std::error_code& errore) {
  const FileAdAccessoDiretto file(nome);
  errore = file.Errore();
  if (!file.Aperto()) return std::nullopt;
  std::error_code ignorato;
  const auto misura = std::filesystem::file_size(nome, ignorato);
  std::string testo(std::min<std::uintmax_t>(ignorato ? 0 : misura, MaxByteListaDiParole), '\0');
  testo.resize(file.Leggi(0, testo.data(), testo.size()));
  return testo;
}

}  // namespace

std::optional<std::int16_t> LinguaDelDizionario(const Percorso& nome) {
  const std::string cercato = Maiuscole(TestoPercorso(nome));
  for (std::int16_t lingua = 1; lingua <= NumLingue; ++lingua) {
    if (cercato == Maiuscole(DizionariDiSistema[lingua - 1])) return lingua;
  }
  return std::nullopt;
}

std::optional<Percorso> NomeDizionarioPrivato(std::string_view testo) {
  std::string nome(SenzaSpazi(testo));
  if (!Maiuscole(nome).ends_with(Maiuscole(Estensione))) nome += Estensione;
  const bool nascosto = nome.front() == '.';  // the lists of files would not show it
  if (nascosto || !std::all_of(nome.begin(), nome.end(), AmmessoInUnNome)) return std::nullopt;
  return AUtf8(nome);
}

std::error_code CreaDizionarioVuoto(const Percorso& nome) {
  return ScriviFileNuovo(nome, {});
}

bool CancellaDizionario(const Percorso& nome) {
  // The folder would allow it, but whoever protected the file does not want it deleted.
  if (!FileModificabile(nome)) return false;
  std::error_code errore;
  return std::filesystem::remove(nome, errore);
}

Percorso ListaDaImportare(const Percorso& cartella, int lunghezza) {
  return PercorsoNellaCartella(cartella, Unisci(lunghezza, ".txt"));
}

std::optional<ListaImportata> LeggiListaDaImportare(const Percorso& nome, std::error_code& errore) {
  auto inizio = LeggiInizio(nome, errore);
  if (!inizio) return std::nullopt;
  const std::string testo = NellaCodePage(std::move(*inizio));
  ListaImportata lista;
  LettoreDiRighe righe(testo);
  std::string_view riga;
  for (int numero = 1; numero <= MaxRigheImportate && righe.Prossima(riga); ++numero) {
    if (SenzaSpazi(riga).empty()) continue;
    lista.parole.emplace_back(riga);
    lista.righe = numero;
  }
  return lista;
}

}  // namespace telarium
