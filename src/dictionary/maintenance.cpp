#include "dictionary/maintenance.h"

#include <algorithm>
#include <fcntl.h>

#include "dictionary/dictionary.h"
#include "platform/codepage.h"
#include "platform/descriptor.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::string_view Estensione = ".priv";
constexpr int MaxRigheImportate = 32'200;
constexpr std::size_t MaxByteLista = 64u << 20;  // held in memory; far above any list of words

// Whether a character can stand in a file name wherever the dictionary is taken to. "?" also stands
// for what the code page cannot write.
bool AmmessoInUnNome(char carattere) {
  constexpr std::string_view vietati = "\\/:*?\"<>|";
  return static_cast<unsigned char>(carattere) >= ' ' && vietati.find(carattere) == vietati.npos;
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
  std::string nome(testo);
  if (!Maiuscole(nome).ends_with(Maiuscole(Estensione))) nome += Estensione;
  const bool senzaNome = nome.size() == Estensione.size();
  if (senzaNome || !std::all_of(nome.begin(), nome.end(), AmmessoInUnNome)) return std::nullopt;
  return AUtf8(nome);
}

std::error_code CreaDizionarioVuoto(const Percorso& nome) {
  constexpr mode_t permessi = 0666;  // less what the user's mask takes away
  const Percorso intero = CartellaProgramma / nome;
  const Descrittore file(::open(intero.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permessi));
  return file ? std::error_code() : std::error_code(errno, std::generic_category());
}

std::optional<ListaImportata> LeggiListaDaImportare(int lunghezza) {
  std::string testo;
  const Percorso nome = PercorsoNellaCartella(CartellaProgramma, Unisci(lunghezza, ".txt"));
  if (LeggiFile(nome, MaxByteLista, testo) != EsitoLettura::Letto) return std::nullopt;
  ListaImportata lista;
  LettoreDiRighe righe(SenzaSegnoUtf8(testo));
  for (std::string_view riga; lista.righe < MaxRigheImportate && righe.Prossima(riga);) {
    ++lista.righe;
    if (!SenzaSpazi(riga).empty()) lista.parole.emplace_back(riga);
  }
  return lista;
}

}  // namespace telarium
