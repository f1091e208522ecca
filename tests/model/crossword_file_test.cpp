#include "model/crossword_file.h"

#include "model/crossword_reader.h"
#include "model/documento.h"
#include "model/words.h"
#include "platform/codepage.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

class CrosswordFile : public TelariumTest {
 protected:
  void ExpectReadError(std::string_view cause) {
    EXPECT_EQ(user.TakeTexts(),
              Texts{WithCause("Errore di lettura del file!", InFolder("uno.tlrm"), cause)});
  }

  // Lets another program leave these bytes in the snapshot, which are taken over the crossword.
  // True when nothing is told.
  bool Take(std::string_view bytes) {
    SnapshotFromOutside(bytes);
    RivediIstantanea();
    return user.Silent();
  }

  void ExpectWriteError(const Percorso& file, std::string_view cause) {
    EXPECT_EQ(user.TakeTexts(), Texts{WithCause("Errore di scrittura del file!", file, cause)});
  }
};

constexpr std::string_view NoCrossword =
    "il contenuto non è quello di un cruciverba, o è incompleto"_cp;
const Texts FormatError = {"Formato del file non valido! Esecuzione terminata"};

// A crossword of two columns and three rows in pieces. A file that ends within a piece can be read
// when at least `accepted` bytes of the piece are there.
const struct {
  std::string piece;
  std::size_t accepted;
} Small[] = {{"Autore     : Prova\r\nData       : 05-03-2024\r\nTipo       : Crociate Normale\r\n"
              "Dimensioni : 02x03\r\n].[.\r\nD*H.\r\n",
              999},
             {"H.t.\r\n", 1},
             {"  1  11-Prime due di cane\r\n", 7},
             {"  1  31-  rientrata\r\n", 7},
             {"  2  12-in gi\xF9\r\n", 7},
             {"[Colori caselle]\r\n", 16},
             {" 0  255  0 \r\n 0  0  0 \r\n", 1}};

std::string SmallFile() {
  std::string bytes;
  for (const auto& [piece, accepted] : Small)
    bytes += piece;
  return bytes;
}

std::string Header(const std::string& size) {
  return "a\r\nb\r\nc\r\nDimensioni : " + size + "\r\n";
}

TEST_F(CrosswordFile, IsWrittenToTheByteAndComesBack) {
  Draw({"CA", "#.", ".Z"});
  SetClue(1, 1, Orizzontale, "Prime due di cane");
  SetClue(1, 3, Orizzontale, "  rientrata");
  SetClue(2, 1, Verticale, "in giù"_cp);
  SetClue(2, 2, Orizzontale, "no word starts here");
  SetColour(1, 2, 255);
  SetLine(2, "*..*");  // marks out of date come into line
  const Percorso path = InFolder("uno.tlrm");
  EXPECT_TRUE(ScriviCruciverba(path));
  EXPECT_EQ(FirstDifference(ReadFile(path), SmallFile()), "");
  EXPECT_EQ(Schema(6), "**..");

  Draw({"#"});
  ASSERT_EQ(ApriCruciverba(path), Apertura::Intera);
  EXPECT_EQ(Schema(6) + Definizione(1, 3, Orizzontale), "**..  rientrata");
  EXPECT_TRUE(ScriviCruciverba(path));
  EXPECT_EQ(FirstDifference(ReadFile(path), SmallFile()), "");
}

TEST_F(CrosswordFile, HoldsTheLargestGrid) {
  Texts rows(30, std::string(53, '.'));
  rows[11].replace(0, 6, "CA#.AZ");
  Draw(rows);
  SetClue(4, 12, Orizzontale, "Da A\r\na Z");
  ASSERT_TRUE(ScriviCruciverba(InFolder("uno.tlrm")));
  const std::string bytes = ReadFile(InFolder("uno.tlrm"));
  EXPECT_NE(bytes.find("\r\n].[.D*H.[.t.H."), std::string::npos);
  EXPECT_NE(bytes.find("\r\n  4 121-Da A a Z\r\n[Col"), std::string::npos);
  Draw({"#"});
  ASSERT_EQ(ApriCruciverba(InFolder("uno.tlrm")), Apertura::Intera);
  EXPECT_EQ(DrawingOfSchema(), rows);
}

