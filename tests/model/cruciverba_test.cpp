#include "model/cruciverba.h"

#include "model/crossword_reader.h"
#include "model/crossword_writer.h"
#include "model/derivation.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "support/drawn_crossword.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* Head = "a\r\nb\r\nc\r\nDimensioni : 03x02\r\n";
constexpr const char* Grid = "].[.D*\r\nH.H.H.\r\n";
constexpr const char* Clues = "  1  11-Prima\r\n  3  22-senza inizio\r\n 53 302-fuori\r\n";
constexpr const char* Colours = "[Colori caselle]\r\n 0  0 \r\n 0  7 \r\n-1  0 \r\n";
constexpr const char* Section =
    "[Laboratorio]\r\nbloccate = 1,1,O 53,30,V\r\nproprie = CA \xC0\xC0\r\nvietate = AB\r\n"
    "simmetria = 180\r\nnuova = chi sa\r\nsenza uguale\r\n";

std::string WholeFile() {
  return Unisci(Head, Grid, Clues, Colours, Section);
}

// The section as it is written after these lines have been read.
std::string SectionOf(const std::string& lines) {
  const auto read = LeggiLaboratorio(lines);
  return read ? SezioneDelLaboratorio(*read).value_or("cannot be written") : "too large";
}

Texts RowsOf(const Cruciverba& crossword) {
  return {crossword.griglia.begin(), crossword.griglia.end()};
}

TEST(CrosswordValue, HoldsAllThatItsFileSays) {
  const auto [crossword, reached, fault] = LeggiContenuto(WholeFile());
  EXPECT_FALSE(fault);
  EXPECT_EQ(reached, ParteDelFile::Laboratorio);
  EXPECT_EQ(RowsOf(crossword), (Texts{"C.A.**", "......"}));
  EXPECT_EQ((*crossword.intestazione)[0] + (*crossword.intestazione)[3], "aDimensioni : 03x02");
  EXPECT_EQ(crossword.definizioni(53, 30, Verticale) + crossword.definizioni(1, 1, Orizzontale),
            "fuoriPrima");
  EXPECT_EQ(crossword.definizioni.Quanti(), 3u);
  EXPECT_EQ(crossword.colori(2, 2) * 10 + crossword.colori(3, 1), 69);
  const Laboratorio& kept = crossword.laboratorio;
  EXPECT_EQ(kept.bloccate,
            (std::vector<InizioDiParola>{{{1, 1}, Orizzontale}, {{53, 30}, Verticale}}));
  EXPECT_EQ(kept.proprie, (Texts{"CA", "ÀÀ"_cp.data()}));
  EXPECT_EQ(kept.vietate, Texts{"AB"});
  EXPECT_EQ(kept.simmetria, Simmetria::MezzoGiro);
  EXPECT_EQ(kept.altreRighe, (Texts{"nuova = chi sa", "senza uguale"}));
  // A clue where no word starts is in no file.
  EXPECT_EQ(FirstDifference(ContenutoDelFile(crossword).value(),
                            Unisci(Head, Grid, "  1  11-Prima\r\n", Colours, Section)),
            "");
}

TEST(CrosswordValue, WithNothingOfTheLaboratoryItsFileIsTheDescribedOne) {
  const std::string described = Unisci(Head, Grid, "  1  11-Prima\r\n", Colours);
  for (const char* nothing : {"", "[Laboratorio]\r\n", "[laboratorio]\r\n\r\nproprie =\r\n  \r\n",
                              " FINE -->\r\n<html>\r\nproprie = X\r\n"}) {
    const LetturaDelFile read = LeggiContenuto(described + nothing);
    EXPECT_FALSE(read.guasto) << nothing;
    EXPECT_EQ(FirstDifference(ContenutoDelFile(read.cruciverba).value(), described), "") << nothing;
  }
}

TEST(CrosswordValue, CutAnywhereWhatWasReadIsWrittenAndComesBack) {
  const std::string whole = WholeFile();
  for (std::size_t there = 0; there <= whole.size(); ++there) {
    const Cruciverba read = LeggiContenuto(whole.substr(0, there)).cruciverba;
    const auto written = ContenutoDelFile(read);
    ASSERT_TRUE(written) << there;
    if (read.colonne == 0) continue;
    const LetturaDelFile again = LeggiContenuto(*written);
    EXPECT_FALSE(again.guasto) << there;
    EXPECT_EQ(again.cruciverba.laboratorio, read.laboratorio) << there;
    EXPECT_EQ(ContenutoDelFile(again.cruciverba), written) << there;
    EXPECT_EQ(LeggiContenuto(ContenutoDelFile(again.cruciverba).value()).cruciverba,
              again.cruciverba)
        << there;
  }
}

