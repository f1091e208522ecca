#pragma once

#include <cstdint>
#include <string>

#include "model/boolean.h"
#include "model/cruciverba.h"
#include "model/derivation.h"
#include "model/table.h"
#include "platform/files.h"

namespace telarium {

inline constexpr int RigheSchema = 350;  // lines of Schema, of which NumRighe + 4 have a meaning

/// A crossword, what follows from it, its name and its mark, spread out in tables as the given
/// names have them (see model/state.h). They mirror a value, and change with it alone.
struct TavoleDelCruciverba {
  Tabella<std::string, Indici<1, RigheSchema>> schema{"Schema"};
  std::int16_t colonne = 0;
  std::int16_t righe = 0;
  Tabella<std::string, AsseColonne, AsseRighe, AsseDirezioni> definizione{"Definizione"};
  Tabella<Colore, AsseColonne, AsseRighe> colore{"ColoreCasella"};
  Tabella<char, AsseColonne, AsseRighe> lettera{"LetteraCasella", CellaVuota};
  Tabella<std::int16_t, AsseColonne, AsseRighe> tipo{"TipoCasella"};
  Tabella<std::int16_t, AsseColonne, AsseRighe> numero{"NumeroCasella"};
  Tabella<std::string, AsseColonne, AsseRighe, AsseDirezioni> parola{"ParolaCasella"};
  Percorso nome;
  Booleano16 modificato = Falso;

  /// Brings them from what they mirror to another crossword; only what the two do not share is
  /// touched.
  void Rispecchia(const Cruciverba& prima, const Cruciverba& dopo, const Derivati& derivati);

 private:
  void RispecchiaRighe(const Cruciverba& prima, const Cruciverba& dopo);
  void RispecchiaDefinizioni(const Cruciverba& prima, const Cruciverba& dopo);
  void RispecchiaColori(const Cruciverba& prima, const Cruciverba& dopo);
  void RispecchiaDerivati(const Derivati& derivati);
};

}  // namespace telarium