TEST_F(CrosswordFile, FaultIsToldAndEndsTheReading) {
  for (const char* size :
       {"00x03", "03x00", "54x30", "53x31", "2x3", "102x3", "due", "", "99999999999"}) {
    Draw({"AB"});
    EXPECT_FALSE(Take(Header(size))) << size;
    EXPECT_EQ(user.TakeTexts(), FormatError);
    EXPECT_EQ(NumColonne + NumRighe, 0);
  }
  const std::string nul(1, '\0');
  const std::string grid = Header("02x02") + "H.H.\r\nH.H.\r\n";
  for (const std::string& bytes :
       {std::string(), Header("02x02") + "H.H.\r\n", Header("02x01") + "H.\x19.\r\n",
        "a" + nul + grid, Header("02x01") + "H" + nul + "H.\r\n", grid + "  1  11-" + nul,
        grid + "\r\n  1  12-x\r\n", grid + "  0  11-x", grid + " 54  11-x", grid + "  1  01-x",
        grid + "  1 311-x", grid + " -1  11-x", grid + "  1  10-x", grid + "  1  13-x",
        grid + "  1  11-letta\r\n[Colore caselle]\r\n  1  12-persa\r\n"}) {
    EXPECT_FALSE(Take(bytes));
    EXPECT_EQ(user.TakeTexts(),
              Texts{WithCause("Errore di lettura del file!", PercorsoIstantanea(), NoCrossword)})
        << bytes;
  }
  EXPECT_EQ(Definizione(1, 1, Orizzontale) + Definizione(1, 1, Verticale), "letta");
}

TEST_F(CrosswordFile, TheFirstAndTheLastOfAllThatIsCountedAreTaken) {
  const std::string grid = Header("02x01") + "H.\x1A.\r\n";  // the least byte of a cell
  ASSERT_TRUE(Take(grid + "  1  11-a\r\n 53 302-z\r\n"));
  EXPECT_EQ(Definizione(1, 1, Orizzontale) + Definizione(53, 30, Verticale), "az");
  EXPECT_EQ(Schema(5), std::string("..\0.", 4));
  for (const char* size : {"01x01", "53x01", "01x30"})
    EXPECT_TRUE(DimensioniDichiarate(Unisci("Dimensioni : ", size))) << size;
}

TEST_F(CrosswordFile, AClueWhereNoWordStartsIsReadAndLeftOutOfTheNextFile) {
  const std::string clue = "  2  11-in mezzo\r\n";
  const std::string rest = "  1  11-inizio\r\n[Colori caselle]\r\n 0 \r\n 0 \r\n 0 \r\n";
  const std::string grid = Header("03x01") + "].[.t.\r\n";
  ASSERT_EQ(ApriCruciverba(WriteFile("uno.tlrm", grid + clue + rest)), Apertura::Intera);
  EXPECT_EQ(Definizione(2, 1, Orizzontale), "in mezzo");
  EXPECT_EQ(FirstDifference(TestoDelCruciverba().value(), grid + rest), "");
}

TEST_F(CrosswordFile, ARefusedFileLeavesHeaderAndSizeOfTheOpenCrossword) {
  Draw({"AB", "CD"});
  const auto before = TestoDelCruciverba();
  for (const std::string& bytes :
       {std::string("a\r\nb\r\n"), Header("54x30"), Header("00x03"), std::string("\0\0", 2)}) {
    EXPECT_EQ(ApriCruciverba(WriteFile("no.tlrm", bytes)), Apertura::Rifiutata);
    EXPECT_EQ(user.TakeTexts().size(), 1u);
    EXPECT_EQ(TestoDelCruciverba(), before) << bytes;
    EXPECT_EQ(NumColonne * 10 + NumRighe, 22);
  }
}

TEST_F(CrosswordFile, CutAnywhereItIsReadOrRefused) {
  std::string before;
  for (const auto& [piece, accepted] : Small) {
    for (std::size_t there = 1; there <= piece.size(); ++there) {
      const auto fault = LeggiContenuto(before + piece.substr(0, there)).guasto;
      EXPECT_EQ(!fault || !fault->Grave(), there >= accepted) << piece.substr(0, there);
    }
    before += piece;
  }
}

