#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>

#include "dictionary/masked_search.h"
#include "editor/fill_command.h"
#include "editor/placed_word.h"
#include "editor/settings.h"
#include "model/crossword_file.h"
#include "model/words.h"
#include "platform/codepage.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Words = std::vector<std::string>;

// A fill that comes to a dead end in its second word when LIBRO is the first, none when CARTA is.
constexpr const char* TeeGrid = "..... ##.## ##.## ##.##";
constexpr const char* TeeWithLibro = "LIBRO ##.## ##.## ##.##";
constexpr const char* TeeWithCarta = "CARTA ##O## ##S## ##A##";
const Words TeeWords = {"CARTA", "LIBRO", "ROSA"};
constexpr double DrawCarta = 0, DrawLibro = 0.5;

std::string Joined(const Words& rows) {
  std::string joined;
  for (const std::string& row : rows)
    joined += joined.empty() ? row : ' ' + row;
  return joined;
}

// "?" for each of the letters, by default those that are drawn at random, where `pattern` has it.
std::string LettersHidden(std::string drawing, std::string_view pattern,
                          std::string_view letters = "ABCDEFGHILMNOPQRSTUVZ") {
  for (std::size_t i = 0; i < std::min(drawing.size(), pattern.size()); ++i)
    if (pattern[i] == '?' && letters.find(drawing[i]) != letters.npos) drawing[i] = '?';
  return drawing;
}

// Grids are drawings with a blank between their rows.
class ExtractionTest : public TelariumTest {
 protected:
  static void DrawJoined(const std::string& drawing) {
    std::istringstream lines(drawing);
    Draw({std::istream_iterator<std::string>(lines), {}});
  }

  ComandoEstrazione command{[this](const AvanzamentoEstrazione& progress) {
    polls.push_back(progress);
    return true;
  }};
  std::vector<AvanzamentoEstrazione> polls;

  void StopWhen(const SegueEstrazione& stop) {
    command.Segue([=, this](const AvanzamentoEstrazione& progress) {
      polls.push_back(progress);
      return !stop(progress);
    });
  }

  // Runs the fill, checks what holds at the end of each, and gives the grid.
  std::string Run(EsitoEstrazione expected = EsitoEstrazione::Completa) {
    ModoGriglia = 1;
    MarkModified(false);
    user.pointerShapes.clear();
    EXPECT_EQ(command.EseguiEstrazione(), expected);
    EXPECT_EQ(ModoGriglia, 0);
    EXPECT_EQ(SchemaModificato, Vero);
    EXPECT_EQ(PuntatoreMouse, 0);
    EXPECT_EQ(user.pointerShapes, (std::vector<int>{11, 0}));
    EXPECT_EQ(Drawing(), DrawingOfSchema());
    return Joined(Drawing());
  }

  // The polls as "attempt:placed/all".
  std::string Polls() const {
    std::string joined;
    for (const auto& p : polls)
      joined += Unisci(' ', p.tentativo, ':', p.slotCollocati, '/', p.slotTotali);
    return joined;
  }
};

TEST_F(ExtractionTest, CancelAtTheQuestionChangesNothing) {
  EXPECT_EQ(command.EstraiSchema(), std::nullopt) << "no crossword, no question";
  DrawJoined("CA. #..");
  SetClue(1, 1, 1, "Una sillaba");
  ModoGriglia = 1;
  user.Answer(Risposta::Annulla);
  EXPECT_EQ(command.EstraiSchema(), std::nullopt);
  EXPECT_EQ(Joined(Drawing()), "CA. #..");
  EXPECT_EQ(Definizione(1, 1, 1), "Una sillaba");
  EXPECT_EQ(SchemaModificato, Falso);
  EXPECT_EQ(ModoGriglia, 1);
  EXPECT_TRUE(user.pointerShapes.empty());
  const auto messages = user.TakeMessages();
  ASSERT_EQ(messages.size(), 1u);
  EXPECT_EQ(messages[0].testo,
            "L'estrazione automatica delle parole dal vocabolario, azzera il cruciverba corrente "
            "ed inoltre richiede un processore molto veloce, è possibile interrompere questa "
            "operazione solamente durante i messaggi di errore sulla estrazione, si desidera "
            "comunque procedere?"_cp);
  EXPECT_EQ(messages[0].titolo, "Estrazione automatica parole");
  EXPECT_EQ(messages[0].pulsanti, Pulsanti::OkAnnulla);
}

