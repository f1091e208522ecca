#include <fcntl.h>
#include <regex>
#include <unistd.h>

#include "telar/telar_fixture.h"

namespace telarium {
namespace {

// ALA SEI TRE across and AST LER AIE down, or the other way round: there is no other square.
constexpr std::string_view List = "ala;80\nsei;70\ntre;60\nast;55\nler;20\naie;10\n";

// What differs between two runs that do the same.
std::string WithoutTimes(const std::string& out) {
  return std::regex_replace(out, std::regex("(primo|in tutto)\t\\d+\\.\\d{3}\n"), "$1\n");
}

class TelarCompose : public Telar {
 protected:
  void SetUp() override {
    Telar::SetUp();
    Write("square", Unisci(Head, "03x03\r\nH.H.H.\r\nH.H.H.\r\nH.H.H.\r\n"));
    Write("words", List);
    Write("few", List.substr(0, List.find("aie")));
    Write("clues", "ALA\tF\tVola\nSEI\tD\tMezza dozzina\n");
    Out("enc-crea clues");
  }

  // "places" with the words of "triples" has as many places as words and one more: a search tries
  // them in all orders.
  void WriteEndless() {
    std::string rows, words;
    for (char letter = 'a'; letter <= 'l'; ++letter) {
      rows += "H.H.H.\r\nD*D*D*\r\n";
      if (letter < 'l') words += Unisci(std::string(3, letter), '\n');
    }
    Write("places", Unisci(Head, "03x24\r\n", rows));
    Write("triples", words);
  }