TEST_F(CrosswordFile, OddGridLinesAreTakenAsTheyAreAndWrittenWithTheirMarksInStep) {
  for (const std::string line : {"].", "].[", "].[.t.", "", "]*D."}) {
    ASSERT_TRUE(Take(Header("02x01") + line + "\r\n")) << line;
    ASSERT_TRUE(ScriviCruciverba(InFolder("uno.tlrm")));
    EXPECT_EQ(ReadFile(InFolder("uno.tlrm")), Header("02x01") + (line == "]*D." ? "].D*" : line) +
                                                  "\r\n[Colori caselle]\r\n 0 \r\n 0 \r\n");
  }
  EXPECT_EQ(Schema(5), "C.**");
}

TEST_F(CrosswordFile, ColoursThatAreMissingStayAsTheyWere) {
  using Colours = std::vector<Colore>;
  const std::pair<const char*, Colours> cases[] = {
      {"", {7, 7, 7}},
      {"[colori caselle]\r\n 1 \r\n 2 \r\n 3 ", {1, 2, 3}},
      {"[COLORI CASELLE]\n-1  2\r\r3  4  5", {-1, 2, 3}},
      {"[Colori caselle]\r\n 1 \r\n 2", {1, 2, 7}},
      {"[Colori caselle]\r\n 1  2x 3", {1, 2, 7}},
      {"[Colori caselle]\r\n 1  99999999999  3", {1, 7, 7}},
  };
  for (const auto& [end, colours] : cases) {
    for (int c = 1; c <= 3; ++c)
      SetColour(c, 1, 7);
    EXPECT_TRUE(Take(Header("03x01") + "H.H.H.\r\n" + end));
    EXPECT_EQ((Colours{ColoreCasella(1, 1), ColoreCasella(2, 1), ColoreCasella(3, 1)}), colours)
        << end;
  }
}

TEST_F(CrosswordFile, OpeningClearsTheEarlierCrosswordAndReadingDoesNot) {
  const Percorso path = WriteFile("uno.tlrm", SmallFile());
  SetClue(9, 9, Verticale, "di prima");
  SetColour(9, 9, 5);
  EXPECT_TRUE(Take(SmallFile()));
  EXPECT_EQ(Definizione(9, 9, Verticale), "di prima");
  EXPECT_EQ(ColoreCasella(9, 9), 5);
  EXPECT_EQ(ApriCruciverba(path), Apertura::Intera);
  EXPECT_EQ(Definizione(9, 9, Verticale), "");
  EXPECT_EQ(ColoreCasella(9, 9), 0);
}

TEST_F(CrosswordFile, ACutFileShowsNothingOfTheEarlierCrossword) {
  Draw({"PRI", "MAX", "QUI"});
  EXPECT_EQ(ApriCruciverba(WriteFile("uno.tlrm", Header("03x03") + "].[.t.\r\n")),
            Apertura::Parziale);
  ExpectReadError(NoCrossword);
  EXPECT_EQ(Drawing(), (std::vector<std::string>{"CAZ", "...", "..."}));
  EXPECT_EQ(Schema(6) + Schema(7), "");
}