TEST_F(ExtractionTest, LettersAndCluesOfWordsGoAndTheSnapshotHoldsTheNewOnes) {
  DrawJoined("XXXXX ##X## ##.## ##X##");
  for (const auto& [c, d] : {std::pair(1, 1), {1, 2}, {3, 2}})
    SetClue(c, 1, d, "of a start cell");
  SetClue(2, 1, 1, "of another cell");
  SetClue(6, 1, 2, "of a column taken away");
  OpenDictionary(TeeWords);
  machine.draws = {DrawCarta};
  EXPECT_EQ(Run(), TeeWithCarta);
  EXPECT_EQ(Definizione(1, 1, 1) + Definizione(1, 1, 2) + Definizione(3, 1, 2), "");
  EXPECT_EQ(Definizione(2, 1, 1) + Definizione(6, 1, 2), "of another cellof a column taken away");
  const std::string rows = "\r\n].[.l.n.[.\r\nD*D*i.D*D*\r\nD*D*m.D*D*\r\nD*D*[.D*D*\r\n";
  EXPECT_NE(ReadFile(PercorsoIstantanea()).find(rows), std::string::npos);
}

TEST_F(ExtractionTest, ReachesTheLastRowAndColumnOfTheLargestGrid) {
  std::vector<std::string> rows(MaxRighe, std::string(MaxColonne, '#'));
  for (int i = 0; i < 4; ++i)
    rows[MaxRighe - 1][MaxColonne - 1 - i] = rows[MaxRighe - 1 - i][MaxColonne - 1] = 'X';
  Draw(rows);
  OpenDictionary({"ROSA"});
  Run();
  EXPECT_EQ(Drawing().back().substr(MaxColonne - 5), "#ROSA");
  EXPECT_EQ(ParolaCasella(MaxColonne, MaxRighe - 3, Verticale), "ROSA");
}

TEST_F(ExtractionTest, DeadEndsAreTold) {
  struct Row {
    const char* drawing;
    Words words, laterWords;  // the dictionary, and the one from the second slot on if another
    const char* message;
    const char* filled;  // "?" any letter
  };
  // A word that was placed is in the dictionary: a crossing fails only when that changes meanwhile.
  // clang-format off
  const Row rows[] = {
      {"..#.. ##### #....", {"APE"}, {},
       "Parola orizzontale 3 alle coordinate 2,3 non trovata nel vocabolario: '....'",
       "??#?? ##### #????"},
      {TeeGrid, {"LIBRO"}, {},
       "Parola verticale 2 alle coordinate 3,1 non trovata nel vocabolario: 'B...'",
       "LIBRO ##?## ##?## ##?##"},
      {"#.... #.### #.### #.### #.###", {"CARTA"}, {"CASA", "CURVA"},
       "Sulla parola orizzontale alla posizione 2,1 c'è un incrocio verticale non trovato nel "
       "vocabolario: 'CARTA'",
       "#CASA #A### #R### #T### #A###"},
      {TeeGrid, {"CARTA"}, {"ROSA", "CURVA"},
       "Sulla parola verticale alla posizione 3,1 c'è un incrocio orizzontale non trovato nel "
       "vocabolario: 'CARTA'",
       TeeWithCarta},
      {"#... #.## #.## #.##", {"SOLE"}, {"SIA", "CURVA"},
       "Sulla parola orizzontale alla posizione 2,1 c'è un incrocio verticale non trovato nel "
       "vocabolario: 'SOLE'",
       "#SIA #O## #L## #E##"},
      // Nothing is told of three letters, and slots of other lengths are not looked at.
      {"... #.# #.#", {"LIBRO"}, {}, "", "??? #?# #?#"},
      {"... #.# #.#", {"APE"}, {"PUO"}, "", "APE #U# #O#"},
      {".. ..", {"APE"}, {}, "", "?? ??"},
      {"................", {"APE"}, {}, "", "????????????????"},
  };
  // clang-format on
  user.AnswerAllDeadEnds(Risposta::Si);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.filled);
    DrawJoined(row.drawing);
    OpenDictionary(row.words);
    StopWhen([&](const AvanzamentoEstrazione& progress) {
      if (progress.slotCollocati == 1 && !row.laterWords.empty()) OpenDictionary(row.laterWords);
      return false;
    });
    EXPECT_EQ(LettersHidden(Run(), row.filled), row.filled);
    constexpr const char* closingLines =
        "\r<Si> per accettare\r<No> per iniziare l'estrazione da capo\r"
        "<Annulla> per interrompere l'estrazione\rVa bene ?\r";
    Words messages;
    if (*row.message) messages.push_back(DaUtf8(row.message) + closingLines);
    EXPECT_EQ(user.TakeTexts(), messages);
  }
}

