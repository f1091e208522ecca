#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "history/line.h"
#include "model/documento.h"

// The file of one line of steps: a mark with the version, then records, each with its length and a
// digest, that are only ever added. So a file that breaks off, or is damaged, costs the records
// behind that place and nothing else.
namespace telarium {

/// How the work on a crossword ended.
enum class Chiusura {
  Aperta,    // it did not: the program is running, or was killed
  Salvata,   // with all of it in its file
  Scartata,  // the user has seen what was not saved, and does not want it
};

/// What a file of steps holds.
struct Giornale {
  FileDelCruciverba file;
  Linea linea;
  Chiusura chiusura = Chiusura::Aperta;
  /// How many bytes of the file are sound; behind them the next record goes.
  std::size_t byteSani = 0;

  /// Whether it holds work that is in no file: the state where it stands is not that of its file,
  /// and nobody has given it up.
  bool HaLavoroPerso() const;
};

/// The records, as bytes.
std::string InizioDelGiornale(const FileDelCruciverba& file, const Linea& linea);
std::string RecordDelPasso(const Cruciverba& prima, const Passo& passo);
std::string RecordDelPosto(std::size_t posto);
std::string RecordDelFile(const FileDelCruciverba& file, const Cruciverba& attuale);
std::string RecordDellaChiusura(Chiusura chiusura);

/// Reads a file of steps as far as it is sound. None when it is none, not even its first state can
/// be read, or a newer version wrote it.
std::optional<Giornale> LeggiGiornale(std::string_view contenuto);

}  // namespace telarium
