#include "history/journal.h"

#include "support/drawn_crossword.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Words = std::vector<std::string>;

Cruciverba WithClue(const std::string& clue) {
  Cruciverba crossword = DrawnCrossword({"CASA", "#..#"});
  crossword.definizioni.Imposta(clue, 1, 1, Orizzontale);
  return crossword;
}

// The first clue of each step, ">" before the one where the line stands, and how it ends.
Words Told(const std::optional<Giornale>& read) {
  if (!read) return {};
  Words told;
  for (std::size_t i = 0; i < read->linea.Quanti(); ++i) {
    const Passo& step = read->linea[i];
    told.push_back((i == read->linea.Posto() ? ">" : "") + step.motivo + ' ' +
                   step.cruciverba.definizioni(1, 1, Orizzontale));
  }
  told.push_back(read->file.nome.string() + (read->HaLavoroPerso() ? " perso" : ""));
  return told;
}

// A file of steps, record by record, and what is known behind each.
struct Example {
  std::string bytes;
  std::vector<std::size_t> ends;
  std::vector<Words> told;

  void Add(const std::string& record, Words what) {
    bytes += record;
    ends.push_back(bytes.size());
    told.push_back(std::move(what));
  }
};

Example MakeExample() {
  Example example;
  Linea line({"apre", WithClue("a"), {}});
  FileDelCruciverba file{"uno", WithClue("a"), 1, false};
  const auto step = [&](const char* clue) {
    const Passo passo{"passo", WithClue(clue), std::chrono::sys_seconds(std::chrono::seconds(-5))};
    const std::string record = RecordDelPasso(line.Attuale(), passo);
    line.Aggiungi(passo);
    return record;
  };
  example.Add(InizioDelGiornale(file, line), {">apre a", "uno"});
  example.Add(step("b"), {"apre a", ">passo b", "uno perso"});
  example.Add(step("c"), {"apre a", "passo b", ">passo c", "uno perso"});
  line.VaiA(0);
  example.Add(RecordDelPosto(line, false), {">apre a", "passo b", "passo c", "uno"});
  example.Add(step("d"), {"apre a", ">passo d", "uno perso"});
  example.Add(RecordDellaRinuncia(), {"apre a", ">passo d", "uno"});
  example.Add(RecordDellaCorrezione(WithClue("d"), WithClue("e")),
              {"apre a", ">passo e", "uno perso"});
  line.Correggi(WithClue("e"));
  line.PostoDelFile(1);
  file = {"due", WithClue("e"), 2, true};
  example.Add(RecordDelFile(file, line), {"apre a", ">passo e", "due"});
  return example;
}

TEST(Journal, CutAnywhereItHoldsTheRecordsBeforeThat) {
  const Example example = MakeExample();
  std::size_t whole = 0;  // how many records
  for (std::size_t there = 0; there <= example.bytes.size(); ++there) {
    if (whole < example.ends.size() && there == example.ends[whole]) ++whole;
    const auto [outcome, read] = LeggiGiornale(example.bytes.substr(0, there));
    ASSERT_EQ(outcome, whole > 0 ? EsitoGiornale::Letto : EsitoGiornale::Nessuno) << there;
    ASSERT_EQ(Told(read), whole > 0 ? example.told[whole - 1] : Words()) << there;
    ASSERT_EQ(read ? read->byteSani : 0, whole > 0 ? example.ends[whole - 1] : 0) << there;
  }
  EXPECT_EQ(whole, example.ends.size());
}

TEST(Journal, AChangedByteCostsItsRecordAndThoseBehind) {
  const Example example = MakeExample();
  std::size_t record = 0;  // in which the byte lies
  for (std::size_t there = 0; there < example.bytes.size(); ++there) {
    if (there == example.ends[record]) ++record;
    for (const int bit : {0, 3, 7}) {
      std::string changed = example.bytes;
      changed[there] = static_cast<char>(changed[there] ^ (1 << bit));
      const auto read = LeggiGiornale(changed).giornale;
      ASSERT_EQ(Told(read), record > 0 ? example.told[record - 1] : Words()) << there;
    }
  }
}

TEST(Journal, ItsLastRecordTellsWhetherAllIsSaved) {
  const Example example = MakeExample();
  for (std::size_t i = 0; i < example.ends.size(); ++i) {
    const std::string bytes = example.bytes.substr(0, example.ends[i]);
    const bool saved = !example.told[i].back().ends_with(" perso");
    EXPECT_EQ(SenzaLavoroPerso(bytes, bytes), saved) << i;
    // The last record is enough; without all of it nothing is known.
    const std::size_t from = i > 0 ? example.ends[i - 1] : ByteDellInizio;
    EXPECT_EQ(SenzaLavoroPerso(bytes, bytes.substr(from)), saved) << i;
    for (std::size_t there = from; there < bytes.size(); ++there) {
      EXPECT_FALSE(SenzaLavoroPerso(bytes, bytes.substr(there + 1)));
      std::string changed = bytes;
      changed[there] = static_cast<char>(changed[there] ^ 4);
      EXPECT_FALSE(SenzaLavoroPerso(changed, changed));
    }
  }
}

TEST(Journal, ASoundRecordThatFitsNoLineEndsTheReading) {
  Linea line({"apre", WithClue("a"), {}});
  const std::string start = InizioDelGiornale({"uno", WithClue("a"), 1, false}, line);
  const Cruciverba large = DrawnCrossword({"A", "A", "A", "A"});
  const Cruciverba other = DrawnCrossword({"A", "A", "A", "B"});
  const std::string step = RecordDelPasso(large, {"passo", other, {}});
  line.Aggiungi({"passo", large, {}});
  for (const std::string& record :
       {RecordDelPosto(line, true), step, RecordDellaCorrezione(large, other), start.substr(12),
        RecordDelFile({"due", other, 1, false}, line)}) {
    const auto read = LeggiGiornale(start + record + RecordDellaRinuncia()).giornale;
    EXPECT_EQ(Told(read), (Words{">apre a", "uno"}));
    EXPECT_FALSE(read->rinunciato);
    EXPECT_EQ(LeggiGiornale(start.substr(0, 12) + record).giornale.has_value(),
              record == start.substr(12));
  }
}

TEST(Journal, OneOfANewerVersionIsKnownAsSuch) {
  std::string bytes = MakeExample().bytes;
  ++bytes[8];
  EXPECT_EQ(LeggiGiornale(bytes).esito, EsitoGiornale::Nuovo);
  EXPECT_FALSE(SenzaLavoroPerso(bytes, bytes));
}

TEST(Journal, AWholeLineComesBackAsItWas) {
  const Giornale read = LeggiGiornale(MakeExample().bytes).giornale.value();
  const Giornale again = LeggiGiornale(InizioDelGiornale(read.file, read.linea)).giornale.value();
  EXPECT_EQ(again.file, read.file);
  EXPECT_EQ(again.linea.PostoDelFile(), 1u);
  EXPECT_EQ(Told(again), Told(read));
  EXPECT_EQ(again.linea[1], read.linea[1]);
}

}  // namespace
}  // namespace telarium
