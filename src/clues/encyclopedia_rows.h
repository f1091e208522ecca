#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "clues/encyclopedia.h"

namespace telarium {

enum class CampoParole { Parola, Facili, Difficili };
inline constexpr std::array CampiParole = {CampoParole::Parola, CampoParole::Facili,
                                           CampoParole::Difficili};

/// The rows of the encyclopedia through which a browser moves. In memory are the words alone; a
/// row's families are read when they are asked for. Positions count from 1, in the order of the
/// words at the last reading; rows added since then stand at the end. What was set of the current
/// row is stored by the next operation that leaves it. Whatever reads or writes may throw
/// ErroreEnciclopedia: then the current row is the one from before, with what was set of it.
class RigheEnciclopedia {
 public:
  /// Opens the store; its first row becomes the current one. After an error there are no rows.
  void Apri();
  /// Ends the connection. There are no rows then, and what was set is dropped.
  void Chiudi();
  bool Aperta() const { return archivio_ != nullptr; }

  /// The new row that is being written does not count.
  int NumeroRighe() const { return static_cast<int>(righe_.size()); }
  /// Of the current row: 0 when there is none, NumeroRighe() + 1 for the new row.
  int Posizione() const { return nuova_ ? NumeroRighe() + 1 : posizione_; }
  bool HaRiga() const { return Posizione() > 0; }

  /// Makes the row of a position current, or the nearest one when there is none there: then false.
  bool VaiA(int posizione);
  /// False when there are no rows.
  bool Primo() { return VaiA(1); }
  bool Ultimo();
  /// The next and the previous row; false at the end and at the start of the set.
  bool Avanti() { return VaiA(Posizione() + 1); }
  bool Indietro() { return VaiA(Posizione() - 1); }

  /// Makes the first row current, from the current one on and that one included, whose word begins
  /// with the text, capitals and small letters being the same. False when there is none: then the
  /// row stays. A text with an apostrophe is an error of the store.
  bool CercaInizio(std::string_view testo);

  /// What names the current row for a later Torna; 0 without one, and for a new row that of the
  /// row before it.
  NumeroRiga Segnalibro() const;
  /// Makes that row current again; false when it has gone.
  bool Torna(NumeroRiga segnalibro);

  /// Begins a new row, which becomes the current one.
  void Nuova();
  /// Sets a field of the current row, none: takes back what was set. A word is one line, and the
  /// lines of a family get its separator. Nothing happens without a current row.
  void Imposta(CampoParole campo, std::optional<std::string_view> testo);
  /// Whether anything was set that is not what was read.
  bool Sospesa();
  /// Stores the new row, empty as it may be, or those fields of the current row whose text is not
  /// what was read: the others may hold characters that the code page lacks. A field that another
  /// program has changed since is an error of the kind RigaPersa.
  void Registra();
  /// As Registra, but a new row of which nothing was set is dropped.
  void RegistraSospese();
  /// Drops what was set, or the new row: then the one from before it is current.
  void Annulla();
  /// Deletes the current row from the store at once. The next one becomes current, or the last one.
  void Elimina();
  /// Stores what was set and reads all rows again, opening the store if it is not open. The first
  /// row becomes current. What cannot be stored is dropped, and its error thrown once the rows are
  /// read; while another program holds the file all stays as it is.
  void Rileggi();

  /// A field of the current row as it was set, else as it is stored; empty for null.
  std::string Testo(CampoParole campo);
  /// The same of the row of a position from 1 to NumeroRighe() + 1, where the new row stands.
  std::string Testo(int posizione, CampoParole campo);

 private:
  Enciclopedia& Archivio();
  std::string Letto(int posizione, CampoParole campo);
  const RigaParole& Riga(NumeroRiga numero);
  ModificheRiga Cambiate();
  void VerificaInvariata(const ModificheRiga& cambiate);
  void LeggiChiavi();

  EnciclopediaAperta archivio_;
  std::vector<ChiaveRiga> righe_;
  std::unordered_map<NumeroRiga, RigaParole> lette_;  // the rows on the screen, and a few more
  int posizione_ = 0;                                 // under a new row: of the row before it
  bool nuova_ = false;
  ModificheRiga impostate_;  // what was set of the current row
};

}  // namespace telarium
