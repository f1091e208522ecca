#include "clues/first_encyclopedia.h"

#include <filesystem>

#include "support/clue_store.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

class FirstEncyclopediaTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    fs::create_directories(InFolder("dati/clues"));
    fs::create_directory(own);
    CartellaProgramma = own;
  }

  void Install(const char* list, std::string_view text) {
    WriteFile("dati/clues" / Percorso(list), text);
  }
  bool Missing() { return MancaEnciclopedia(InFolder("dati"), own); }
  bool Make() { return PreparaEnciclopedia(InFolder("dati"), own); }
  // Whatever has been left, hidden files too.
  bool NothingThere() { return fs::is_empty(own); }

  Percorso own = InFolder("mia");
};

TEST_F(FirstEncyclopediaTest, ListsAreTakenWholeInTheOrderOfTheirNames) {
  EXPECT_FALSE(Missing()) << "without lists there is nothing to make it from";
  std::string many = "A\tF\tultima\n";
  for (int n = 0; n < 20'000; ++n)
    many += "B" + std::to_string(n) + "\tF\tuna\n";
  Install("20-b.tsv", many);
  Install("10-a.tsv", "A\tF\tprima\nA\tD\tdura");
  ASSERT_TRUE(Missing());
  WriteFile("mia/telarium1.mdb-wal", "the log of a store that was deleted");
  EXPECT_TRUE(Make());
  EXPECT_EQ(Stored("A"), "prima\r\nultima");
  EXPECT_EQ(Stored("A", true), "dura");
  EXPECT_EQ(ApriEnciclopedia()->Chiavi().size(), 20'001u) << "no line is lost between two pieces";
  EXPECT_FALSE(Missing());
  fs::rename(own / "telarium1.mdb", own / "TELARIUM1.MDB");
  EXPECT_FALSE(Missing());
  EXPECT_EQ(user.waits.size(), 1u);
}

TEST_F(FirstEncyclopediaTest, BrokenOffItLeavesNothingAndSaysNothing) {
  Install("10-a.tsv", "A\tF\tprima\n");
  user.patient = false;
  EXPECT_FALSE(Make());
  EXPECT_TRUE(NothingThere());
  EXPECT_TRUE(Missing());

  // Later too, when the rows go in.
  int asked = 0;
  const auto stops = [&](double) { return ++asked < 2; };
  EXPECT_TRUE(CreaEnciclopedia(own, {{"A", false, "x"}, {"B", false, "y"}}, stops).interrotta);
  EXPECT_TRUE(NothingThere());
}

TEST_F(FirstEncyclopediaTest, FailuresAreToldAndLeaveNothing) {
  Install("10-a.tsv", "no clue\n");
  EXPECT_FALSE(Make());
  Install("10-a.tsv", "A\tF\tprima\n");
  fs::create_directory(own / "telarium1.mdb");
  EXPECT_FALSE(Make());
  fs::remove(own / "telarium1.mdb");
  fs::remove(own);
  EXPECT_FALSE(Make());
  const std::vector<std::string> told = user.TakeTexts();
  const char* const reasons[] = {"non hanno definizioni.", "il nome \xE8 gi\xE0 occupato.",
                                 "Non si pu\xF2 scrivere nella cartella "};
  ASSERT_EQ(told.size(), std::size(reasons));
  for (std::size_t i = 0; i < told.size(); ++i) {
    EXPECT_TRUE(told[i].starts_with("Impossibile preparare l'enciclopedia delle definizioni. "));
    EXPECT_NE(told[i].find(reasons[i]), std::string::npos) << told[i];
  }
}

TEST_F(FirstEncyclopediaTest, TheStoreOfAFasterProgramStays) {
  MakeStore("A\tF\tsua\n");
  EXPECT_EQ(CreaEnciclopedia(own, {{"A", false, "nostra"}}, {}).errore, "");
  EXPECT_EQ(Stored("A"), "sua");
}

}  // namespace
}  // namespace telarium
