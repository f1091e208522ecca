#include "support/crossword_state.h"

#include "editor/geometry.h"
#include "model/crossword_format.h"
#include "model/derivation.h"
#include "model/documento.h"
#include "model/state.h"
#include "platform/check.h"
#include "platform/digest.h"

namespace telarium {

void Change(const std::function<void(Cruciverba&)>& how) {
  IlDocumento().Modifica("", how);
}

void SetClue(int column, int row, int direction, std::string_view clue) {
  Change([&](Cruciverba& crossword) {
    crossword.definizioni.Imposta(std::string(clue), column, row, direction);
  });
}

void SetColour(int column, int row, Colore colour) {
  Change([&](Cruciverba& crossword) { crossword.colori.Imposta(colour, column, row); });
}

void SetCell(int column, int row, char character) {
  Change([&](Cruciverba& crossword) { ScriviCarattere(crossword, {column, row}, character); });
}

void SetCells(const std::function<char(int column, int row)>& characterAt) {
  Change([&](Cruciverba& crossword) {
    for (int r = 1; r <= crossword.righe; ++r) {
      for (int c = 1; c <= crossword.colonne; ++c)
        ScriviCarattere(crossword, {c, r}, characterAt(c, r));
    }
  });
}

void SetClues(const std::function<std::string(const Slot&)>& clueOf) {
  Change([&](Cruciverba& crossword) {
    const Derivati derived = Deriva(crossword);
    for (const Slot& slot : derived.Parole()) {
      const auto [c, r] = slot.inizio;
      crossword.definizioni.Imposta(clueOf(slot), c, r, slot.direzione);
    }
  });
}

void SetLine(int row, std::string_view line) {
  Change([&](Cruciverba& crossword) {
    crossword.griglia.at(static_cast<std::size_t>(row) - 1) = std::string(line);
  });
}

void SetHeader(int line, std::string_view text) {
  Change([&](Cruciverba& crossword) {
    crossword.intestazione.Proprio().at(static_cast<std::size_t>(line) - 1) = text;
  });
}

void NoGrid() {
  Change([](Cruciverba& crossword) {
    crossword.colonne = crossword.righe = 0;
    crossword.griglia.clear();
  });
}

void SetName(const Percorso& path) {
  FileDelCruciverba file = SoloNome(path);
  std::string bytes;
  if (LeggiFile(path, MaxByteCruciverba, bytes) == EsitoLettura::Letto)
    file.impronta = ImprontaDi(bytes);
  IlDocumento().Registra(file);
}

void MarkModified(bool modified) {
  IlDocumento().SegnaModificato(modified);
}

void SetGeometry(int side, int left, int top) {
  const auto narrow = [](int value) { return static_cast<std::int16_t>(value); };
  ImpostaGeometria({.lato = narrow(side), .x = narrow(left), .y = narrow(top)});
}

void Forget() {
  AzzeraStato();
}

void SnapshotFromOutside(std::string_view bytes) {
  Verifica(!ScriviFile(PercorsoIstantanea(), bytes, Permanenza::Provvisoria),
           "the snapshot could not be written");
}

}  // namespace telarium
