#pragma once

#include <memory>
#include <string>

#include "history/chronology.h"
#include "model/crossword_reader.h"
#include "model/crossword_writer.h"
#include "platform/digest.h"
#include "support/drawn_crossword.h"

namespace telarium {

/// A document with its history, and what the program does with them: its files lie in one folder,
/// its steps in another one. Each look at the clock is a second later.
class HistorySession {
 public:
  HistorySession(Percorso files, Percorso steps)
      : files_(std::move(files)), steps_(std::move(steps)) {
    Restart();
  }

  Documento& Document() { return *document_; }
  const Documento& Document() const { return *document_; }
  Cronologia& History() { return *history_; }
  const Cruciverba& Value() const { return document_->Valore(); }
  Percorso File(const std::string& name) const { return files_ / name; }
  std::vector<LavoroPerso> Lost() const { return history_->Archivio().LavoriPersi(); }

  /// The program ends without a save and starts again.
  void Restart() {
    history_.reset();
    document_ = std::make_unique<Documento>();
    history_ = std::make_unique<Cronologia>(*document_, steps_, [this] {
      return std::chrono::sys_seconds(std::chrono::seconds(++seconds_));
    });
  }

  void New(const std::vector<std::string>& rows) {
    document_->Sostituisci("Nuovo cruciverba",
                           {DrawnCrossword(rows), {"NuovoCruciverba.tlrm", {}, {}, false}, false});
  }

  bool Open(const std::string& name) {
    std::string bytes;
    if (LeggiFile(File(name), MaxByteCruciverba, bytes) != EsitoLettura::Letto) return false;
    const Cruciverba read = LeggiContenuto(bytes).cruciverba;
    document_->Sostituisci("Apertura di " + name,
                           {read, {File(name), read, ImprontaDi(bytes), false}, false});
    return true;
  }

  void Save(const std::string& name) {
    const std::string bytes = ContenutoDelFile(Value()).value();
    Write(name, bytes);
    document_->Registra({File(name), Value(), ImprontaDi(bytes), false});
    document_->SegnaModificato(false);
  }

  /// A file that another program writes.
  void Write(const std::string& name, std::string_view bytes) const {
    Verifica(!ScriviFile(File(name), bytes, Permanenza::Provvisoria), "cannot be written");
  }

  void Letter(Casella cell, char letter) {
    document_->Modifica(std::string("Lettera ") + letter,
                        [&](Cruciverba& crossword) { ScriviCarattere(crossword, cell, letter); });
  }

 private:
  Percorso files_, steps_;
  std::int64_t seconds_ = 0;
  std::unique_ptr<Documento> document_;
  std::unique_ptr<Cronologia> history_;
};

}  // namespace telarium