  // The grid of a crossword file, its rows divided by blanks.
  std::string Grid(const std::string& file) {
    std::string rows = Out("griglia " + file);
    std::replace(rows.begin(), rows.end(), '\n', ' ');
    return rows;
  }
};

TEST_F(TelarCompose, PrintsAFillAndWritesIt) {
  const std::string told = Out("componi square out --lessico words --seme 7 --lavoratori 1");
  EXPECT_TRUE(std::regex_match(
      told, std::regex("esito\triempito\nseme\t7\nvoci\t6\npunteggio\t49\\.2\t10\ndefinite\t2\n"
                       "passi\t\\d+\nprimo\t\\d+\\.\\d{3}\nin tutto\t\\d+\\.\\d{3}\n")))
      << told;
  EXPECT_TRUE(Grid("out") == "ALA SEI TRE " || Grid("out") == "AST LER AIE ") << Grid("out");
  EXPECT_EQ(WithoutTimes(Out("componi square again --lessico words --seme 7 --lavoratori 2")),
            WithoutTimes(told));
  EXPECT_EQ(Read("again"), Read("out"));
  const std::string best = Out("componi square out --lessico words --ottimo");
  EXPECT_NE(best.find("\npunteggio\t49.2\t10\nprovato\t10\t20\ndefinite\t2\n"), std::string::npos)
      << best;
}

TEST_F(TelarCompose, SeveralProposalsHaveABlockAndAFileEach) {
  const TelarResult some = Run("componi square one.tlrm --lessico words --seme 3 --proposte 3");
  EXPECT_EQ(some.status, 0);
  EXPECT_EQ(some.err, "Proposte trovate: 2 su 3.\n");
  const std::size_t second = some.out.find("\n\nesito\triempito\nseme\t3\n");
  ASSERT_NE(second, std::string::npos) << some.out;
  EXPECT_EQ(some.out.find("esito", second + 8), std::string::npos) << some.out;
  EXPECT_NE(Grid("one-1.tlrm"), Grid("one-2.tlrm"));
  EXPECT_FALSE(fs::exists(InFolder("work/one.tlrm")));
}

TEST_F(TelarCompose, TellsWhyThereIsNoFillAndLeavesTheOutputAsItWas) {
  const TelarResult none = Run("componi square old --lessico few --seme 7");
  EXPECT_EQ(none.status, 3);
  EXPECT_NE(none.err, "");
  EXPECT_TRUE(std::regex_match(
      none.out, std::regex("esito\timpossibile\nseme\t7\n"
                           "(colpevole\t[1-5]\t[OV]\t[1-3]\t[1-3]\t3\t\\.\\.\\.\n)+"
                           "(rimedio\t.*\n)*passi\t\\d+\nin tutto\t\\d+\\.\\d{3}\n")))
      << none.out;
  EXPECT_EQ(Run("componi square part --lessico few --parziale").status, 3);
  EXPECT_NE(
      Run("componi square old --lessico words --maschera 1,2,O:.X.").out.find("\t3\t.X.\nrimedio"),
      std::string::npos);
}

TEST_F(TelarCompose, EndsWithTheStatusOfWhatHappened) {
  Write("given", Unisci(Head, "03x03\r\n[.V.[.\r\nH.H.H.\r\nH.H.H.\r\n"));
  Write("empty", "");
  const struct {
    const char *call, *told;  // how the message begins
    int status;
  } rows[] = {
      {"square old --secondi 0", "Interrotto prima di una risposta: il tempo è scaduto.\n", 4},
      {"square old --passi 0", "Interrotto prima di una risposta: i passi sono finiti.\n", 4},
      {"square part --secondi 0 --parziale", "Interrotto", 4},
      {"square old --vieta ala", "Con queste parole", 3},
      {"square old --vieta ala --vuole ala", "", 1},
      {"square old --vuole tra,tre,tri,tro,tru,tur,ter",
       "Con queste parole e queste richieste lo schema non si può riempire.\n"
       "Parole volute di 3 lettere: 7 (TER, TRA, TRE, TRI, TRO, TRU, TUR); posti di questa "
       "lunghezza: 6.\n",
       3},
      {"given old --maschera 1,1,O:.E.", "", 1},
      {"square old --maschera 2,2,O:SEI", "", 1},
      {"manca old", "", 1},
      {"square folder", "", 1},
      {"square old --maschera 1,1:SEI", "telar: --maschera richiede colonna, riga", 2},
      {"square old --maschera 1,1,O:S3I", "telar: --maschera richiede colonna, riga", 2},
      {"square old --maschera 54,1,O:SEI", "telar: --maschera richiede numeri da 1 a 53\n", 2},
      {"square old --regione 1,1,3", "telar: --regione richiede colonna e riga", 2},
      {"square old --regione 0,1,3,3", "telar: --regione richiede numeri da 1 a 53\n", 2},
      {"square old --secondi due", "telar: --secondi richiede un numero di secondi", 2},
      {"square old --secondi -1", "telar: --secondi richiede un numero di secondi", 2},
      {"square old --seme -1", "telar: --seme richiede un numero intero", 2},
      {"square old --lavoratori 0", "telar: --lavoratori richiede un numero intero", 2},
      {"square", "telar: mancano argomenti", 2},
  };
  for (const auto& [call, told, status] : rows) {
    const TelarResult result = Run(Unisci("componi ", call, " --lessico words"));
    EXPECT_EQ(result.status, status) << call << '\n' << result.out;
    EXPECT_EQ(result.err.substr(0, std::string_view(told).size()), told) << call;
    EXPECT_NE(result.err, "") << call;
    EXPECT_EQ(result.out.empty(), status < 3) << call << '\n' << result.out;
  }
  EXPECT_EQ(Grid("part"), "... ... ... ");
  const TelarResult nothing = Run("componi square old --lessico empty");
  EXPECT_EQ(nothing.status, 3) << nothing.err;
}

TEST_F(TelarCompose, ControlCEndsASearchAndKeepsAFill) {
  WriteEndless();
  const struct {
    const char* call;
    int status;
    const char* result;
  } calls[] = {
      {"componi places old --lessico triples --secondi 50", 4, "esito\ttempo\n"},
      {"componi square out --lessico words --secondi 50 --ottimizza 999999999", 0,
       "esito\triempito\n"},
  };
  for (const auto& [line, status, first] : calls) {
    fs::remove_all(InFolder("cache"));
    call.arguments = Split(line, ' ');
    TelarProcess process(call);
    // It has looked for clues: from before that on it listens.
    process.WaitUntil([&] { return fs::exists(InFolder("cache/telarium")); });
    process.Interrupt();
    const TelarResult result = process.WaitForEnd();
    EXPECT_EQ(result.status, status) << line << result.err;
    EXPECT_TRUE(result.out.starts_with(first)) << result.out;
    EXPECT_EQ(result.out.ends_with("\ninterrotto\n"), status == 0) << result.out;
  }
}

TEST_F(TelarCompose, ListsCandidatesWithWhatBecomesOfThem) {
  EXPECT_EQ(Out("candidati square 1 1 O --lessico words --passi 1000").substr(0, 29),
            "candidato\tALA\t80\t1\t0\tprovata\n");
  const TelarResult none = Run("candidati square 1 1 V --lessico words --livello 81");
  EXPECT_EQ(none.status, 3);
  EXPECT_EQ(none.out, "");
  EXPECT_EQ(none.err, "Nessuna parola adatta.\n");
  EXPECT_EQ(Told("candidati square 2 1 O --lessico words", 1),
            "Nella colonna 2, riga 1, non comincia nessuna parola orizzontale.\n");
  EXPECT_NE(Told("candidati square 1 1 X --lessico words", 2), "");
}

TEST_F(TelarCompose, CandidatesEndQuietlyWhenTheirReaderGoes) {
  WriteEndless();
  int ends[2];
  ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
  Descrittore reader(ends[0]);
  const Descrittore writer(ends[1]);
  call.output = writer.Numero();
  call.arguments = Split("candidati places 1 1 O --lessico triples --passi 999999999999", ' ');
  TelarProcess process(call);
  process.WaitUntil([&] { return fs::exists(InFolder("cache/telarium")); });
  reader.Chiudi();
  const TelarResult result = process.WaitForEnd();
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
}

}  // namespace
}  // namespace telarium