TEST(CrosswordValue, AFaultHasItsPartAndItsLine) {
  using enum ParteDelFile;
  const std::string nul(1, '\0');
  const std::string grid = Unisci(Head, Grid);
  const std::string lines(MaxByteLaboratorio - 100, 'x');
  const struct {
    std::string contents;
    ParteDelFile part;
    int line;
  } cases[] = {
      {"", Intestazione, 1},
      {"a\r\nb\r\n", Intestazione, 3},
      {"a\r\n" + nul, Intestazione, 2},
      {"a\r\nb\r\nc\r\nDimensioni : 54x02\r\n", ParteDelFile::Dimensioni, 4},
      {Unisci(Head, "].[.D*"), Griglia, 6},
      {Unisci(Head, "].[.D*\nH.\x19.H."), Griglia, 6},
      {Unisci(grid, "  1  11-x\r\n\r\n"), Definizioni, 8},
      {Unisci(grid, "  1  11-x\r\n[Laboratorio]\r\n"), Definizioni, 8},
      {Unisci(grid, "  0  11-x\r\n"), Definizioni, 7},
      {Unisci(grid, "  1  01-x\r\n"), Definizioni, 7},
      {Unisci(grid, "[Colori caselle]\r\n0 0\r\n0 x"), Colori, 9},
      {Unisci(grid, "[Colori caselle]\r\nx\r\n[Laboratorio]\r\n", lines, "\r\n", lines),
       ParteDelFile::Laboratorio, 9},
  };
  for (const auto& [contents, part, line] : cases) {
    const auto fault = LeggiContenuto(contents).guasto;
    ASSERT_TRUE(fault) << contents.substr(0, 100);
    EXPECT_EQ(fault->parte, part) << contents.substr(0, 100);
    EXPECT_EQ(fault->riga, line) << contents.substr(0, 100);
    EXPECT_NE(fault->motivo, "");
  }
  for (const char* good : {"", "[Colori caselle]", "[Colori caselle]\r\n 1", "  3  22-x"})
    EXPECT_FALSE(LeggiContenuto(grid + good).guasto) << good;
}

TEST(CrosswordValue, ReadingOverAnotherKeepsWhatTheFileDoesNotName) {
  Cruciverba before = LeggiContenuto(WholeFile()).cruciverba;
  before.definizioni.Imposta("resta", 2, 2, Verticale);
  const std::string grid = Unisci(Head, Grid, "  1  11-\r\n");
  const Cruciverba after = LeggiContenuto(grid + "[Colori caselle]\r\n 5", before).cruciverba;
  EXPECT_EQ(after.definizioni(2, 2, Verticale) + after.definizioni(1, 1, Orizzontale), "resta");
  EXPECT_EQ(after.colori(1, 1) * 10 + after.colori(2, 2), 57);
  EXPECT_EQ(after.laboratorio, before.laboratorio);
  const std::string section = Unisci(grid, "[Colori caselle]\r\nrotti\r\n[LABORATORIO]\r\nx=1");
  EXPECT_EQ(LeggiContenuto(section, before).cruciverba.laboratorio->altreRighe, Texts{"x=1"});
  EXPECT_EQ(LeggiContenuto(section, {}, Coda::Estranea).cruciverba.laboratorio,
            Condiviso<Laboratorio>{});
}

TEST(CrosswordValue, SectionIsTakenAsFarAsItIsKnownAndTheRestIsKept) {
  const std::pair<const char*, const char*> cases[] = {
      {"BLOCCATE=1,2,O  3,4,V", "bloccate = 1,2,O 3,4,V"},
      {"bloccate = 53,30,V 54,1,O 1,31,O 0,1,V 1,2,X 1,2 ,,O -1,2,O 1,2,OO 99999999999,1,O",
       "bloccate = 53,30,V\r\nbloccate = 54,1,O 1,31,O 0,1,V 1,2,X 1,2 ,,O -1,2,O 1,2,OO "
       "99999999999,1,O"},
      {"proprie = A\r\nvietate = C\r\nproprie = B", "proprie = A B\r\nvietate = C"},
      {"vietate = A\tB C", "vietate = C\r\nvietate = A\tB"},
      {"simmetria = quarto\r\nsimmetria = verticale", "simmetria = verticale"},
      {"simmetria = no", "simmetria = no"},
      {"simmetria = esagono", "simmetria = esagono"},
      {"  nuova=1  \r\nproprie = A\r\n[Altro]\r\nproprieta = x\r\n= y\r\n=",
       "proprie = A\r\n  nuova=1  \r\n[Altro]\r\nproprieta = x\r\n= y\r\n="},
  };
  for (const auto& [lines, written] : cases) {
    const std::string section = Unisci("[Laboratorio]\r\n", written, "\r\n");
    EXPECT_EQ(SectionOf(lines), section);
    EXPECT_EQ(SectionOf(std::string(written)), section) << "read again";
  }
}

