#include "telar/telar_fixture.h"

namespace telarium {
namespace {

constexpr const char* NoStore = "Enciclopedia telarium1.mdb: il file manca o non si può aprire.\n";

// The lexicons are those of the build tree; the words here come from lists and the kit.
TEST_F(Telar, LexiconTellsWhatItKnowsOfAWordAndWhichItLacks) {
  Write("clues", "citta\tF\tCi si vive\ncitta\tF\tRoma\ncitta\tD\tUrbe\n");
  EXPECT_EQ(Out("enc-crea clues"), "1\t3\n");
  Write("words", "città;70\nluna park;5\nXQ;3\n");
  WriteFile("program/parole_mie.txt", "l'oro;60\ncittà;0\n");
  EXPECT_EQ(Out(Words{"lessico", "--lessico", "words,mio", "CITTA", "l'oro", "Lùna-Park", "xq"}),
            "voce\tCITTA\tcittà\t70\t\tbandita\t2\t1\twords\n"
            "voce\tLORO\tl'oro\t60\t\t\t0\t0\tmio\n"
            "voce\tLUNAPARK\tluna park\t5\t\t\t0\t0\twords\n"
            "voce\tXQ\tXQ\t3\t\t\t0\t0\twords\n");
  const TelarResult some = Run("lessico --lessico words x città1 manca città");
  EXPECT_EQ(some.status, 3);
  EXPECT_EQ(some.err, "");
  EXPECT_EQ(some.out,
            "assente\tx\nassente\tcittà1\nassente\tMANCA\n"
            "voce\tCITTA\tcittà\t70\t\tbandita\t2\t1\twords\n");
}

TEST_F(Telar, LexiconCountsItsLayersByLength) {
  Write("words", "città;70\nsole\noro\n");
  MakeDictionary("pane\nlatte\n");
  const std::string counts = Out("lessico --conta --lessico words,LessicoItaliano.dat");
  EXPECT_TRUE(counts.starts_with("strato\tsigle\t2\t")) << counts;
  EXPECT_TRUE(
      counts.ends_with("\nstrato\tLessicoItaliano.dat\t4\t1\n"
                       "strato\tLessicoItaliano.dat\t5\t1\n"
                       "strato\twords\t3\t1\nstrato\twords\t4\t1\nstrato\twords\t5\t1\n"))
      << counts;
}

TEST_F(Telar, LexiconTellsWhatItCannotRead) {
  Write("words", "sole;8\n");
  const TelarResult found = Run("lessico --lessico words sole");
  EXPECT_EQ(found.out, "voce\tSOLE\tsole\t8\t\t\t0\t0\twords\n");
  EXPECT_EQ(found.err, NoStore);
  EXPECT_EQ(found.status, 0);
  EXPECT_EQ(Told("lessico --lessico manca sole", 1),
            "La lista di parole non si può leggere. manca: il file o la cartella non esiste.\n");
  EXPECT_TRUE(Told("lessico", 2).starts_with("telar: mancano argomenti, servono: PAROLA...\n"));
  EXPECT_TRUE(Told("lessico --conta sole", 2).starts_with("telar: --conta non richiede parole\n"));
  EXPECT_TRUE(
      Told("lessico --lessico a,,b sole", 2).starts_with("telar: --lessico ha un valore vuoto\n"));
}

}  // namespace
}  // namespace telarium
