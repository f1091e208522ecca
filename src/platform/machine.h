#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace telarium {

/// A mail to be written on: the user's mail program shows it and sends it.
struct Mail {
  std::string destinatario;
  std::string oggetto;
  std::string testo;
  std::optional<Percorso> allegato;
};

/// What the core asks of the machine. Texts are in the code page.
class Macchina {
 public:
  virtual ~Macchina() = default;

  /// Today's date by the clock on the wall.
  virtual std::chrono::year_month_day Oggi() = 0;

  /// The next of a sequence of uniform random numbers in [0, 1).
  virtual double Casuale() = 0;

  /// Starts a program with its arguments and does not wait for it. The error, 0 for none.
  virtual std::error_code EseguiComando(const Percorso& programma,
                                        const std::vector<std::string>& argomenti) = 0;

  /// Opens a file, or an address of the web or a "mailto:" one, with the system's program for it.
  /// False when there is none.
  virtual bool ApriFile(const Percorso& file) = 0;
  virtual bool ApriIndirizzo(const std::string& indirizzo) = 0;

  /// Opens a document in the word processor. False when there is none.
  virtual bool ApriInWord(const Percorso& documento) = 0;

  /// Opens the word processor on a new document of that text. False when there is none.
  virtual bool ScriviInWord(const std::string& testo) = 0;

  /// Hands a mail to the user's mail program. False when there is none.
  virtual bool PreparaMail(const Mail& mail) = 0;

  /// The bytes behind an address; none when it cannot be fetched whole within the time.
  virtual std::optional<std::string> Preleva(const std::string& indirizzo,
                                             std::chrono::milliseconds limite) = 0;

  /// The settings of this user, kept from one run to the next.
  virtual std::optional<std::string> LeggiImpostazione(const std::string& chiave) = 0;
  virtual void ScriviImpostazione(const std::string& chiave, const std::string& valore) = 0;
};

}  // namespace telarium
