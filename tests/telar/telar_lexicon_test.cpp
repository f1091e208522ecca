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
            "voce\tCITTA\tCITTÀ\t70\t\tbandita\t2\t1\twords\n"
            "voce\tLORO\tL'ORO\t60\t\t\t0\t0\tmio\n"
            "voce\tLUNAPARK\tLUNA PARK\t5\t\t\t0\t0\twords\n"
            "voce\tXQ\tXQ\t3\t\t\t0\t0\twords\n");
  const TelarResult some = Run("lessico --lessico words x città1 manca città");
  EXPECT_EQ(some.status, 3);
  EXPECT_EQ(some.err, "");
  EXPECT_EQ(some.out,
            "assente\tx\nassente\tcittà1\nassente\tMANCA\n"
            "voce\tCITTA\tCITTÀ\t70\t\tbandita\t2\t1\twords\n");
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
  EXPECT_EQ(found.out, "voce\tSOLE\tSOLE\t8\t\t\t0\t0\twords\n");
  EXPECT_EQ(found.err, NoStore);
  EXPECT_EQ(found.status, 0);
  EXPECT_EQ(Told("lessico --lessico manca sole", 1),
            "La lista di parole non si può leggere. manca: il file o la cartella non esiste. "
            "Le lingue sono italiano, inglese, latino, francese.\n");
  EXPECT_TRUE(Told("lessico", 2).starts_with("telar: mancano argomenti, servono: PAROLA...\n"));
  EXPECT_TRUE(Told("lessico --conta sole", 2).starts_with("telar: --conta non richiede parole\n"));
  EXPECT_TRUE(
      Told("lessico --lessico a,,b sole", 2).starts_with("telar: --lessico ha un valore vuoto\n"));
}

TEST_F(Telar, OptionsOnWordsAreTakenOrRefused) {
  Write("ala", Unisci(Head, "03x01\r\n[.f.[.\r\n"));
  Write("words", "ala;80\n");
  Write("bans", "Àla;1\nre\n");
  Write("empty", "");
  Write("rules", "sigle = no\n");
  Write("wrong", "\nsigla = no\n");
  const struct {
    const char *options, *told;  // how the message begins
    int status;
  } rows[] = {
      {"", "", 0},
      {"--vieta àla", "", 3},
      {"--vieta oro,ala --ammetti ala", "La parola ALA è insieme vietata e ammessa.\n", 1},
      {"--vieta-da bans", "", 3},
      {"--vieta-da bans --ammetti ALA", "", 0},
      {"--vieta-da empty", "", 0},
      {"--vieta-da manca", "La lista di parole non si può leggere. manca: ", 1},
      {"--livello 81", "", 3},
      {"--livello 81 --livello-lunghezza 2:99,3:80", "", 0},
      {"--livello-lunghezza 3:81", "", 3},
      {"--regole rules", "", 0},
      {"--regole wrong", "Le regole non si possono leggere. wrong: riga 2: \"sigla\" non è ", 1},
      {"--forme si --famiglia facili", "", 0},
      {"--livello 101", "telar: --livello richiede numeri da 0 a 100\n", 2},
      {"--livello-lunghezza 3", "telar: --livello-lunghezza richiede L:N[,L:N...]\n", 2},
      {"--livello-lunghezza 54:1", "telar: --livello-lunghezza richiede numeri da 2 a 53\n", 2},
      {"--forme forse", "telar: --forme richiede uno di: si, no\n", 2},
      {"--vieta x", "telar: --vieta: \"x\" non è una parola da 2 a 53 lettere\n", 2},
      {"--lessico words,", "telar: --lessico ha un valore vuoto\n", 2},
  };
  Out("enc-crea --vuoto empty");
  for (const auto& [options, told, status] : rows) {
    Words words = Split("controlla ala --definizioni no --lessico words", ' ');
    for (const std::string& option : Split(options, ' '))
      words.push_back(option);
    const TelarResult result = Run(words);
    EXPECT_EQ(result.status, status) << options << '\n' << result.out;
    EXPECT_EQ(result.err.substr(0, std::string_view(told).size()), told) << options;
    EXPECT_EQ(result.err.empty(), *told == '\0') << options << '\n' << result.err;
  }
}

}  // namespace
}  // namespace telarium
