#include "model/state.h"

#include "dictionary/dictionary.h"
#include "editor/settings.h"
#include "editor/startup.h"
#include "fill/extraction.h"
#include "fill/word_choice.h"
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

TEST_F(State, ResetPutsEveryVariableAsAtProgramStart) {
  Schema(350) = Definizione(53, 30, 2) = ParolaCasella(53, 30, 2) = NomeFont = "x";
  NomeCruciverba = CartellaProgramma = CartellaIstantanea = NomeDizionario = "x";
  NumColonne = NumRighe = SchemaModificato = LatoCasella = OrigineX = OrigineY = 1;
  ModoGriglia = PuntatoreMouse = AltezzaCaratteri = DistanzaDaCentro = TipoCasella(53, 30) = 1;
  NumeroCasella(53, 30) = LetteraCasella(53, 30) = LinguaDizionario = 9;
  ColoreCasella(53, 30) = OffsetLunghezza(12) = ContaLunghezza(12) = 1;
  ProvaInfinita = Candidati(MaxParole) = NumCandidati = DistanzaSu(53) = DistanzaSinistra(0) = 1;
  AltezzaNumeri = PercentualeRiquadro = DistanzaDaSpigolo = SpessoreBordo = 1;
  TastoSin = StampaSoluzioni = NascondiSoluzioni = GiaAttivata = 1;
  RettangoloParola = Falso;
  RigaDiComando = FileComando = "x";
  AzzeraStato();
  EXPECT_EQ(AltezzaNumeri + PercentualeRiquadro + DistanzaDaSpigolo + SpessoreBordo, 0);
  EXPECT_EQ(TastoSin + StampaSoluzioni + NascondiSoluzioni + GiaAttivata, 0);
  EXPECT_EQ(RettangoloParola, Vero);
  EXPECT_EQ(RigaDiComando.string() + FileComando.string(), "");
  EXPECT_EQ(Schema(350) + Definizione(53, 30, 2) + ParolaCasella(53, 30, 2) + NomeFont, "");
  EXPECT_EQ(NomeCruciverba.string() + CartellaProgramma.string() + CartellaIstantanea.string(), "");
  EXPECT_EQ(NomeDizionario, "LessicoItaliano.dat");
  EXPECT_EQ(LinguaDizionario, 1);
  EXPECT_EQ(LetteraCasella(53, 30), '.');
  EXPECT_EQ(NumColonne + NumRighe + SchemaModificato + LatoCasella + OrigineX + OrigineY, 0);
  EXPECT_EQ(ModoGriglia + PuntatoreMouse + AltezzaCaratteri + DistanzaDaCentro, 0);
  EXPECT_EQ(TipoCasella(53, 30) + NumeroCasella(53, 30) + ColoreCasella(53, 30), 0);
  EXPECT_EQ(OffsetLunghezza(12) + ContaLunghezza(12) + ProvaInfinita, 0);
  EXPECT_EQ(Candidati(MaxParole) + NumCandidati + DistanzaSu(53) + DistanzaSinistra(0), 0);
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
