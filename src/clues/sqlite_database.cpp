#include "clues/sqlite_database.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <new>
#include <sqlite3.h>

#include "clues/encyclopedia.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr int AttesaDiAltri = 1000;  // milliseconds for which another program may hold the file
constexpr int PaginePerVolta = 256;  // a megabyte: some milliseconds

struct Scelta {
  int quale, valore;
};
constexpr Scelta scelteDiSicurezza[] = {{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                        {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                        {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                        {SQLITE_DBCONFIG_ENABLE_VIEW, 0}};

struct Spiegazione {
  int codice;
  std::string_view testo;
};

constexpr Spiegazione spiegazioni[] = {
    {SQLITE_CANTOPEN, "il file manca o non si può aprire"_cp},
    {SQLITE_NOTADB, "il file non è un'enciclopedia"_cp},
    {SQLITE_CORRUPT, "il file è danneggiato"_cp},
    {SQLITE_BUSY, "il file è occupato da un altro programma"_cp},
    {SQLITE_LOCKED, "il file è occupato da un altro programma"_cp},
    {SQLITE_READONLY_DBMOVED, "il file è stato spostato o eliminato"_cp},
    {SQLITE_READONLY, "il file è di sola lettura"_cp},
    {SQLITE_PERM, "non c'è il permesso di accedere al file"_cp},
    {SQLITE_FULL, "il disco è pieno"_cp},
    {SQLITE_IOERR, "errore di lettura o di scrittura del disco"},
    {SQLITE_TOOBIG, "il testo è troppo lungo"_cp},
    {SQLITE_NOMEM, "memoria esaurita"},
    {SQLITE_CONSTRAINT, "il file non ammette questi dati"},
};

ErroreEnciclopedia::Specie SpecieDi(int codice) {
  switch (codice & 0xFF) {
    case SQLITE_BUSY:
      return ErroreEnciclopedia::Specie::Occupata;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return ErroreEnciclopedia::Specie::Rovinata;
    default:
      return ErroreEnciclopedia::Specie::Altra;
  }
}

// What an error of SQLite means; for the others in its own words, which are English.
std::string Spiegata(int codice, const char* parole) {
  // The lower byte is the kind of error, the rest tells more of it.
  const auto trovata =
      std::find_if(std::begin(spiegazioni), std::end(spiegazioni), [&](const Spiegazione& una) {
        return una.codice == codice || una.codice == (codice & 0xFF);
      });
  if (trovata != std::end(spiegazioni)) return std::string(trovata->testo);
  return Unisci("errore del file (", DaUtf8(parole), ')');
}

}  // namespace

BaseDati::BaseDati() {
  Apri(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

BaseDati::BaseDati(const Percorso& file) {
  Apri(file.c_str(), SQLITE_OPEN_READWRITE);
}

void BaseDati::Apri(const char* file, int come) {
  if (sqlite3_open_v2(file, &connessione_, come, nullptr) != SQLITE_OK) {
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> chiusa(connessione_, sqlite3_close);
    Fallisci();
  }
  Attesa(AttesaDiAltri);
  // The file may come from anywhere: what its schema brings along is not run.
  for (const auto& [scelta, valore] : scelteDiSicurezza)
    sqlite3_db_config(connessione_, scelta, valore, nullptr);
}

BaseDati::~BaseDati() {
  sqlite3_close(connessione_);
}

void BaseDati::Attesa(int millisecondi) {
  attesa_ = millisecondi;
  sqlite3_busy_timeout(connessione_, millisecondi);
}

void BaseDati::TieniPerSe() {
  // The last: what is written goes to the disk in one piece at the end, for which the others wait
  // less long.
  constexpr const char* prende =
      "PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT; PRAGMA journal_mode = DELETE;"
      "PRAGMA cache_spill = OFF";
  try {
    Esegui(prende);
  } catch (const ErroreEnciclopedia& errore) {
    if (errore.DiSpecie() != ErroreEnciclopedia::Specie::Rovinata) throw;
    sqlite3_db_config(connessione_, SQLITE_DBCONFIG_RESET_DATABASE, 1, nullptr);
    Esegui(prende);
  }
}

bool BaseDati::Ricevi(const BaseDati& altra, const std::function<bool()>& prosegue) {
  sqlite3_backup* const copia =
      sqlite3_backup_init(connessione_, "main", altra.connessione_, "main");
  if (!copia) Fallisci();
  int esito = SQLITE_OK;
  bool interrotta = false;
  while (esito == SQLITE_OK && !interrotta) {
    interrotta = !prosegue();
    if (!interrotta) esito = sqlite3_backup_step(copia, PaginePerVolta);
  }
  // The end takes back what is not complete, and is where a failed step is known to the connection.
  if (sqlite3_backup_finish(copia) != SQLITE_OK) Fallisci();
  return !interrotta;
}

void BaseDati::RiponiRegistro() {
  try {
    bool conRegistro = false;
    {
      Istruzione modo(*this, "PRAGMA journal_mode");
      conRegistro = modo.Passo() && modo.VistaUtf8(0) == "wal";
    }
    if (conRegistro) Esegui("PRAGMA journal_mode = DELETE");
  } catch (const ErroreEnciclopedia&) {
    // Another connection is still open, or the file cannot be written.
  }
}

void BaseDati::Fallisci() const {
  const int codice = sqlite3_extended_errcode(connessione_);
  throw ErroreEnciclopedia(Spiegata(codice, sqlite3_errmsg(connessione_)), SpecieDi(codice));
}

void BaseDati::Esegui(const char* sql) {
  if (sqlite3_exec(connessione_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) Fallisci();
}

std::int64_t BaseDati::UltimaRiga() const {
  return sqlite3_last_insert_rowid(connessione_);
}

int BaseDati::RigheCambiate() const {
  return sqlite3_changes(connessione_);
}

std::string BaseDati::Immagine() const {
  sqlite3_int64 byte = 0;
  const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> immagine(
      sqlite3_serialize(connessione_, "main", &byte, 0), sqlite3_free);
  if (!immagine) throw std::bad_alloc();
  return {reinterpret_cast<const char*>(immagine.get()), static_cast<std::size_t>(byte)};
}

Istruzione::Istruzione(BaseDati& base, const char* sql) : base_(base) {
  if (sqlite3_prepare_v3(base_.connessione_, sql, -1, SQLITE_PREPARE_PERSISTENT, &istruzione_,
                         nullptr) == SQLITE_OK) {
    return;
  }
  if (sqlite3_errcode(base_.connessione_) != SQLITE_ERROR) base_.Fallisci();
  throw ErroreEnciclopedia(Unisci("il file non ha la tabella o le colonne di un'enciclopedia (",
                                  DaUtf8(sqlite3_errmsg(base_.connessione_)), ')'));
}

Istruzione::~Istruzione() {
  sqlite3_finalize(istruzione_);
}

Istruzione& Istruzione::Lega(int posto, std::string_view testo) {
  return LegaUtf8(posto, AUtf8(testo));
}

Istruzione& Istruzione::Lega(int posto, const std::optional<std::string>& testo) {
  return LegaUtf8(posto, testo ? std::optional(AUtf8(*testo)) : std::nullopt);
}

Istruzione& Istruzione::LegaUtf8(int posto, const std::optional<std::string>& utf8) {
  const int esito = utf8 ? sqlite3_bind_text64(istruzione_, posto, utf8->data(), utf8->size(),
                                               SQLITE_TRANSIENT, SQLITE_UTF8)
                         : sqlite3_bind_null(istruzione_, posto);
  if (esito != SQLITE_OK) base_.Fallisci();
  return *this;
}

Istruzione& Istruzione::Lega(int posto, std::int64_t numero) {
  sqlite3_bind_int64(istruzione_, posto, numero);
  return *this;
}

bool Istruzione::Passo() {
  const int esito = sqlite3_step(istruzione_);
  if (esito == SQLITE_ROW) return true;
  // The cause is read before the reset, which says it once more.
  if (sqlite3_reset(istruzione_) != SQLITE_OK) base_.Fallisci();
  return false;
}

void Istruzione::Esegui() {
  while (Passo()) {
  }
}

void Istruzione::Ricomincia() {
  sqlite3_reset(istruzione_);
}

std::optional<std::string> Istruzione::Testo(int colonna) const {
  const auto utf8 = VistaUtf8(colonna);
  return utf8 ? std::optional(DaUtf8(*utf8)) : std::nullopt;
}

std::optional<std::string_view> Istruzione::VistaUtf8(int colonna) const {
  const auto* testo = reinterpret_cast<const char*>(sqlite3_column_text(istruzione_, colonna));
  if (!testo) return std::nullopt;
  return std::string_view(testo,
                          static_cast<std::size_t>(sqlite3_column_bytes(istruzione_, colonna)));
}

std::optional<std::string> Istruzione::TestoUtf8(int colonna) const {
  const auto vista = VistaUtf8(colonna);
  return vista ? std::optional(std::string(*vista)) : std::nullopt;
}

std::int64_t Istruzione::Intero(int colonna) const {
  return sqlite3_column_int64(istruzione_, colonna);
}

}  // namespace telarium
