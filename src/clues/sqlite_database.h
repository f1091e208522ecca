#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

struct sqlite3;
struct sqlite3_stmt;

// The little that the encyclopedia needs of SQLite. Texts go to the database and come from it in
// UTF-8 and are here in the code page. Every failure throws ErroreEnciclopedia, but for memory that
// is exhausted.
namespace telarium {

class Istruzione;

/// A connection to a database.
class BaseDati {
 public:
  /// An empty one in memory.
  BaseDati();
  /// That of a file, for reading and, if the file allows it, writing. A missing file is an error.
  explicit BaseDati(const Percorso& file);
  ~BaseDati();
  BaseDati(const BaseDati&) = delete;
  BaseDati& operator=(const BaseDati&) = delete;

  /// How long an operation waits for another program that holds the file; at first a second.
  void Attesa(int millisecondi);
  int Attesa() const { return attesa_; }

  /// Takes the file for this connection alone, for as long as it lives: no other one may be within
  /// a statement or keep a log open. What cannot be read as a database then counts as an empty one.
  void TieniPerSe();

  /// Takes over all that another database holds, in place of what is here, in one transaction: what
  /// fails or ends in the middle of it leaves the old contents. False when `prosegue`, which is
  /// asked now and then, has broken it off.
  bool Ricevi(const BaseDati& altra, const std::function<bool()>& prosegue);

  /// Folds a write-ahead log back into the file, which then opens as it is on any medium; also one
  /// that a killed program has left. Whatever keeps from it leaves all as it is: another connection
  /// that is open will do it.
  void RiponiRegistro();

  /// Runs statements that give no rows.
  void Esegui(const char* sql);

  /// The key of the row that the last insertion has made.
  std::int64_t UltimaRiga() const;

  /// How many rows the last statement has changed.
  int RigheCambiate() const;

  /// The bytes of a file that holds the database as it is.
  std::string Immagine() const;

 private:
  friend class Istruzione;
  void Apri(const char* file, int come);
  [[noreturn]] void Fallisci() const;

  sqlite3* connessione_ = nullptr;
  int attesa_ = 0;
};

/// A prepared statement, which must not outlive its connection. Places of values count from 1,
/// columns from 0.
class Istruzione {
 public:
  Istruzione(BaseDati& base, const char* sql);
  ~Istruzione();
  Istruzione(const Istruzione&) = delete;
  Istruzione& operator=(const Istruzione&) = delete;

  /// Binds a value to a place. It holds until it is bound again; none is null.
  Istruzione& Lega(int posto, std::string_view testo);
  Istruzione& Lega(int posto, const std::optional<std::string>& testo);
  Istruzione& Lega(int posto, std::int64_t numero);

  /// Goes to the next row. False at the end, where the statement is ready to run again.
  bool Passo();

  /// Runs it to its end, whatever rows it gives.
  void Esegui();

  /// As Lega, and as Testo below, with a text that is in UTF-8 here too.
  Istruzione& LegaUtf8(int posto, const std::optional<std::string>& utf8);
  std::optional<std::string> TestoUtf8(int colonna) const;

  /// Columns of the row. The view holds until the next step.
  std::optional<std::string_view> VistaUtf8(int colonna) const;
  std::optional<std::string> Testo(int colonna) const;
  std::int64_t Intero(int colonna) const;

 private:
  friend class PrimaRiga;
  void Ricomincia();  // lets go of a row before the end

  BaseDati& base_;
  sqlite3_stmt* istruzione_ = nullptr;
};

/// The first row of a statement, if it gives one. Whatever ends its use, an error too, the
/// statement is ready to run again then, and holds nothing of the file.
class PrimaRiga {
 public:
  explicit PrimaRiga(Istruzione& istruzione)
      : istruzione_(istruzione), presente_(istruzione.Passo()) {}
  ~PrimaRiga() { istruzione_.Ricomincia(); }
  PrimaRiga(const PrimaRiga&) = delete;
  PrimaRiga& operator=(const PrimaRiga&) = delete;

  explicit operator bool() const { return presente_; }
  const Istruzione* operator->() const { return &istruzione_; }

 private:
  Istruzione& istruzione_;
  bool presente_;
};

}  // namespace telarium
