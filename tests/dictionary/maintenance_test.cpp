#include "dictionary/maintenance.h"

#include "dictionary/sorted_words.h"
#include "platform/codepage.h"
#include "support/ordinary_user.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using MaintenanceTest = TelariumTest;
using Words = std::vector<std::string>;

TEST_F(MaintenanceTest, WordsStandInTheOrderOfItalian) {
  const Words sorted = {"",     " ",    "-",     "10 ",  "2",
                        "A",    "ABA",  "AD",    "AE",   std::string("Æ"_cp),
                        "AF",   "aga",  "PAPA",  "papa", std::string("PAPÀ"_cp),
                        "PAPI", "Papo", "STRAS", "z"};
  Words list;
  for (std::size_t i : {4u, 12u, 0u, 18u, 7u})
    list.insert(list.begin() + static_cast<int>(PostoPerParola(list, sorted[i])), sorted[i]);
  InserisciParole(list, {sorted.rbegin(), sorted.rend()});
  // What the first loop put in stands twice now.
  for (std::size_t i : {4u, 12u, 0u, 18u, 7u}) {
    const auto place = PostoDellaParola(list, sorted[i]);
    ASSERT_TRUE(place) << sorted[i];
    EXPECT_EQ(list.at(*place + 1), sorted[i]);
    list.erase(list.begin() + static_cast<int>(*place));
  }
  EXPECT_EQ(list, sorted);
  EXPECT_EQ(PostoDellaParola(sorted, "Papa"), std::nullopt);
  EXPECT_EQ(sorted[PrimoPostoDa(sorted, "PAP")], "PAPA");
}

TEST_F(MaintenanceTest, PrivateNamesGetOneExtensionAndStayInTheFolder) {
  const std::pair<std::string, Percorso> names[] = {
      {"mio", "mio.priv"},
      {"mio.priv", "mio.priv"},
      {"MIO.PRIV", "MIO.PRIV"},
      {"dizionario", "dizionario.priv"},
      {"a.b", "a.b.priv"},
      {std::string("caffè"_cp), "caffè.priv"},
      {".priv", ""},
      {".mio", ""},
      {"../mio", ""},
      {"/tmp/mio", ""},
      {"sotto\\mio", ""},
      {"mio?", ""},
      {"riga\n", ""},
  };
  for (const auto& [typed, name] : names)
    EXPECT_EQ(NomeDizionarioPrivato(typed).value_or(""), name) << typed;
}

TEST_F(MaintenanceTest, AProtectedDictionaryIsNotDeleted) {
  std::filesystem::permissions(CartellaProgramma, std::filesystem::perms::all);
  for (const auto& [rights, deleted] : {std::pair(0444u, false), {0666u, true}}) {
    const Percorso file = WriteFile("mio.priv", "x");
    std::filesystem::permissions(file, std::filesystem::perms(rights));
    EXPECT_TRUE(AsOrdinaryUser([&, d = deleted] { return CancellaDizionario(file) == d; }));
    EXPECT_EQ(std::filesystem::exists(file), !deleted);
  }
}

TEST_F(MaintenanceTest, ImportTakesTheFirstLinesBlankOnesCounted) {
  std::string text = "\xEF\xBB\xBFuno\r\n   \r\n due \nPER\xC3\x92\n\n \n";
  WriteFile("3.TXT", text);
  std::error_code error;
  const auto list = LeggiListaDaImportare(ListaDaImportare(CartellaProgramma, 3), error);
  ASSERT_TRUE(list);
  EXPECT_EQ(list->parole, (Words{"uno", " due ", "PER\xD2"}));
  EXPECT_EQ(list->righe, 4);
  EXPECT_FALSE(LeggiListaDaImportare(ListaDaImportare(CartellaProgramma, 4), error));
  EXPECT_EQ(error, std::errc::no_such_file_or_directory);

  text.assign(32'199, '\n');
  WriteFile("4.txt", text + "ULTI\nOLTRE\n");
  const auto longer = LeggiListaDaImportare(ListaDaImportare(CartellaProgramma, 4), error);
  ASSERT_TRUE(longer);
  EXPECT_EQ(longer->righe, 32'200);
  EXPECT_EQ(longer->parole, Words{"ULTI"});
}

}  // namespace
}  // namespace telarium
