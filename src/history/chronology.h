#pragma once

#include <functional>
#include <string>
#include <vector>

#include "history/archive.h"
#include "history/journal_writer.h"
#include "history/line.h"
#include "model/documento.h"

namespace telarium {

/// Undo, redo and recovery of the open document: watches it, keeps the line of steps of each
/// crossword that was opened since the start of the program, and writes them to the archive.
///
/// Each crossword has its own line. Opening another one, a new one or one from the web begins the
/// next line; undoing its first state leads back to the crossword before, with its name and where
/// its line stood, and redoing from there comes here again, until a change is made there.
class Cronologia : public OsservatoreDelDocumento {
 public:
  using Orologio = std::function<std::chrono::sys_seconds()>;

  /// Watches the document in this object's life. With an empty folder nothing is written.
  Cronologia(Documento& documento, Percorso cartella, Orologio orologio);
  ~Cronologia() override;

  /// The changes that Annulla takes back and Ripeti brings again, in words; empty when there is
  /// none.
  std::string DaAnnullare() const;
  std::string DaRipetere() const;
  void Annulla();
  void Ripeti();

  /// The line of the open crossword, for the list of steps; null without a crossword.
  const Linea* LineaAperta() const;
  void VaiA(std::size_t posto);

  /// Opens lost work as the document, changed and under its name.
  bool Recupera(const LavoroPerso& lavoro);

  /// The crossword is left for good, or the program ends: whether what is not saved was given up
  /// by intention makes no difference here, it is offered again at the next start.
  void Chiudi();

  void Modificato(const std::string& motivo) override;
  void Sostituito(const std::string& motivo) override;
  void Registrato() override;
};

}  // namespace telarium
