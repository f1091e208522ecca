#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

// The encyclopedia: the long-term memory of clues, a table of words with a family of easy clues and
// one of hard ones each. It belongs to no crossword. Words and clues are in the code page, and "?"
// stands for what that cannot write.
namespace telarium {

inline constexpr const char* NomeEnciclopedia = "telarium1.mdb";

/// An error of the store, whatever went wrong: it is missing, damaged, locked, full. Each operation
/// below may throw it. An exception, since a whole command ends on it, from wherever it has got to.
class ErroreEnciclopedia : public std::exception {
 public:
  enum class Specie {
    Occupata,   // another program holds the file
    Rovinata,   // the file is damaged, or no store
    RigaPersa,  // the row is gone, or not as it was read: another program was there
    Altra,
  };

  /// `perche` is Italian, in the code page, and the end of the sentence that the user gets to see.
  explicit ErroreEnciclopedia(std::string_view perche, Specie specie = Specie::Altra);

  const std::string& Descrizione() const { return descrizione_; }
  Specie DiSpecie() const { return specie_; }
  const char* what() const noexcept override { return descrizione_.c_str(); }

 private:
  std::string descrizione_;
  Specie specie_;
};

/// Names a row for as long as it exists.
using NumeroRiga = std::int64_t;

/// A row by what it is sorted by.
struct ChiaveRiga {
  NumeroRiga numero;
  std::string parola;
};

/// A row. A family is null or one text of any number of clues.
struct RigaParole {
  std::string parola;
  std::optional<std::string> facili;
  std::optional<std::string> difficili;
};

/// What a row gets: the columns without a text stay, or are null in a new row. An empty family is
/// stored as null, a word never is.
struct ModificheRiga {
  std::optional<std::string> parola;
  std::optional<std::string> facili;
  std::optional<std::string> difficili;
};

/// The open store. Rows are sorted by word, by character code, equal ones in the order of storing;
/// one row is the current one, at first the first; it is left when another program gives its number
/// to another word. Each write is stored at once.
class Enciclopedia {
 public:
  virtual ~Enciclopedia() = default;

  /// Makes the first row of exactly this word current, searching all rows. False when there is
  /// none: then no row is current. A word with an apostrophe is an error of the store.
  virtual bool CercaParola(std::string_view parola) = 0;

  /// A family of the current row.
  virtual std::optional<std::string> LeggiFacili() = 0;
  virtual std::optional<std::string> LeggiDifficili() = 0;

  /// Adds a row of the word with one easy clue and makes it current.
  virtual void AggiungiParola(std::string_view parola, std::string_view definizione) = 0;

  /// Appends a clue to the easy family of the current row: the old text, or nothing for a null one,
  /// a carriage return and a line feed, the clue.
  virtual void ScriviFacili(std::string_view definizione) = 0;

  /// Whether the clue occurs anywhere in the easy family of the current row, capitals and small
  /// letters being the same: RE is in IL PRETE.
  bool ContieneDefinizione(std::string_view definizione);

  /// Runs reads and writes as one, while no other program writes: all is stored at its end, or
  /// nothing when it throws. Within it no other one is begun.
  virtual void Insieme(const std::function<void()>& operazioni) = 0;

  /// To be called before a run of many reads and writes: if the store lets itself be written to, no
  /// other program makes it anew from here to the end of the connection.
  virtual void IniziaSerie() = 0;

  /// An operation waits up to a second for another program that holds the file; after this call it
  /// no longer does. For runs that go on after an error.
  virtual void NonAttendere() = 0;

  // --- For the browsers, which keep a set of rows of their own ---

  /// All rows, sorted.
  virtual std::vector<ChiaveRiga> Chiavi() = 0;

  /// A row by its number. One that is no longer there is an error of the kind RigaPersa.
  virtual RigaParole LeggiRiga(NumeroRiga numero) = 0;
  /// A clue that stays as LeggiRiga gave it keeps the characters that the code page lacks.
  virtual void ScriviRiga(NumeroRiga numero, const ModificheRiga& modifiche) = 0;
  /// Deletes a row if it is still there. One that is of another word by now, since the whole store
  /// was made anew, is an error of the kind RigaPersa.
  virtual void EliminaRiga(const ChiaveRiga& riga) = 0;

  /// Adds a row and gives its number.
  virtual NumeroRiga InserisciRiga(const ModificheRiga& modifiche) = 0;
};

/// Refuses, as an error of the store, a word that no search takes: one with an apostrophe.
void VerificaCercabile(std::string_view parola);

/// Ends the connection to the store. Whatever fails there leaves nothing undone that was stored.
struct ChiudiEnciclopedia {
  void operator()(Enciclopedia* enciclopedia) const { delete enciclopedia; }
};
using EnciclopediaAperta = std::unique_ptr<Enciclopedia, ChiudiEnciclopedia>;

/// Opens telarium1.mdb of the program folder. A file that is missing, is no such store or cannot be
/// read is an error, and is neither made nor changed; one that cannot be written to opens.
EnciclopediaAperta ApriEnciclopedia();

}  // namespace telarium
