#pragma once

#include <cstdint>
#include <string>

#include "dictionary/dictionary_file.h"
#include "platform/files.h"

namespace telarium {

inline constexpr int NumLingue = 4;
/// File names of the dictionaries of the system, by LinguaDizionario less 1.
inline constexpr const char* DizionariDiSistema[NumLingue] = {
    "LessicoItaliano.dat", "LessicoInglese.dat", "LessicoLatino.dat", "LessicoFrancese.dat"};

/// 1 Italian, 2 English, 3 Latin, 4 French; LinguaDeiPrivati for a private dictionary.
inline constexpr std::int16_t LinguaDeiPrivati = 4;

/// A dictionary: its name and its sections, once it has been opened. Its file is opened for each
/// operation alone, so that it can be written anew, or be gone, between two of them.
class Dizionario {
 public:
  /// The Italian one of a folder.
  explicit Dizionario(Percorso cartella = {}) : cartella_(std::move(cartella)) {}

  const Percorso& Cartella() const { return cartella_; }
  /// File name in the folder.
  const Percorso& NomeDizionario() const { return nome_; }
  std::int16_t LinguaDizionario() const { return lingua_; }
  /// Path of the file.
  Percorso PercorsoDizionario() const { return PercorsoNellaCartella(cartella_, nome_); }

  /// Another file is to be this one. Its sections are those of the former one until it is opened.
  void Nomina(Percorso nome, std::int16_t lingua);

  enum class Apertura {
    Riuscita,
    Assente,      // there is no such file; the sections stay as they were
    Illeggibile,  // it counts as empty
  };
  /// Takes the sections from the file.
  [[nodiscard]] Apertura Apri();

  /// Position of the first word of a length, which is told less 3, as the file says; 0 when the
  /// section is empty.
  std::int32_t OffsetLunghezza(int indice) const { return Sezione(indice).inizio; }
  /// Number of words likewise: hostile files give any number here.
  std::int32_t ContaLunghezza(int indice) const { return Sezione(indice).conta; }
  /// The last word number that a scan of the words of a length goes to.
  int UltimoNumero(int lunghezza) const { return Sezione(lunghezza - MinLunghezza).UltimoNumero(); }

  /// Word number n, from 1, of a length: that many characters, of which those that the file does
  /// not hold are blanks. Empty when the file cannot be read.
  std::string LeggiParola(std::int16_t numero, int lunghezza) const;

  /// Whether the file is there and can be read.
  bool Leggibile() const;

  /// Says that it cannot be read, and why, for the user.
  std::string TestoIlleggibile() const;

 private:
  const SezioneDizionario& Sezione(int indice) const;

  Percorso cartella_;
  Percorso nome_ = DizionariDiSistema[0];
  std::int16_t lingua_ = 1;
  SezioniDizionario sezioni_{};
};

}  // namespace telarium
