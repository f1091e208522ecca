#include "history/archive.h"

#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstdio>
#include <random>

#include "history/file_state.h"
#include "model/crossword_format.h"
#include "model/crossword_writer.h"
#include "platform/digest.h"
#include "platform/text.h"
#include "platform/user_folders.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view FineNome = ".passi";
constexpr std::string_view MaiSalvato = "nuovo";
constexpr int TentativiDiNome = 8;

std::string Esadecimale(std::uint64_t numero) {
  char cifre[17];
  std::snprintf(cifre, sizeof cifre, "%016" PRIx64, numero);
  return cifre;
}

Percorso Assoluto(const Percorso& nome) {
  std::error_code errore;
  const Percorso assoluto = fs::absolute(nome, errore);
  return (errore ? nome : assoluto).lexically_normal();
}

std::string InizioNome(const Percorso& nome) {
  return nome.empty() ? std::string(MaiSalvato) : Esadecimale(ImprontaDi(Assoluto(nome).native()));
}

// A file of the archive as its folder tells it.
struct VoceDiCartella {
  Percorso nome;
  fs::file_time_type scritto;
  std::uintmax_t byte = 0;
};

// Those whose names begin so, the youngest first.
std::vector<VoceDiCartella> VociDi(const Percorso& cartella, std::string_view inizio) {
  std::vector<VoceDiCartella> voci;
  for (const Percorso& nome : ElencaFile(cartella, Unisci(inizio, '*', FineNome))) {
    std::error_code errore;
    VoceDiCartella voce{cartella / nome, {}, 0};
    voce.scritto = fs::last_write_time(voce.nome, errore);
    if (!errore) voce.byte = fs::file_size(voce.nome, errore);
    if (!errore) voci.push_back(std::move(voce));
  }
  std::stable_sort(voci.begin(), voci.end(), [](const VoceDiCartella& uno, const auto& altro) {
    return uno.scritto > altro.scritto;
  });
  return voci;
}

// A file in our hands, and its bytes; none when another program has it.
struct FileLetto {
  FileBloccato file;
  std::string contenuto;
};

std::optional<FileLetto> Leggi(const Percorso& nome) {
  std::error_code errore;
  auto file = FileBloccato::Apri(nome, errore);
  if (!file) return std::nullopt;
  FileLetto letto{std::move(*file), {}};
  if (letto.file.Leggi(letto.contenuto)) return std::nullopt;
  return letto;
}

// Whether the file of the crossword holds that state although the steps do not know it, since the
// program was killed when it had just been written.
bool GiaNelFile(const Giornale& giornale) {
  const auto byte = ContenutoDelFile(giornale.linea.Attuale());
  std::string contenuto;
  return byte &&
         LeggiFile(giornale.file.nome, MaxByteCruciverba, contenuto) == EsitoLettura::Letto &&
         contenuto == *byte;
}

// Whether its end says that nothing is lost, so that not all of it has to be read.
bool FinisceSenzaLavoroPerso(FileBloccato& file) {
  constexpr std::size_t coda = 64u << 10;
  std::string inizio, fine;
  const std::size_t da = file.Byte() - std::min(file.Byte(), coda);
  return !file.Leggi(0, ByteDellInizio, inizio) && !file.Leggi(da, coda, fine) &&
         SenzaLavoroPerso(inizio, fine);
}

// What a file of steps holds if there is lost work in it.
std::optional<Giornale> GiornaleConLavoroPerso(const Percorso& nome) {
  std::error_code errore;
  auto file = FileBloccato::Apri(nome, errore);
  std::string contenuto;
  if (!file || FinisceSenzaLavoroPerso(*file) || file->Leggi(contenuto)) return std::nullopt;
  auto giornale = LeggiGiornale(contenuto).giornale;
  return giornale && giornale->HaLavoroPerso() ? std::move(giornale) : std::nullopt;
}

// Gives up what is not saved in a file of steps. It does not become the youngest one of its
// crossword by that.
std::error_code Rinuncia(FileBloccato& file) {
  std::error_code ignorato;
  const auto scritto = fs::last_write_time(file.Nome(), ignorato);
  const auto errore = file.Aggiungi(RecordDellaRinuncia());
  if (!ignorato) fs::last_write_time(file.Nome(), scritto, ignorato);
  return errore ? errore : file.Consolida();
}

