#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "history/line.h"
#include "model/documento.h"

// The file of one line of steps: a mark with the version, then records that are only ever added. So
// a file that breaks off, or is damaged, costs the records behind that place and nothing else. The
// first record is a whole line, each other one what happened to it since.
//
//   bytes   content
//   8       "tlrmpass"
//   4       version, the lowest byte first
//   then each record:
//   4       length of its content, likewise
//   8       ImprontaDi of its content
//   1       kind (journal.cpp)
//   1       1 if behind this record there may be work that is in no file of a crossword
//   rest    numbers and texts of history/bytes.h
//   4       the length once more, so that the last record is found from the end
namespace telarium {

/// What a file of steps holds.
struct Giornale {
  FileDelCruciverba file;
  Linea linea;
  bool rinunciato = false;   // nobody wants what is not saved
  std::size_t byteSani = 0;  // of the file; behind them the next record goes

  /// Whether it holds work that is in no file: the state where it stands is not that of its file,
  /// and nobody has given it up.
  bool HaLavoroPerso() const;
};

/// The beginning of a file: the mark and a whole line.
std::string InizioDelGiornale(const FileDelCruciverba& file, const Linea& linea);

/// A change, behind the step where the line stood.
std::string RecordDelPasso(const Cruciverba& prima, const Passo& passo);

/// The line stands at another step, `diverso` from what its file holds or not; or the step where it
/// stands has another value than before.
std::string RecordDelPosto(const Linea& linea, bool diverso);
std::string RecordDellaCorrezione(const Cruciverba& prima, const Cruciverba& dopo);

/// Something else is known of the file.
std::string RecordDelFile(const FileDelCruciverba& file, const Linea& linea);

/// What is not saved is given up.
std::string RecordDellaRinuncia();

enum class EsitoGiornale {
  Letto,    // as far as it is sound
  Nessuno,  // no file of steps, or not even its first line can be read
  Nuovo,    // a newer version wrote it: it is to be left alone
};

struct LetturaDelGiornale {
  EsitoGiornale esito = EsitoGiornale::Nessuno;
  std::optional<Giornale> giornale;  // what was read
};

LetturaDelGiornale LeggiGiornale(std::string_view contenuto);

/// Whether a file of steps surely holds no work that is in no file, as its last record says; told
/// from its first ByteDellInizio bytes and from as many of its last ones as are at hand.
inline constexpr std::size_t ByteDellInizio = 12;
bool SenzaLavoroPerso(std::string_view inizio, std::string_view fine);

}  // namespace telarium
