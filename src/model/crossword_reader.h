#pragma once

#include <optional>
#include <string_view>

#include "model/crossword_format.h"
#include "model/cruciverba.h"

namespace telarium {

/// The parts of a crossword file in their order.
enum class ParteDelFile {
  Intestazione,
  Dimensioni,
  Griglia,
  Definizioni,
  Colori,
  Laboratorio,
};

/// What is wrong in a file, and where.
struct GuastoDelFile {
  ParteDelFile parte = ParteDelFile::Intestazione;
  int riga = 0;             // line of the file, from 1; the one behind the last if it is missing
  std::string_view motivo;  // in Italian, to stand behind a colon

  /// Whether more than colours is lost by it. Colours may always be missing.
  bool Grave() const { return parte != ParteDelFile::Colori; }
};

/// The reason of a fault when the file ends too early.
inline constexpr std::string_view FineDelFile = "il file finisce prima dello schema";

struct LetturaDelFile {
  Cruciverba cruciverba;                            // all that was read
  ParteDelFile finoA = ParteDelFile::Intestazione;  // the part that the reading came to
  std::optional<GuastoDelFile> guasto;              // the gravest one
};

/// What stands behind the colours.
enum class Coda {
  Laboratorio,  // the section of the laboratory, if there is one
  Estranea,     // the rest of a page: nothing of it is read
};

/// Reads the contents of a crossword file over `base`: header, size and grid are those of the file,
/// clues and colours that it does not name stay, as does what the laboratory keeps if it has no
/// section. After a fault `cruciverba` holds what was read until then; after one of the size its
/// columns and rows are 0.
LetturaDelFile LeggiContenuto(std::string_view contenuto, Cruciverba base = {},
                              Coda coda = Coda::Laboratorio);

}  // namespace telarium
