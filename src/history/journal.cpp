#include "history/journal.h"

#include "history/bytes.h"
#include "history/difference.h"
#include "history/file_state.h"
#include "platform/digest.h"

namespace telarium {
namespace {

constexpr std::string_view Segno = "tlrmpass";
constexpr std::uint32_t Versione = 1;
constexpr int ByteDellaVersione = 4;
constexpr int ByteDellaLunghezza = 4;
constexpr int ByteDellImpronta = 8;
constexpr std::size_t ByteIntornoAlContenuto = 2 * ByteDellaLunghezza + ByteDellImpronta;
static_assert(Segno.size() + ByteDellaVersione == ByteDellInizio);

enum Genere : std::uint64_t {
  LineaIntera = 1,
  UnPasso = 2,
  UnPosto = 3,
  UnFile = 4,
  Correzione = 5,
  Rinuncia = 6,
};

// A record with length and digest of its content around it.
std::string Record(Genere genere, bool sospeso, const ScrittoreDiByte& resto) {
  ScrittoreDiByte contenuto;
  contenuto.Fisso(genere, 1);
  contenuto.Fisso(sospeso ? 1 : 0, 1);
  contenuto.Grezzo(resto.Byte());
  ScrittoreDiByte record;
  record.Fisso(contenuto.Byte().size(), ByteDellaLunghezza);
  record.Fisso(ImprontaDi(contenuto.Byte()), ByteDellImpronta);
  record.Grezzo(contenuto.Byte());
  record.Fisso(contenuto.Byte().size(), ByteDellaLunghezza);
  return record.Prendi();
}

// The next record of those that `resto` begins with, without its frame; none at damage.
std::optional<std::string_view> ProssimoRecord(std::string_view& resto) {
  LettoreDiByte lettore(resto);
  const std::uint64_t lunghezza = lettore.Fisso(ByteDellaLunghezza);
  const std::uint64_t impronta = lettore.Fisso(ByteDellImpronta);
  const std::string_view contenuto = lettore.Grezzo(lunghezza);
  const bool intero = lettore.Fisso(ByteDellaLunghezza) == lunghezza && lettore.Sano();
  if (!intero || ImprontaDi(contenuto) != impronta) return std::nullopt;
  resto.remove_prefix(ByteIntornoAlContenuto + contenuto.size());
  return contenuto;
}

void ScriviPasso(ScrittoreDiByte& scrittore, const Cruciverba& prima, const Passo& passo) {
  scrittore.Testo(passo.motivo);
  scrittore.ConSegno(passo.quando.time_since_epoch().count());
  scrittore.Testo(DifferenzaTra(prima, passo.cruciverba));
}

// A crossword that stands behind its length as a difference; as it was, and the reader damaged,
// where it is none.
Cruciverba LeggiCruciverba(LettoreDiByte& lettore, const Cruciverba& prima) {
  auto letto = ConDifferenza(prima, lettore.Testo());
  if (letto && lettore.Sano()) return std::move(*letto);
  lettore.Guasto();
  return prima;
}

Passo LeggiPasso(LettoreDiByte& lettore, const Cruciverba& prima) {
  Passo passo;
  passo.motivo = lettore.Testo();
  passo.quando = std::chrono::sys_seconds(std::chrono::seconds(lettore.ConSegno()));
  passo.cruciverba = LeggiCruciverba(lettore, prima);
  return passo;
}

// Places keep their numbers when the oldest steps go, since the reader may keep more of them.
void ScriviPosto(ScrittoreDiByte& scrittore, const Linea& linea) {
  scrittore.Numero(linea.Caduti() + linea.Posto());
}

void ScriviFileDelCruciverba(ScrittoreDiByte& scrittore, const FileDelCruciverba& file,
                             const Linea& linea) {
  scrittore.Testo(file.nome.native());
  scrittore.Fisso(file.lettoInParte, 1);
  scrittore.Fisso(file.impronta.has_value(), 1);
  scrittore.Fisso(file.impronta.value_or(0), ByteDellImpronta);
  const auto posto = linea.PostoDelFile();
  scrittore.Numero(posto ? linea.Caduti() + *posto + 1 : 0);
  scrittore.Testo(DifferenzaTra(linea.Attuale(), file.contenuto));
}

// Reads what ScriviFileDelCruciverba has written; false, and nothing changed, when it is damaged.
bool PrendiFile(LettoreDiByte& lettore, FileDelCruciverba& file, Linea& linea) {
  FileDelCruciverba letto;
  letto.nome = std::string(lettore.Testo());
  letto.lettoInParte = lettore.Fisso(1) != 0;
  const bool salvato = lettore.Fisso(1) != 0;
  const std::uint64_t impronta = lettore.Fisso(ByteDellImpronta);
  if (salvato) letto.impronta = impronta;
  const std::uint64_t posto = lettore.Numero();
  letto.contenuto = LeggiCruciverba(lettore, linea.Attuale());
  if (!lettore.Sano() || !lettore.Finito()) return false;
  file = std::move(letto);
  const bool presente = posto > linea.Caduti() && posto - linea.Caduti() <= linea.Quanti();
  linea.PostoDelFile(presente ? std::optional<std::size_t>(posto - linea.Caduti() - 1)
                              : std::nullopt);
  return true;
}

bool PrendiPosto(LettoreDiByte& lettore, Linea& linea) {
  const std::uint64_t posto = lettore.Numero();
  if (!lettore.Sano() || posto < linea.Caduti() || posto - linea.Caduti() >= linea.Quanti())
    return false;
  linea.VaiA(posto - linea.Caduti());
  return true;
}

bool PrendiPasso(LettoreDiByte& lettore, Linea& linea) {
  Passo passo = LeggiPasso(lettore, linea.Attuale());
  if (!lettore.Sano() || !lettore.Finito()) return false;
  linea.Aggiungi(std::move(passo));
  return true;
}

bool PrendiCorrezione(LettoreDiByte& lettore, Linea& linea) {
  Cruciverba corretto = LeggiCruciverba(lettore, linea.Attuale());
  if (!lettore.Sano() || !lettore.Finito()) return false;
  linea.Correggi(std::move(corretto));
  return true;
}

std::optional<Giornale> PrendiLinea(LettoreDiByte& lettore) {
  const std::uint64_t caduti = lettore.Numero();
  std::uint64_t altri = lettore.Numero();
  Giornale giornale{{}, Linea(LeggiPasso(lettore, {}), Linea::MaxByte, caduti)};
  for (; altri > 0 && lettore.Sano(); --altri)
    giornale.linea.Aggiungi(LeggiPasso(lettore, giornale.linea.Attuale()));
  if (!PrendiPosto(lettore, giornale.linea)) return std::nullopt;
  if (!PrendiFile(lettore, giornale.file, giornale.linea)) return std::nullopt;
  return giornale;
}

// Builds up what a file holds, record by record.
class Lettura {
 public:
  // False when the record is damaged, or not in its place; then nothing has changed.
  bool Prendi(std::string_view contenuto) {
    LettoreDiByte lettore(contenuto);
    const std::uint64_t genere = lettore.Fisso(1);
    lettore.Fisso(1);
    if (!giornale_) {
      if (genere == LineaIntera) giornale_ = PrendiLinea(lettore);
      return giornale_.has_value();
    }
    if (!Cambia(genere, lettore)) return false;
    giornale_->rinunciato = genere == Rinuncia;
    return true;
  }

