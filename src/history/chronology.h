#pragma once

#include <functional>
#include <memory>
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
/// next line, or goes on with the one that the archive has of it. To undo the opening leads back to
/// the crossword before, with its name and where its line stood, and redoing from there comes here
/// again, until a change is made there. Where there was no crossword before, undoing goes on with
/// what was done to this one in former runs; otherwise the list of steps leads there.
class Cronologia : public OsservatoreDelDocumento {
 public:
  using Orologio = std::function<std::chrono::sys_seconds()>;

  /// Watches the document in this object's life; one that is open already begins a line. With an
  /// empty folder nothing is written.
  Cronologia(Documento& documento, Percorso cartella, Orologio orologio);
  /// When all is on the disk.
  ~Cronologia() override;
  Cronologia(const Cronologia&) = delete;
  Cronologia& operator=(const Cronologia&) = delete;

  /// The changes that Annulla takes back and Ripeti brings again, in words; empty when there is
  /// none, and then nothing happens.
  std::string DaAnnullare() const;
  std::string DaRipetere() const;
  void Annulla();
  void Ripeti();

  /// The line of the open crossword, for the list of steps with words, time and crossword of each;
  /// null without a crossword.
  const Linea* LineaAperta() const;
  /// Goes to a step of it. One that there is not is a programming error.
  void VaiA(std::size_t posto);

  /// Where the lines lie, for lost work and old files.
  const ArchivioDelleCronologie& Archivio() const { return archivio_; }

  /// Opens lost work as the document, changed and under its name. False when its file of steps
  /// cannot be had any more; then all is as it was.
  bool Recupera(const LavoroPerso& lavoro);

  /// Waits until all is in the hands of the system, for an end that destroys no objects.
  void Attendi();

  /// Why the steps cannot be written, as a message; told once, else empty. Undo and redo do not
  /// depend on it.
  std::string Guasto();

  void Modificato(const std::string& motivo) override;
  void Sostituito(const std::string& motivo) override;
  void Registrato() override;

 private:
  class GiornaleAperto;
  // A crossword that was opened, in the order of time.
  struct Voce {
    unsigned numero;     // its own
    std::string motivo;  // what opened it, in words
    FileDelCruciverba file;
    Linea linea;
    std::size_t ingresso = 0;  // the step at which it was opened
    std::size_t uscita = 0;    // the one at which the next crossword took its place
    std::shared_ptr<GiornaleAperto> giornale = {};  // null where nothing can be written
  };

  bool Aperta() const { return voce_ < voci_.size(); }
  Voce& Attuale() { return voci_[voce_]; }
  const Voce& Attuale() const { return voci_[voce_]; }
  // Whether undoing leads to the crossword before, and redoing to the next one.
  bool AlCruciverbaDiPrima() const;
  bool AlCruciverbaSeguente() const;

  Passo NuovoPasso(const std::string& motivo) const;
  Voce NuovaVoce(const std::string& motivo, FileDelCruciverba file, Linea linea);
  static bool Resta(bool perso, const Voce& voce);
  bool RiprendiDallaMemoria(Voce& voce);
  void RiprendiDallArchivio(Voce& voce);
  void PortaAlFile(Voce& voce, const FileDelCruciverba& conosciuto);
  void Lascia();
  void Entra(Voce voce);
  void TogliSeguenti();
  void Mostra();
  void Scrivi(Voce& voce, std::string record);
  void RinnovaGiornale(Voce& voce);
  void NotaIlSalvataggio(const Voce& voce);
  void PassaAdAltroNome(Voce& voce, const FileDelCruciverba& prima);

  Documento& documento_;
  ArchivioDelleCronologie archivio_;
  Orologio orologio_;
  std::unique_ptr<ScrittoreDiGiornali> scrittore_;  // null when nothing is to be written
  std::vector<Voce> voci_;
  std::size_t voce_ = 0;  // the open one; behind the last one when no crossword is open
  unsigned numeri_ = 0;
  std::error_code guasto_;
  bool guastoDetto_ = false;
  std::chrono::sys_seconds tentativo_{};  // the last one to begin a file of steps
};

}  // namespace telarium
