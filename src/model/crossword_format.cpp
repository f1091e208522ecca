#include "model/crossword_format.h"

#include <algorithm>

#include "platform/text.h"

namespace telarium {
namespace {

constexpr int Spostamento = 26;  // of the cell characters of a grid line

int Codice(char carattere) {
  return static_cast<unsigned char>(carattere);
}

}  // namespace

std::optional<Dimensioni> DimensioniDichiarate(std::string_view riga4) {
  const auto dal = [riga4](std::size_t carattere) {
    return ValoreNumerico(riga4.substr(std::min(LunghezzaEtichetta + carattere, riga4.size())));
  };
  const Dimensioni dimensioni{dal(0), dal(3)};
  const auto [colonne, righe] = dimensioni;
  const bool valide = colonne >= 1 && colonne <= MaxColonne && righe >= 1 && righe <= MaxRighe;
  return valide ? std::optional(dimensioni) : std::nullopt;
}

std::string ConDimensioni(std::string riga4, Dimensioni dimensioni) {
  riga4.resize(LunghezzaEtichetta, ' ');
  return Unisci(riga4, DueCifre(dimensioni.colonne), 'x', DueCifre(dimensioni.righe));
}

std::optional<std::string> RigaDiSchema(std::string_view riga) {
  std::string schema(riga);
  for (std::size_t p = 0; p < schema.size(); p += 2) {
    const int codice = Codice(schema[p]) - Spostamento;
    if (codice < 0) return std::nullopt;
    schema[p] = static_cast<char>(codice);
  }
  return schema;
}

std::string ConSegni(std::string riga) {
  for (std::size_t p = 1; p < riga.size(); p += 2)
    riga[p] = riga[p - 1] == CellaNera ? CellaNera : CellaVuota;
  return riga;
}

std::optional<std::string> RigaDelFile(std::string riga) {
  riga = ConSegni(std::move(riga));
  for (std::size_t p = 0; p < riga.size(); p += 2) {
    const int codice = Codice(riga[p]) + Spostamento;
    if (codice > 255) return std::nullopt;
    riga[p] = static_cast<char>(codice);
  }
  return riga;
}

bool LetteraScrivibile(char carattere) {
  const int codice = Codice(carattere);
  return codice > ' ' && codice != 0x7F && codice + Spostamento <= 255 && carattere != CellaNera &&
         carattere != CellaVuota;
}

void ScriviInRiga(std::string& riga, int colonna, char carattere) {
  const std::size_t posto = IndiceInRiga(colonna);
  if (riga.size() < posto + 2) riga.resize(posto + 2, CellaVuota);
  riga[posto] = carattere;
}

}  // namespace telarium
