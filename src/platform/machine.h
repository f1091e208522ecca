#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
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

/// How far a fetch may go.
struct LimitiDiPrelievo {
  std::chrono::milliseconds tempo;
  std::size_t byte;
};

/// What a fetch brings.
struct Prelevato {
  std::optional<std::string> byte;
  std::string causa = {};  // why there are none, as a sentence; empty when it was broken off
};

/// Asked again and again during a fetch, with the bytes that have come: false breaks it off.
using ProseguePrelievo = std::function<bool(std::size_t byte)>;

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

  /// Starts a program of the system, by its name and arguments, that shows something. False when
  /// there is none of that name, or it ends in an error at once.
  virtual bool ApriProgramma(const std::vector<std::string>& parole) = 0;

  /// Opens a file, or an address of the web or a "mailto:" one, with the system's program for it.
  /// False when there is none, or for a web archive none that shows it.
  virtual bool ApriFile(const Percorso& file) = 0;
  virtual bool ApriIndirizzo(const std::string& indirizzo) = 0;

  /// Opens a document in the word processor; a web page that names no encoding is in the code page.
  /// False when there is none, or no such file.
  virtual bool ApriInWord(const Percorso& documento) = 0;

  /// Opens the word processor on a new document of that text. False when there is none.
  virtual bool ScriviInWord(const std::string& testo) = 0;

  /// Hands a mail to the user's mail program, which gets the attachment by its name. False when
  /// there is none, or it does not take the mail.
  virtual bool PreparaMail(const Mail& mail) = 0;

  /// The bytes behind an http, https or file address, which is in UTF-8 like a file name; none when
  /// it cannot be fetched whole within the limits, or was broken off.
  virtual Prelevato Preleva(const std::string& indirizzo, const LimitiDiPrelievo& limiti,
                            const ProseguePrelievo& prosegue) = 0;

  /// The settings of this user, kept from one run to the next.
  virtual std::optional<std::string> LeggiImpostazione(const std::string& chiave) = 0;
  virtual void ScriviImpostazione(const std::string& chiave, const std::string& valore) = 0;
};

}  // namespace telarium
