#include "support/telarium_test.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "dictionary/dictionary_writer.h"
#include "support/drawn_crossword.h"

namespace telarium {
namespace {

char DrawnAs(char cell) {
  return cell == CellaNera ? '#' : cell;
}

}  // namespace

void TelariumTest::SetUp() {
  Forget();
  ImpostaPiattaforma(&platform);
  ASSERT_FALSE(folder_.Nome().empty());
  CartellaProgramma = folder_.Nome();
  dictionary = Dizionario(CartellaProgramma);
  // The home of whoever runs the tests is left alone.
  ASSERT_EQ(::setenv("XDG_CACHE_HOME", InFolder("cache").c_str(), 1), 0);
  ASSERT_EQ(::setenv("XDG_DATA_HOME", InFolder("home").c_str(), 1), 0);
  ASSERT_EQ(::setenv("XDG_STATE_HOME", InFolder("state").c_str(), 1), 0);
}

void TelariumTest::TearDown() {
  user.VerifyNothingLeft();
  ImpostaPiattaforma(nullptr);
}

Percorso TelariumTest::WriteFile(const Percorso& name, std::string_view bytes) const {
  const Percorso path = InFolder(name);
  const auto error = ScriviFile(path, bytes, Permanenza::Provvisoria);
  EXPECT_FALSE(error) << path << ": " << error.message();
  return path;
}

std::string TelariumTest::ReadFile(const Percorso& path) {
  std::string bytes;
  EXPECT_EQ(LeggiFile(path, 64u << 20, bytes), EsitoLettura::Letto) << path;
  return bytes;
}

void TelariumTest::OpenDictionary(const std::vector<std::string>& words, const Percorso& name) {
  ListeDiParole lists;
  for (const std::string& word : words)
    lists.at(word.size() - MinLunghezza).push_back(word);
  OrdinaListe(lists);
  ASSERT_EQ(ScriviDizionario(InFolder(name), lists).errore, "");
  dictionary.Nomina(name, dictionary.LinguaDizionario());
  ASSERT_TRUE(ApriDizionario(dictionary));
}

void TelariumTest::Draw(const std::vector<std::string>& rows) {
  Change([&](Cruciverba& crossword) {
    Cruciverba drawn = DrawnCrossword(rows);
    drawn.definizioni = crossword.definizioni;
    drawn.colori = crossword.colori;
    drawn.laboratorio = crossword.laboratorio;
    crossword = drawn;
  });
  SetName("prova.tlrm");
}

std::vector<std::string> TelariumTest::Drawing() {
  std::vector<std::string> rows;
  for (int r = 1; r <= NumRighe; ++r) {
    rows.emplace_back();
    for (int c = 1; c <= NumColonne; ++c)
      rows.back() += DrawnAs(LetteraCasella(c, r));
  }
  return rows;
}

std::vector<std::string> TelariumTest::DrawingOfSchema() {
  std::vector<std::string> rows;
  for (int r = 1; r <= NumRighe; ++r) {
    rows.emplace_back();
    const std::string& line = Schema(r + RigheIntestazione);
    for (std::size_t p = 0; p < line.size(); p += 2)
      rows.back() += DrawnAs(line[p]);
  }
  return rows;
}

std::string FirstDifference(std::string_view actual, std::string_view expected) {
  const auto [a, e] = std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
  if (a == actual.end() && e == expected.end()) return {};
  const auto around = [](std::string_view text, std::size_t at) {
    return std::string(text.substr(at, 20));
  };
  const auto offset = static_cast<std::size_t>(a - actual.begin());
  std::ostringstream words;
  words << "first difference at offset " << offset << ": \"" << around(actual, offset)
        << "\" where \"" << around(expected, offset) << "\" was expected (" << actual.size()
        << " and " << expected.size() << " bytes)";
  return words.str();
}

}  // namespace telarium