TEST(CrosswordValue, WhatTheSectionCannotHoldIsInNoFile) {
  const auto refused = [](Laboratorio kept) { return !SezioneDelLaboratorio(kept); };
  for (const char* word : {"", "LUNA PARK", "A\nB", "A\tB"})
    EXPECT_TRUE(refused({.proprie = {"CASA", word}})) << word;
  EXPECT_TRUE(refused({.altreRighe = {"x = 1\r\nproprie = Y"}}));
  // "vietate = " and the line end belong to the bound.
  EXPECT_FALSE(refused({.vietate = {std::string(MaxByteLaboratorio - 12, 'A')}}));
  EXPECT_TRUE(refused({.vietate = {std::string(MaxByteLaboratorio - 11, 'A')}}));
  Cruciverba crossword = DrawnCrossword({"AB"});
  EXPECT_TRUE(ContenutoDelFile(crossword));
  crossword.laboratorio.Proprio().vietate = {"A B"};
  EXPECT_FALSE(ContenutoDelFile(crossword));
  // A line that would come out longer than it was is not taken, since it could not be written.
  const std::string lines = "vietate=" + std::string(MaxByteLaboratorio - 12, 'A');
  EXPECT_NE(SectionOf(lines), "too large");
  EXPECT_EQ(SectionOf(lines + 'A'), "too large");
}

TEST(CrosswordValue, AClueComesBackWithItsColumn) {
  Cruciverba crossword = DrawnCrossword({"ABC", "D#E"});
  crossword.definizioni.Imposta("ultima", 3, 1, Verticale);
  crossword.colori.Imposta(255, 3, 2);
  const Cruciverba before = crossword;
  Ridimensiona(crossword, 2, 1);
  EXPECT_EQ(RowsOf(crossword), Texts{"A.B."});
  EXPECT_EQ((*crossword.intestazione)[3], "Dimensioni : 02x01");
  EXPECT_NE(crossword, before);
  EXPECT_EQ(ContenutoDelFile(crossword).value().find("ultima"), std::string::npos);
  Ridimensiona(crossword, 3, 2);
  EXPECT_EQ(CarattereDi(crossword, {3, 1}), CellaVuota);
  for (const auto& [cell, letter] :
       {std::pair(Casella{3, 1}, 'C'), {Casella{1, 2}, 'D'}, {{2, 2}, CellaNera}, {{3, 2}, 'E'}})
    ScriviCarattere(crossword, cell, letter);
  crossword.griglia[1].Proprio()[3] = CellaNera;  // its mark
  EXPECT_EQ(crossword, before);
  crossword.definizioni.Imposta("", 3, 1, Verticale);
  EXPECT_EQ(crossword.definizioni, Cruciverba().definizioni) << "an empty clue is none";
}

TEST(CrosswordValue, EveryCellKnowsTheWordsThatRunThroughIt) {
  Cruciverba crossword = DrawnCrossword({"CA#E", "#B#.", "..#T"});
  crossword.griglia[2] = std::string("X");  // what the line does not reach is white
  const Derivati derived = Deriva(crossword);
  Texts words;
  for (const Slot& word : derived.Parole())
    words.push_back(derived.Lettere(word));
  EXPECT_EQ(words, (Texts{"CA", "AB.", "E..", "X..."}));
  // Horizontal and vertical, "-" where there is none.
  std::string through;
  for (int r = 1; r <= derived.Righe(); ++r) {
    for (int c = 1; c <= derived.Colonne(); ++c) {
      for (const int d : Direzioni) {
        const int word = derived.ParolaPer({c, r}, d);
        through += word == Derivati::NessunaParola ? '-' : static_cast<char>('0' + word);
      }
    }
    through += '/';
  }
  EXPECT_EQ(through, "0-01---2/---1---2/3-313-32/");
  EXPECT_EQ(derived.Numero({4, 1}) * 10 + derived.Numero({1, 3}), 34);
  EXPECT_TRUE(derived.Inizia({2, 1}, Verticale) && !derived.Inizia({2, 1}, Orizzontale));
  EXPECT_TRUE(Deriva(Cruciverba()).Parole().empty());
}

TEST(CrosswordValue, ACopyKeepsWhatTheOtherOneChanges) {
  Cruciverba crossword = LeggiContenuto(WholeFile()).cruciverba;
  const Cruciverba kept = crossword;
  const Cruciverba again = LeggiContenuto(WholeFile()).cruciverba;
  EXPECT_TRUE(kept.griglia[0].StessoDi(crossword.griglia[0]));
  ScriviCarattere(crossword, {1, 1}, 'Z');
  crossword.definizioni.Imposta("altra", 1, 1, Orizzontale);
  crossword.definizioni.Imposta({}, 3, 2, Verticale);
  crossword.colori.Imposta(9, 2, 2);
  crossword.laboratorio.Proprio().proprie.clear();
  EXPECT_NE(crossword, kept);
  EXPECT_EQ(kept, again);
  EXPECT_TRUE(kept.griglia[1].StessoDi(crossword.griglia[1]));
}

}  // namespace
}  // namespace telarium
