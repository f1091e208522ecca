#include "model/state.h"

#include <tuple>

#include "auxiliary/addresses.h"
#include "auxiliary/tips.h"
#include "clues/clue_family.h"
#include "dictionary/dictionary.h"
#include "dictionary/dictionary_choice.h"
#include "editor/cell_editing.h"
#include "editor/settings.h"
#include "editor/startup.h"
#include "editor/word_pointing.h"
#include "model/crossword_file.h"
#include "output/picture_page.h"
#include "output/web_opening.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

TEST(StateDeathTest, IndexOutOfItsTableIsNamed) {
  EXPECT_DEATH(Schema(0).clear(), "Schema\\(0\\)");
  EXPECT_DEATH(LetteraCasella(54, 1) = 'A', "LetteraCasella\\(54, 1\\)");
  EXPECT_DEATH(TipoCasella(-1, 30) = 0, "TipoCasella\\(-1, 30\\)");
  EXPECT_DEATH(Definizione(53, 31, 1).clear(), "Definizione\\(53, 31, 1\\)");
  EXPECT_DEATH(ParolaCasella(53, 30, 3).clear(), "ParolaCasella\\(53, 30, 3\\)");
}

using State = TelariumTest;

// Every variable of the state as text; of a table its last entry.
std::vector<std::string> Everything() {
  std::vector<std::string> all;
  const auto add = [&](const auto&... values) { (all.push_back(Unisci(values)), ...); };
  all.push_back(Unisci(LaboratorioDelCruciverba.vietate.size()));
  add(Schema(350), Definizione(53, 30, 2), ParolaCasella(53, 30, 2), LetteraCasella(53, 30));
  add(NumColonne, NumRighe, SchemaModificato, ColoreCasella(53, 30), TipoCasella(53, 30));
  add(NumeroCasella(53, 30), LatoCasella, OrigineX, OrigineY, ModoGriglia, PuntatoreMouse);
  add(MouseCol, MouseRiga, ColoreScelto, IstantaneaSuperata());
  add(NomeFont, AltezzaCaratteri, AltezzaNumeri, PercentualeRiquadro, DistanzaDaSpigolo);
  add(DistanzaDaCentro, SpessoreBordo, RettangoloParola, StampaSoluzioni, TastoSin);
  add(NascondiSoluzioni, GiaAttivata, MostraSuggerimenti, LinguaDizionario);
  add(OffsetLunghezza(12), ContaLunghezza(12), NumVociDizionari);
  add(ElencoDefinizioni(1));
  add(LarghezzaPicture, IndirizzoWeb, ValoreIndirizzo(Indirizzo::PaginaEsempio));
  for (const Percorso& path : {NomeCruciverba, CartellaProgramma, CartellaIstantanea, RigaDiComando,
                               FileComando, NomeDizionario})
    all.push_back(path.string());
  return all;
}

TEST_F(State, ResetPutsEveryVariableAsAtProgramStart) {
  AzzeraStato();
  const auto atStart = Everything();
  CartellaProgramma = InFolder("");
  WriteFile("indirizzi.txt", "PaginaEsempio=x\r\n");
  LeggiIndirizzi();
  CartellaIstantanea = InFolder("manca");
  AggiornaIstantanea();  // fails
  Schema(350) = Definizione(53, 30, 2) = ParolaCasella(53, 30, 2) = NomeFont = "x";
  ElencoDefinizioni(1) = IndirizzoWeb = "x";
  LaboratorioDelCruciverba.vietate = {"X"};
  NomeCruciverba = NomeDizionario = RigaDiComando = FileComando = "x";
  for (std::int16_t* one : {&NumColonne,
                            &NumRighe,
                            &SchemaModificato,
                            &TipoCasella(53, 30),
                            &NumeroCasella(53, 30),
                            &LatoCasella,
                            &OrigineX,
                            &OrigineY,
                            &ModoGriglia,
                            &PuntatoreMouse,
                            &AltezzaCaratteri,
                            &AltezzaNumeri,
                            &PercentualeRiquadro,
                            &DistanzaDaSpigolo,
                            &DistanzaDaCentro,
                            &SpessoreBordo,
                            &RettangoloParola,
                            &StampaSoluzioni,
                            &TastoSin,
                            &NascondiSoluzioni,
                            &GiaAttivata,
                            &LinguaDizionario,
                            &NumVociDizionari,
                            &LarghezzaPicture})
    *one = 7;
  MouseCol = MouseRiga = ColoreScelto = ColoreCasella(53, 30) = MostraSuggerimenti = 7;
  OffsetLunghezza(12) = ContaLunghezza(12) = LetteraCasella(53, 30) = 7;
  const auto changed = Everything();
  for (std::size_t i = 0; i < changed.size(); ++i)
    EXPECT_NE(changed[i], atStart[i]) << "variable " << i << " was left out";
  AzzeraStato();
  EXPECT_EQ(Everything(), atStart);
  EXPECT_EQ(NomeDizionario, "LessicoItaliano.dat");
  EXPECT_EQ(LetteraCasella(53, 30), '.');
  EXPECT_EQ(std::tuple(RettangoloParola, LinguaDizionario, MostraSuggerimenti),
            std::tuple(Vero, 1, 1));
  EXPECT_EQ(NumColonne + NumRighe + LatoCasella + ModoGriglia + ColoreCasella(53, 30), 0);
  EXPECT_EQ(Schema(350) + Definizione(53, 30, 2) + NomeFont + CartellaProgramma.string(), "");
}

TEST_F(State, EmptyingTheCrosswordKeepsItsHeaderAndSize) {
  Draw({"AB", "CD"});
  Definizione(53, 30, Verticale) = "x";
  ColoreCasella(2, 2) = 255;
  SvuotaCruciverba();
  EXPECT_EQ(Definizione(53, 30, Verticale) + ParolaCasella(1, 1, Verticale), "");
  EXPECT_EQ(ColoreCasella(2, 2) + TipoCasella(1, 1) + NumeroCasella(2, 1), 0);
  EXPECT_EQ(Drawing(), (std::vector<std::string>{"..", ".."}));
  EXPECT_EQ(Schema(4) + Schema(5) + Schema(6), "Dimensioni : 02x02");
}

}  // namespace
}  // namespace telarium