TEST_F(CrosswordFile, WhatTheLaboratoryKeepsStaysWithItsCrosswordAndIsNotPublished) {
  const std::string section = "[Laboratorio]\r\nproprie = ZZ\r\naltro = 1\r\n";
  const std::string bytes = SmallFile() + section;
  ASSERT_EQ(ApriCruciverba(WriteFile("uno.tlrm", bytes)), Apertura::Intera);
  ASSERT_TRUE(ScriviIstantanea());
  EXPECT_EQ(FirstDifference(TestoDelCruciverba().value(), bytes), "");
  EXPECT_EQ(FirstDifference(TestoDaPubblicare().value(), SmallFile()), "");
  ASSERT_TRUE(Take(SmallFile())) << "a reading without a section clears nothing";
  EXPECT_EQ(IlDocumento().Valore().laboratorio->proprie, Texts{"ZZ"});

  const std::string large = "[Laboratorio]\r\n" + std::string(1u << 20, 'x');
  EXPECT_EQ(ApriCruciverba(WriteFile("uno.tlrm", SmallFile() + large)), Apertura::Parziale);
  ExpectReadError("la sezione [Laboratorio] è troppo grande"_cp);
  EXPECT_EQ(FirstDifference(TestoDelCruciverba().value(), SmallFile()), "");

  Change([](Cruciverba& crossword) { crossword.laboratorio.Proprio().proprie = {"ZZ"}; });
  ASSERT_TRUE(ApriTestoDiCruciverba(bytes)) << "from a page";
  EXPECT_EQ(FirstDifference(TestoDelCruciverba().value(), SmallFile()), "");
}

TEST_F(CrosswordFile, IsRefusedPastSixteenMegabytesAndMissingEndsTheProgram) {
  const Percorso path = WriteFile("uno.tlrm", SmallFile());
  std::filesystem::resize_file(path, 16777216);  // zeros behind the colours, which nobody reads
  EXPECT_EQ(ApriCruciverba(path), Apertura::Intera);
  std::filesystem::resize_file(path, 16777217);
  // What cannot be read at all costs the open crossword nothing.
  SetClue(1, 1, Orizzontale, "resta");
  EXPECT_EQ(ApriCruciverba(path), Apertura::Rifiutata);
  ExpectReadError("il file è troppo grande"_cp);
  EXPECT_EQ(Definizione(1, 1, Orizzontale), "resta");

  EXPECT_EQ(ApriCruciverba(InFolder("perché.tlrm")), Apertura::Assente);
  EXPECT_THROW(TerminaSenzaCruciverba("perché.tlrm"), ProgramFailed);
  const Messaggio message = user.TakeMessages().at(0);
  EXPECT_EQ(message.testo,
            "Errore: Cruciverba  perché.tlrm  Non trovato! Esecuzione terminata."_cp);
  EXPECT_EQ(message.titolo, "Telarium");
  EXPECT_EQ(message.icona, Icona::Informazione);
}

TEST_F(CrosswordFile, WhatCannotBeWrittenIsToldAndTheOldFileStays) {
  Draw({"\xE5\x80"});
  ASSERT_TRUE(ScriviCruciverba(InFolder("uno.tlrm")));
  const std::string old = ReadFile(InFolder("uno.tlrm"));
  EXPECT_NE(old.find("\r\n\xFF.\x9A.\r\n"), std::string::npos);
  Draw({"A\xE6"});  // past the last code that the shift leaves room for
  EXPECT_FALSE(ScriviCruciverba(InFolder("uno.tlrm")));
  ExpectWriteError(InFolder("uno.tlrm"), CruciverbaNonScrivibile);
  EXPECT_EQ(ReadFile(InFolder("uno.tlrm")), old);
  Draw({"AB"});
  EXPECT_FALSE(ScriviCruciverba(InFolder("manca/uno.tlrm")));
  ExpectWriteError(InFolder("manca/uno.tlrm"), "il file o la cartella non esiste");
}

TEST_F(CrosswordFile, WhatIsWrittenCanBeReadAgain) {
  Draw({"CA"});
  SetClue(1, 1, Orizzontale, std::string("a\0b\r\nc", 6));
  ASSERT_TRUE(ScriviCruciverba(InFolder("x.tlrm")));
  ASSERT_EQ(ApriCruciverba(InFolder("x.tlrm")), Apertura::Intera);
  EXPECT_EQ(Definizione(1, 1, Orizzontale), "a b c");
  SetClue(1, 1, Orizzontale, std::string(MaxByteCruciverba, 'x'));
  EXPECT_FALSE(ScriviCruciverba(InFolder("x.tlrm")));
  ExpectWriteError(InFolder("x.tlrm"), CruciverbaNonScrivibile);
  EXPECT_EQ(ApriCruciverba(InFolder("x.tlrm")), Apertura::Intera) << "the old file stays";
}

}  // namespace
}  // namespace telarium
