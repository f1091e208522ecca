#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "model/cruciverba.h"
#include "model/derivation.h"
#include "model/tables.h"
#include "platform/files.h"

// The crossword that is open. There is one document and one thread that touches it; everybody reads
// it by the given names of model/state.h, and it changes through its gate alone.
namespace telarium {

/// Who keeps account of what happens to the document, as its history does. Called behind each
/// change, when the document is as it will be; the called one may not change it.
class OsservatoreDelDocumento {
 public:
  virtual ~OsservatoreDelDocumento() = default;
  /// Modifica has changed the crossword; once for all that is joined in one step.
  virtual void Modificato(const std::string& motivo) = 0;
  /// Another crossword has taken the place of the one that was open.
  virtual void Sostituito(const std::string& motivo) = 0;
  /// Something else is known of its file: a save, another name.
  virtual void Registrato() = 0;
};

/// What is known of the file that a crossword comes from or goes to.
struct FileDelCruciverba {
  /// Its path; empty: no crossword is open; NomeMaiSalvato: there is none yet.
  Percorso nome;
  /// The crossword that it holds, as last read or written, and the digest of its bytes
  /// (ImprontaDi). Before it was saved for the first time: what it began as, and none.
  Cruciverba contenuto;
  std::optional<std::uint64_t> impronta;
  /// Whether part of it was not read, and would be lost by a save.
  bool lettoInParte = false;

  bool operator==(const FileDelCruciverba&) const = default;
};

/// The file of a crossword that goes under a name and is in no file yet.
inline FileDelCruciverba SoloNome(const Percorso& nome) {
  return {nome, {}, {}, false};
}

/// What is open: a crossword, its file, and whether it counts as changed at the saving question.
struct StatoDelDocumento {
  Cruciverba cruciverba;
  FileDelCruciverba file;
  bool modificato = false;

  bool operator==(const StatoDelDocumento&) const = default;
};

/// What is known of the snapshot: the digest of its bytes as last written or read, none before the
/// first time, and whether it holds less than the document, since the last writing failed.
struct StatoIstantanea {
  std::optional<std::uint64_t> impronta = {};
  bool superata = false;
};

class PassoUnico;

class Documento {
 public:
  Documento() = default;
  /// The tables follow whatever happens to the document.
  explicit Documento(TavoleDelCruciverba& specchio) : specchio_(&specchio) {}
  Documento(const Documento&) = delete;
  Documento& operator=(const Documento&) = delete;

  const Cruciverba& Valore() const { return stato_.cruciverba; }
  const StatoDelDocumento& Stato() const { return stato_; }
  /// What follows from the grid as it stands.
  const Derivati& Derivata() const { return derivati_; }

  /// The gate: calls the function with the crossword to be changed, and gives that the form in
  /// which a file holds it (see ComeNelFile). If it then is another one than before the observer is
  /// told, with the words that name the change in the list of steps ("Casella nera 4,7"). An
  /// exception leaves all as it was. The function must not come back here, nor show a window. The
  /// mark stays as it is. True when the crossword has changed.
  bool Modifica(std::string_view motivo, const std::function<void(Cruciverba&)>& funzione);

  /// Another crossword takes the place of this one, under its own name; it begins a line of steps.
  void Sostituisci(std::string_view motivo, StatoDelDocumento stato);

  /// Goes to a state that was there before, of this crossword or of another one: no step.
  void Riporta(StatoDelDocumento stato);

  /// Another file for the same crossword, as after a save.
  void Registra(FileDelCruciverba file);

  /// The mark of a crossword that is to be saved.
  void SegnaModificato(bool modificato);

  /// What is known of the snapshot.
  const StatoIstantanea& Istantanea() const { return istantanea_; }
  void NotaIstantanea(const StatoIstantanea& stato) { istantanea_ = stato; }

  /// As at program start.
  void Azzera();

  /// At most one observer; null takes it away. The caller keeps it alive.
  void Osserva(OsservatoreDelDocumento* osservatore) { osservatore_ = osservatore; }

 private:
  friend class PassoUnico;

  // Takes a crossword over, with all that follows from it.
  void Prendi(Cruciverba cruciverba);
  void RispecchiaNomeESegno();

  StatoDelDocumento stato_;
  StatoIstantanea istantanea_;
  Derivati derivati_;
  TavoleDelCruciverba* specchio_ = nullptr;
  PassoUnico* passo_ = nullptr;  // the one that is open
  OsservatoreDelDocumento* osservatore_ = nullptr;
};

/// All changes in the life of this object are one step: a command that changes the crossword in
/// several strokes. Those within another one belong to the outer one. Another crossword that takes
/// its place meanwhile counts from there on.
class PassoUnico {
 public:
  PassoUnico(Documento& documento, std::string motivo);
  ~PassoUnico();
  PassoUnico(const PassoUnico&) = delete;
  PassoUnico& operator=(const PassoUnico&) = delete;

 private:
  friend class Documento;

  Documento& documento_;
  std::string motivo_;
  Cruciverba prima_;
};

/// The one that is open in this program.
Documento& IlDocumento();

}  // namespace telarium