TEST_F(ExtractionTest, AnswerNoStartsAnewAndCancelLeavesTheGridAsItIs) {
  DrawJoined(TeeGrid);
  OpenDictionary(TeeWords);
  machine.draws = {DrawLibro, DrawCarta};
  user.AnswerDeadEnd(Risposta::No);
  EXPECT_EQ(Run(), TeeWithCarta);
  EXPECT_EQ(Polls(), " 1:0/0 1:1/2 2:0/0 2:1/2 2:2/2");

  machine.draws = {DrawLibro};
  user.AnswerDeadEnd(Risposta::Annulla);
  EXPECT_EQ(Run(EsitoEstrazione::Annullata), TeeWithLibro);
  EXPECT_EQ(user.TakeTexts().size(), 2u);
}

// Nobody needs a file for each of a thousand attempts; a black cell with a colour makes a redraw
// write one.
TEST_F(ExtractionTest, ItsFirstClearingAndItsEndWriteTheSnapshotAndNoRestartDoes) {
  platform.hasWindow = true;
  DrawJoined(TeeGrid);
  SetColour(1, 2, 255);
  OpenDictionary(TeeWords);
  command.ProvaInfinita = Vero;
  machine.draws = {DrawLibro, DrawLibro, DrawCarta};
  std::string written;
  StopWhen([&](const AvanzamentoEstrazione&) {
    written += std::filesystem::remove(PercorsoIstantanea()) ? '+' : '-';
    return false;
  });
  EXPECT_EQ(Run(), TeeWithCarta);
  EXPECT_EQ(written, "++-----") << "before the first clearing, behind it, and none at the others";
  EXPECT_TRUE(std::filesystem::exists(PercorsoIstantanea()));
}

TEST_F(ExtractionTest, EndlessRunAsksNothingAndStopsAtAPoll) {
  DrawJoined(TeeGrid);
  OpenDictionary(TeeWords);
  command.ProvaInfinita = Vero;
  machine.draws = {DrawLibro, DrawLibro, DrawCarta};
  EXPECT_EQ(Run(), TeeWithCarta);
  EXPECT_EQ(polls.back().tentativo, 3);
  EXPECT_EQ(command.ProvaInfinita, Vero);

  OpenDictionary({"LIBRO"});
  StopWhen([](const auto& p) { return p.tentativo == 100 && p.slotCollocati == 1; });
  EXPECT_EQ(Run(EsitoEstrazione::Interrotta), TeeWithLibro);
  StopWhen([](const AvanzamentoEstrazione&) { return true; });
  EXPECT_EQ(Run(EsitoEstrazione::Interrotta), TeeWithLibro);
}

