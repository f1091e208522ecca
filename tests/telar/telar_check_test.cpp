#include "telar/telar_fixture.h"

namespace telarium {
namespace {

// Down: AST, LER, AIE. The clues of 2 and of 1 down, and of SEI, have something wrong; TRE has
// none.
constexpr std::string_view Clues =
    "  1  11-Vola\r\n  1  12-Nome maschile\r\n  1  21-Mezza dozzina\r\n"
    "  2  12-Una r dopo la \xAB"
    "e\xBB, ler\r\n  3  12-Due vocali a met\xE0\r\n";

class TelarCheck : public Telar {
 protected:
  void SetUp() override {
    Telar::SetUp();
    Write("grid", Unisci(Head, "03x03\r\n[.f.[.\r\nm._.c.\r\nn.l._.\r\n", Clues));
    Write("words", "ala;80\nsei;70\ntre;60\nast;55\nler;20\n");
    Write("clues", "ALA\tF\tVola\nSEI\tD\tMezza dozzina\nSEI\tF\tPari\n");
    Out("enc-crea clues");
  }
};

TEST_F(TelarCheck, PrintsFaultsWarningsAndFigures) {
  const TelarResult result = Run("controlla grid --lessico words");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.out,
            "errore\tdefinizione-rivela\t2\t1\tV\tLa definizione di LER (2 verticale) contiene la "
            "risposta.\n"
            "errore\tinesistente\t3\t1\tV\tAIE (3 verticale) non è in nessun elenco di parole.\n"
            "errore\tsenza-definizione\t1\t3\tO\tTRE (5 orizzontale) non ha una definizione.\n"
            "avviso\triempitiva\t1\t1\tV\tLa definizione di AST (1 verticale) dice troppo poco: "
            "«Nome maschile».\n"
            "avviso\trare\t2\t1\tV\tLER (2 verticale) è una parola rara: lo schema ne ha 1, meglio "
            "nessuna.\n"
            "cifra\tnere\t0.0\ncifra\tmedia\t3.0\ncifra\tpunteggio\t57.0\ncifra\tminimo\t20\n"
            "cifra\tfacili\t2\ncifra\tdifficili\t1\ncifra\tlettere\t7\ncifra\tpiazza\t3x3\n"
            "cifra\tdifficolta\t1.7\ncifra\tvoci-3\t6\n");
}

TEST_F(TelarCheck, OptionsOnWordsDecideWhatIsSound) {
  Write("sound",
        Unisci(Head, "03x03\r\n[.f.[.\r\nm._.c.\r\nn.l._.\r\n[Colori caselle]\r\n",
               " 0  0  0 \r\n 0  0  0 \r\n 0  0  0 \r\n[Laboratorio]\r\nproprie = aie\r\n"));
  const TelarResult sound = Run("controlla sound --lessico words --definizioni no");
  EXPECT_EQ(sound.status, 0) << sound.out;
  const TelarResult low = Run("controlla sound --lessico words --definizioni no --livello 55");
  EXPECT_EQ(low.status, 3);
  EXPECT_EQ(low.out.substr(0, low.out.find('\n')),
            "errore\tregola\t2\t1\tV\tLER (2 verticale) ha punteggio 20: il minimo chiesto è 55.");
  EXPECT_EQ(Run("controlla sound --lessico words --definizioni no --vieta SEI").status, 3);
  EXPECT_EQ(Told("controlla missing --lessico words", 1).find("Errore"), 0u);
  EXPECT_NE(Told("controlla", 2), "");
}

TEST_F(TelarCheck, JsonIsOneObjectWhateverTheCellsHold) {
  // Cells with a quotation mark, a backslash, a tabulator and an accent.
  Write("signs", Unisci(Head, "04x01\r\n<.v.#.\xDA.\r\n  1  11-Qui\r\n"));
  const TelarResult result = Run("controlla signs --json --lessico words");
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.out.substr(0, result.out.find(",\"avvisi\"")),
            R"({"errori":[{"codice":"inesistente","colonna":1,"riga":1,"direzione":"O",)"
            R"("testo":"\"\\\u0009À (1 orizzontale) ha un segno che non è una lettera."}])");
  EXPECT_NE(result.out.find(R"({"codice":"cella-sola","colonna":2,"riga":1,"direzione":"",)"),
            std::string::npos);
  EXPECT_EQ(result.out.substr(result.out.find("\"cifre\"")),
            R"("cifre":{"nere":0.0,"media":4.0,"punteggio":null,"minimo":null,"facili":0,)"
            R"("difficili":0,"lettere":1,"piazza":"4x1","difficolta":null,"voci-4":1}})"
            "\n");
}

TEST_F(TelarCheck, AStoreThatCannotBeReadIsToldAndNoWordHasAClueThere) {
  WriteFile("program/telarium1.mdb", "no store");
  const TelarResult result = Run("controlla grid --lessico words");
  EXPECT_EQ(result.status, 3);
  EXPECT_NE(result.err, "");
  EXPECT_NE(result.out.find("cifra\tfacili\t0\ncifra\tdifficili\t0\n"), std::string::npos);
  EXPECT_EQ(Told("controlla grid --lessico words --definizioni obbligatorie", 1), result.err);
}

}  // namespace
}  // namespace telarium