std::optional<LavoroPerso> LavoroIn(const Percorso& nome) {
  const auto giornale = GiornaleConLavoroPerso(nome);
  if (!giornale || GiaNelFile(*giornale)) return std::nullopt;
  const Linea& linea = giornale->linea;
  return LavoroPerso{nome, giornale->file.nome, !giornale->file.impronta,
                     linea[linea.Posto()].quando, linea.Attuale()};
}

// Removes a file unless it is in use, of a newer version or, where that counts, holds work that
// nobody saved.
void Togli(const Percorso& nome, bool conLavoroPerso) {
  auto letto = Leggi(nome);
  if (!letto) return;
  const auto [esito, giornale] = LeggiGiornale(letto->contenuto);
  if (esito == EsitoGiornale::Nuovo) return;
  if (giornale && giornale->HaLavoroPerso() && !conLavoroPerso) return;
  letto->file.Elimina();
}

}  // namespace

bool ArchivioDelleCronologie::StessoCruciverba(const Percorso& uno, const Percorso& altro) {
  return uno == altro || Assoluto(uno) == Assoluto(altro);
}

std::optional<FileBloccato> ArchivioDelleCronologie::Crea(const Percorso& nome,
                                                          std::error_code& errore) const {
  errore = CreaCartellaPrivata(cartella_);
  if (errore) return std::nullopt;
  std::random_device caso;
  std::optional<FileBloccato> file;
  for (int i = 0; !file && i < TentativiDiNome; ++i) {
    const std::uint64_t numero = std::uint64_t{caso()} << 32 | caso();
    file = FileBloccato::Crea(
        cartella_ / Unisci(InizioNome(nome), '-', Esadecimale(numero), FineNome), errore);
    if (!file && errore != std::errc::file_exists) break;
  }
  if (file) errore.clear();
  return file;
}

std::optional<GiornaleTrovato> ArchivioDelleCronologie::Apri(const Percorso& giornale) {
  auto letto = Leggi(giornale);
  if (!letto) return std::nullopt;
  auto lettura = LeggiGiornale(letto->contenuto);
  if (!lettura.giornale || letto->file.Tronca(lettura.giornale->byteSani)) return std::nullopt;
  return GiornaleTrovato{std::move(letto->file), std::move(*lettura.giornale)};
}

std::optional<GiornaleTrovato> ArchivioDelleCronologie::Trova(const Percorso& nome) const {
  for (const VoceDiCartella& voce : VociDi(cartella_, InizioNome(nome))) {
    auto trovato = Apri(voce.nome);
    if (trovato && StessoCruciverba(trovato->giornale.file.nome, nome)) return trovato;
  }
  return std::nullopt;
}

std::vector<LavoroPerso> ArchivioDelleCronologie::LavoriPersi() const {
  std::vector<LavoroPerso> lavori;
  for (const VoceDiCartella& voce : VociDi(cartella_, "")) {
    if (auto lavoro = LavoroIn(voce.nome)) lavori.push_back(std::move(*lavoro));
  }
  std::stable_sort(lavori.begin(), lavori.end(),
                   [](const auto& uno, const auto& altro) { return uno.quando > altro.quando; });
  return lavori;
}

std::error_code ArchivioDelleCronologie::Scarta(const LavoroPerso& lavoro) const {
  std::error_code errore;
  auto file = FileBloccato::Apri(lavoro.giornale, errore);
  if (!file) return errore;
  return lavoro.maiSalvato ? file->Elimina() : Rinuncia(*file);
}

void ArchivioDelleCronologie::Salvato(const FileDelCruciverba& file) const {
  for (const VoceDiCartella& voce : VociDi(cartella_, InizioNome(file.nome))) {
    const auto giornale = GiornaleConLavoroPerso(voce.nome);
    if (!giornale || DiversoDalFile(giornale->linea.Attuale(), file)) continue;
    std::error_code errore;
    if (auto suo = FileBloccato::Apri(voce.nome, errore)) Rinuncia(*suo);
  }
}

void ArchivioDelleCronologie::Sfoltisci(const LimitiDellArchivio& limiti,
                                        std::chrono::sys_seconds adesso) const {
  std::size_t quanti = 0;
  std::uintmax_t byte = 0;
  for (const VoceDiCartella& voce : VociDi(cartella_, "")) {
    ++quanti;
    byte += voce.byte;
    const bool vecchio = adesso - std::chrono::file_clock::to_sys(voce.scritto) > limiti.giorni;
    if (vecchio || quanti > limiti.cruciverba || byte > limiti.byte) Togli(voce.nome, vecchio);
  }
}

}  // namespace telarium
