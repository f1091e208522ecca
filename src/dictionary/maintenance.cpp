#include "dictionary/maintenance.h"

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

#include "dictionary/dictionary.h"
#include "dictionary/dictionary_file.h"
#include "dictionary/word_list.h"
#include "platform/codepage.h"
#include "platform/descriptor.h"
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
  const FileDizionario file(nome);
  errore = file.Errore();
  if (!file.Aperto()) return std::nullopt;
  std::error_code ignorato;
  const auto misura = std::filesystem::file_size(nome, ignorato);
  std::string testo(std::min<std::uintmax_t>(ignorato ? 0 : misura, MaxByteListaDiParole), '\0');
  testo.resize(file.Leggi(1, testo.data(), testo.size()));
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
  constexpr mode_t permessi = 0666;  // less what the user's mask takes away
  const Percorso intero = CartellaProgramma / nome;
  const Descrittore file(::open(intero.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permessi));
  return file ? std::error_code() : std::error_code(errno, std::generic_category());
}

bool CancellaDizionario(const Percorso& nome) {
  const Percorso intero = CartellaProgramma / nome;
  // The folder would allow it, but whoever protected the file does not want it deleted.
  if (::faccessat(AT_FDCWD, intero.c_str(), W_OK, AT_EACCESS) != 0) return false;
  std::error_code errore;
  return std::filesystem::remove(intero, errore);
}

Percorso ListaDaImportare(int lunghezza) {
  return PercorsoNellaCartella(CartellaProgramma, Unisci(lunghezza, ".txt"));
}

std::optional<ListaImportata> LeggiListaDaImportare(int lunghezza, std::error_code& errore) {
  auto inizio = LeggiInizio(ListaDaImportare(lunghezza), errore);
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