TEST_F(ExtractionTest, DictionaryOrSnapshotFolderThatGoesAwayEndsTheRunAtOnce) {
  DrawJoined(TeeGrid);
  OpenDictionary(TeeWords);
  command.ProvaInfinita = Vero;
  StopWhen([&](const AvanzamentoEstrazione&) {
    CartellaIstantanea = InFolder("manca");
    return false;
  });
  Run(EsitoEstrazione::NonRegistrata);
  CartellaIstantanea.clear();
  StopWhen([&](const AvanzamentoEstrazione&) {
    std::filesystem::remove(dictionary.PercorsoDizionario());
    return false;
  });
  EXPECT_EQ(Run(EsitoEstrazione::SenzaParole), TeeGrid);
  const char* missing = "il file o la cartella non esiste";
  EXPECT_EQ(
      user.TakeTexts(),
      (Words{WithCause("Errore di scrittura del file!", InFolder("manca/_tlma_32.tmp"), missing),
             WithCause("Impossibile leggere il dizionario.", InFolder("LessicoItaliano.dat"),
                       missing)}));
}

TEST_F(ExtractionTest, RunThatCannotBeginLeavesTheGridAsItIs) {
  OpenDictionary(TeeWords);
  DrawJoined("CASA");
  SetClue(1, 1, 1, "Vi si abita");
  const auto refused = [this](EsitoEstrazione expected) {
    EXPECT_EQ(command.EseguiEstrazione(), expected);
    EXPECT_EQ(user.TakeTexts().size(), 1u);
    EXPECT_EQ(Joined(Drawing()) + Definizione(1, 1, 1), "CASAVi si abita");
    EXPECT_EQ(SchemaModificato, Falso);
  };
  CartellaIstantanea = InFolder("manca");
  refused(EsitoEstrazione::NonRegistrata);
  CartellaIstantanea.clear();
  std::filesystem::remove(dictionary.PercorsoDizionario());
  refused(EsitoEstrazione::SenzaParole);
}

TEST_F(ExtractionTest, LongSlotsComeFirstThenReadingOrderThenHorizontal) {
  platform.hasWindow = true;
  DrawJoined("....## .##.## .##.## ....## ###### ...#.. ###### .....#");
  OpenDictionary({"ALE", "ABCD", "AEFG", "DLMN", "GOPN", "CARTA"});
  machine.draws = {0, 0, 0.5, 0, 0, 0};
  Run();
  // Of what is written, the letters that the fill places: each into a place that it wiped.
  std::string letters, persistence;
  const std::vector<std::string>& calls = platform.window.calls;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    if (i >= 2 && calls[i].starts_with("Scrivi ") && calls[i - 2].starts_with("RiquadroPieno"))
      letters += calls[i].substr(7);
    if (calls[i].starts_with("DisegnoPersistente")) persistence += calls[i].substr(18);
    if (calls[i] == "Pulisci" && !persistence.empty()) persistence += " Pulisci";
  }
  EXPECT_EQ(letters, "CARTAABCDAEFGDLMNGOPNALE");
  EXPECT_EQ(persistence, " no Pulisci Pulisci si Pulisci Pulisci");
  EXPECT_EQ(Polls(), " 1:0/0 1:1/6 1:2/6 1:3/6 1:4/6 1:5/6 1:6/6");
}

TEST_F(ExtractionTest, ShortLinesOfSchemaAreFilledToo) {
  DrawJoined(".... ....");
  SetLine(1, "");
  SetLine(2, ".*.");
  OpenDictionary({"APE"});
  user.AnswerAllDeadEnds(Risposta::Si);
  EXPECT_EQ(LettersHidden(Run(), "???? ????"), "???? ????");
  EXPECT_EQ(user.TakeTexts().size(), 2u);
}

TEST_F(ExtractionTest, AnEmptyDictionaryAnsweredYesThroughoutGivesRandomLetters) {
  OpenDictionary({});
  DrawJoined("..... .#.#. .....");
  user.AnswerAllDeadEnds(Risposta::Si);
  EXPECT_EQ(LettersHidden(Run(), "????? ?#?#? ?????"), "????? ?#?#? ?????");
  EXPECT_EQ(user.TakeTexts().size(), 2u) << "for five letters, not for three";
}