  std::optional<Giornale> Risultato(std::size_t byteSani) {
    if (giornale_) giornale_->byteSani = byteSani;
    return std::move(giornale_);
  }

 private:
  bool Cambia(std::uint64_t genere, LettoreDiByte& lettore) {
    Linea& linea = giornale_->linea;
    switch (genere) {
      case UnPasso:
        return PrendiPasso(lettore, linea);
      case UnPosto:
        return PrendiPosto(lettore, linea);
      case UnFile:
        return PrendiFile(lettore, giornale_->file, linea);
      case Correzione:
        return PrendiCorrezione(lettore, linea);
      default:
        return genere == Rinuncia;
    }
  }

  std::optional<Giornale> giornale_;
};

// What a file says of itself before its records, which it leaves in `contenuto`.
EsitoGiornale LeggiSegno(std::string_view& contenuto) {
  LettoreDiByte lettore(contenuto);
  const bool nostro = lettore.Grezzo(Segno.size()) == Segno;
  const std::uint64_t versione = lettore.Fisso(ByteDellaVersione);
  if (!nostro || !lettore.Sano() || versione == 0) return EsitoGiornale::Nessuno;
  contenuto.remove_prefix(Segno.size() + ByteDellaVersione);
  return versione > Versione ? EsitoGiornale::Nuovo : EsitoGiornale::Letto;
}

}  // namespace

bool Giornale::HaLavoroPerso() const {
  return !rinunciato && DiversoDalFile(linea.Attuale(), file);
}

std::string InizioDelGiornale(const FileDelCruciverba& file, const Linea& linea) {
  ScrittoreDiByte passi;
  passi.Numero(linea.Caduti());
  passi.Numero(linea.Quanti() - 1);
  ScriviPasso(passi, {}, linea[0]);
  for (std::size_t i = 1; i < linea.Quanti(); ++i)
    ScriviPasso(passi, linea[i - 1].cruciverba, linea[i]);
  ScriviPosto(passi, linea);
  ScriviFileDelCruciverba(passi, file, linea);
  ScrittoreDiByte inizio;
  inizio.Grezzo(Segno);
  inizio.Fisso(Versione, ByteDellaVersione);
  inizio.Grezzo(Record(LineaIntera, DiversoDalFile(linea.Attuale(), file), passi));
  return inizio.Prendi();
}

std::string RecordDelPasso(const Cruciverba& prima, const Passo& passo) {
  ScrittoreDiByte resto;
  ScriviPasso(resto, prima, passo);
  return Record(UnPasso, true, resto);
}

std::string RecordDelPosto(const Linea& linea, bool diverso) {
  ScrittoreDiByte resto;
  ScriviPosto(resto, linea);
  return Record(UnPosto, diverso, resto);
}

std::string RecordDellaCorrezione(const Cruciverba& prima, const Cruciverba& dopo) {
  ScrittoreDiByte resto;
  resto.Testo(DifferenzaTra(prima, dopo));
  return Record(Correzione, true, resto);
}

std::string RecordDelFile(const FileDelCruciverba& file, const Linea& linea) {
  ScrittoreDiByte resto;
  ScriviFileDelCruciverba(resto, file, linea);
  return Record(UnFile, DiversoDalFile(linea.Attuale(), file), resto);
}

std::string RecordDellaRinuncia() {
  return Record(Rinuncia, false, {});
}

LetturaDelGiornale LeggiGiornale(std::string_view contenuto) {
  std::string_view resto = contenuto;
  LetturaDelGiornale lettura{LeggiSegno(resto), {}};
  if (lettura.esito != EsitoGiornale::Letto) return lettura;
  Lettura records;
  std::size_t byteSani = 0;
  while (const auto record = ProssimoRecord(resto)) {
    if (!records.Prendi(*record)) break;
    byteSani = contenuto.size() - resto.size();
  }
  lettura.giornale = records.Risultato(byteSani);
  if (!lettura.giornale) lettura.esito = EsitoGiornale::Nessuno;
  return lettura;
}

bool SenzaLavoroPerso(std::string_view inizio, std::string_view fine) {
  if (LeggiSegno(inizio) != EsitoGiornale::Letto || fine.size() < ByteIntornoAlContenuto)
    return false;
  const std::uint64_t lunghezza =
      LettoreDiByte(fine.substr(fine.size() - ByteDellaLunghezza)).Fisso(ByteDellaLunghezza);
  if (lunghezza > fine.size() - ByteIntornoAlContenuto) return false;
  fine.remove_prefix(fine.size() - ByteIntornoAlContenuto - lunghezza);
  const auto record = ProssimoRecord(fine);
  return record && record->size() >= 2 && (*record)[1] == 0;
}

}  // namespace telarium
