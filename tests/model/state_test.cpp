#include "model/state.h"

#include <tuple>

#include "auxiliary/addresses.h"
#include "auxiliary/tips.h"
#include "clues/clue_family.h"
#include "editor/cell_editing.h"
#include "editor/settings.h"
#include "editor/startup.h"
#include "editor/word_pointing.h"
#include "model/crossword_file.h"
#include "model/documento.h"
#include "output/picture_page.h"
#include "output/web_opening.h"
#include "support/drawn_crossword.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

TEST(StateDeathTest, IndexOutOfItsTableIsNamed) {
  EXPECT_DEATH(Schema(0), "Schema\\(0\\)");
  EXPECT_DEATH(LetteraCasella(54, 1), "LetteraCasella\\(54, 1\\)");
  EXPECT_DEATH(TipoCasella(-1, 30), "TipoCasella\\(-1, 30\\)");
  EXPECT_DEATH(Definizione(53, 31, 1), "Definizione\\(53, 31, 1\\)");
  EXPECT_DEATH(ParolaCasella(53, 30, 3), "ParolaCasella\\(53, 30, 3\\)");
}

using State = TelariumTest;

// Every variable of the state as text; of a table an entry near its end.
std::vector<std::string> Everything() {
  std::vector<std::string> all;
  const auto add = [&](const auto&... values) { (all.push_back(Unisci(values)), ...); };
  all.push_back(Unisci(IlDocumento().Valore().laboratorio->vietate.size()));
  add(Schema(34), Definizione(53, 30, 2), ParolaCasella(52, 30, 1), LetteraCasella(53, 30));
  add(NumColonne, NumRighe, SchemaModificato, ColoreCasella(53, 30), TipoCasella(1, 30));
  add(NumeroCasella(1, 30), LatoCasella, OrigineX, OrigineY, ModoGriglia, PuntatoreMouse);
  add(MouseCol, MouseRiga, ColoreScelto, int{IlDocumento().Istantanea().superata});
  add(NomeFont, AltezzaCaratteri, AltezzaNumeri, PercentualeRiquadro, DistanzaDaSpigolo);
  add(DistanzaDaCentro, SpessoreBordo, RettangoloParola, StampaSoluzioni, TastoSin);
  add(NascondiSoluzioni, GiaAttivata, MostraSuggerimenti);
  add(ElencoDefinizioni(1));
  add(LarghezzaPicture, IndirizzoWeb, ValoreIndirizzo(Indirizzo::PaginaEsempio));
  for (const Percorso& path :
       {NomeCruciverba, CartellaProgramma, CartellaIstantanea, RigaDiComando, FileComando})
    all.push_back(path.string());
  return all;
}

TEST_F(State, ResetPutsEveryVariableAsAtProgramStart) {
  Forget();
  const auto atStart = Everything();
  CartellaProgramma = InFolder("");
  WriteFile("indirizzi.txt", "PaginaEsempio=x\r\n");
  LeggiIndirizzi();
  CartellaIstantanea = InFolder("manca");
  AggiornaIstantanea();  // fails
  Change([](Cruciverba& crossword) {
    crossword = DrawnCrossword(std::vector(MaxRighe, std::string(MaxColonne, 'A')));
    crossword.laboratorio.Proprio().vietate = {"X"};
  });
  SetClue(MaxColonne, MaxRighe, Verticale, "x");
  SetColour(MaxColonne, MaxRighe, 7);
  SetName("x");
  MarkModified();
  SetGeometry(7, 7, 7);
  PrendiStrumento(Strumento::CasellaNera);
  NomeFont = "x";
  ElencoDefinizioni(1) = IndirizzoWeb = "x";
  RigaDiComando = FileComando = "x";
  for (std::int16_t* one :
       {&ModoGriglia, &AltezzaCaratteri, &AltezzaNumeri, &PercentualeRiquadro, &DistanzaDaSpigolo,
        &DistanzaDaCentro, &SpessoreBordo, &RettangoloParola, &StampaSoluzioni, &TastoSin,
        &NascondiSoluzioni, &GiaAttivata, &LarghezzaPicture})
    *one = 7;
  MouseCol = MouseRiga = ColoreScelto = MostraSuggerimenti = 7;
  const auto changed = Everything();
  for (std::size_t i = 0; i < changed.size(); ++i)
    EXPECT_NE(changed[i], atStart[i]) << "variable " << i << " was left out";
  Forget();
  EXPECT_EQ(Everything(), atStart);
  EXPECT_EQ(LetteraCasella(53, 30), '.');
  EXPECT_EQ(std::tuple(RettangoloParola, MostraSuggerimenti), std::tuple(Vero, 1));
  EXPECT_EQ(NumColonne + NumRighe + LatoCasella + ModoGriglia + ColoreCasella(53, 30), 0);
  EXPECT_EQ(Schema(34) + Definizione(53, 30, 2) + NomeFont + CartellaProgramma.string(), "");
}

}  // namespace
}  // namespace telarium