TEST_F(ExtractionTest, WordsOfNoLettersLeaveACrosswordThatCanBeSaved) {
  DrawJoined(".... ####");
  std::string image(455, '\0');
  // A section that lies in the zero bytes of the header.
  image.replace(216, 16, "     408     440");
  WriteFile(dictionary.NomeDizionario(), image);
  ASSERT_TRUE(ApriDizionario(dictionary));
  user.AnswerAllDeadEnds(Risposta::Si);
  command.EseguiEstrazione();
  user.TakeTexts();  // whether anything is told of it is open
  const Percorso saved = InFolder("saved.tlrm");
  EXPECT_TRUE(!ScriviCruciverba(saved) || ApriCruciverba(saved) == Apertura::Intera);
  user.TakeTexts();
}

TEST_F(ExtractionTest, WordThatACrosswordCannotHoldCountsAsNone) {
  for (const char* word : {"A*CD", "A.CD", "A CD", "AB\346D", "AB\177D", "A\nCD"}) {
    OpenDictionary({word});
    DrawJoined("....");
    user.AnswerDeadEnd(Risposta::Annulla);
    EXPECT_EQ(Run(EsitoEstrazione::Annullata), "....");
    EXPECT_EQ(user.TakeTexts().size(), 1u);
  }
}

TEST_F(ExtractionTest, EverySlotWithoutADeadEndHoldsAWord) {
  dictionary.Nomina(Percorso(TELARIUM_DATA_DIR) / "LessicoItaliano.dat", 1);
  ASSERT_TRUE(ApriDizionario(dictionary));
  std::set<std::string> words;
  for (int length = MinLunghezza; length <= MaxLunghezza; ++length) {
    CercaParole(dictionary, std::string(static_cast<std::size_t>(length), ' '),
                [&](std::string_view word) { words.emplace(word); });
  }
  const std::string grid =
      "?????#??????? ???#?????#??? ?#?????#????? ??????#?????? "
      "???#?????#??? #???????#???# ????????????? ??#????#?????";
  DrawJoined(grid);
  user.AnswerAllDeadEnds(Risposta::Si);
  int checked = 0;
  for (int run = 0; run < 10; ++run) {
    ASSERT_EQ(LettersHidden(Run(), grid, "ABCDEFGHIJKLMNOPQRSTUVWXYZ"), grid)
        << "black cells stay, no white one is empty";
    const std::string deadEnds = Joined(user.TakeTexts());
    PerOgniParola([&](const Slot& slot) {
      const auto [c, r] = slot.inizio;
      const std::string told = Unisci(slot.direzione == Orizzontale ? "orizzontale " : "verticale ",
                                      NumeroCasella(c, r), " alle coordinate ", c, ',', r, ' ');
      if (slot.lunghezza <= 3 || deadEnds.find(told) != deadEnds.npos) return;
      ++checked;
      EXPECT_TRUE(words.contains(ParolaCasella(c, r, slot.direzione))) << told;
    });
  }
  EXPECT_GT(checked, 100);
}

TEST_F(ExtractionTest, LettersArePaintedInTheMiddleOfTheirCells) {
  RecordingSurface surface;
  SetGeometry(31, 17, 40);
  AltezzaCaratteri = 60;
  DistanzaDaCentro = 10;
  surface.CorpoCarattere(13);  // the half of it goes to the even number, 6
  PittoreDiParole painter(&surface);
  painter.DirettoSulloSchermo();
  painter.PreparaCarattere();
  painter.Dipingi({{2, 3}, Verticale, 2}, "SI");
  painter.Fine();
  SetGeometry(8, 17, 40);
  painter.PreparaCarattere();
  EXPECT_EQ(surface.calls,
            (Words{"CorpoCarattere 13", "DisegnoPersistente no", "CorpoCarattere 18.6",
                   "RiquadroPieno 56 110 72 126 16777215", "Posizione 59 112.1", "Scrivi S",
                   "RiquadroPieno 56 140 72 156 16777215", "Posizione 59 142.1", "Scrivi I",
                   "DisegnoPersistente si", "Pulisci", "CorpoCarattere 5"}));
}

}  // namespace
}  // namespace telarium
