#include "output/web_opening.h"

#include "auxiliary/addresses.h"
#include "editor/commands.h"
#include "model/words.h"
#include "platform/codepage.h"
#include "support/crossword_page.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* FetchError = "Errore apertura file HTML. Il sito tace.";
constexpr const char* NotFound =
    "File HTML su Internet non trovato/non valido (Solo versione Telarium 7 o superiore) oppure "
    "connessione a Internet non attiva.";
constexpr const char* ReadError = "Errore di lettura del file!";
constexpr const char* SizeError = "Formato del file non valido! Esecuzione terminata";
constexpr const char* Somewhere = "http://somewhere/x.html";
const Texts Older = {"SOLE", "#..#"};
const Texts Newer = {"CASA", "A#..", "...."};  // in the page

TEST(SaveBlock, BeginsBehindTheLastMarkerThatIsNotTheEnd) {
  const std::string marker = "sottostanti ####\r\n";
  const struct {
    const char* name;
    std::string page;
    std::optional<std::string> block;
  } cases[] = {
      {"only the marker", marker, std::nullopt},
      {"one byte", marker + "x", "x"},
      {"anything before", "\xFF\r\n<p>" + marker + "x\r\ny", "x\r\ny"},
      {"the last one counts", marker + "x" + marker + "y", "y"},
      {"but for one at the end", marker + "x" + marker, "x" + marker},
      {"two at the end", "a" + marker + marker, marker},
      {"LF alone", "sottostanti ####\nx", std::nullopt},
      {"a blank between", "sottostanti #### \r\nx", std::nullopt},
      {"of a later writer", "<!-- ALTRO Versione 9 qui sottostanti ####\r\nx", "x"},
      {"begins twice", "sottostanti sottostanti ####\r\nx", "x"},
  };
  for (const auto& [name, page, block] : cases) {
    SCOPED_TRACE(name);
    EXPECT_EQ(BloccoDiSalvataggio(page), block);
  }
}

class WebOpening : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    platform.hasWindow = true;
    window.splash = true;
  }

  void Open(const std::optional<std::string>& typed) {
    user.AnswerText(typed);
    ApriDaIndirizzo();
  }

  void ForgetAll() {
    Forget();
    CartellaProgramma = InFolder("");
  }

  // Opens a page of this content.
  void OpenPage(const std::string& content) {
    machine.pages[Somewhere] = content;
    Open(Somewhere);
  }

  // The page of a crossword with clues and a colour; the older one becomes current again.
  std::string SomePage() {
    Draw(Newer);
    SetClue(1, 1, Orizzontale, "Ci si abita --> \xC8 <b>\"bella\"");
    SetClue(1, 1, Verticale, "Sottostanti ####");
    SetColour(2, 2, 0x3060C0);
    std::string page = CrosswordPage();
    SetClue(1, 1, Verticale, "of the older one");
    SetColour(1, 1, 5);
    Draw(Older);
    return page;
  }

  RecordingWindow window;
};

TEST_F(WebOpening, AsksForAnAddressAndProposesTheSameOneAgain) {
  Open("");
  Open("   ");
  Open(std::nullopt);
  ASSERT_EQ(user.requests.size(), 3u);
  for (const RichiestaDiTesto& request : user.requests) {
    EXPECT_EQ(request.titolo, "Apertura file HTML/Internet");
    EXPECT_EQ(request.predefinito, "https://www.telarium.example/telarium/esempio.html");
    EXPECT_TRUE(request.richiesta.starts_with("Apri file da Internet, \xE8 possibile recuperare"));
    EXPECT_TRUE(request.richiesta.ends_with("usare il suffisso file:// "));
  }
  EXPECT_TRUE(machine.fetched.empty() && user.waits.empty() && window.splash);

  WriteFile("indirizzi.txt", "PaginaEsempio=http://a.example\r\n");
  LeggiIndirizzi();
  Open("");
  EXPECT_NE(user.requests.back().predefinito, "http://a.example") << "kept for the run";
  ForgetAll();
  LeggiIndirizzi();
  Open("");
  EXPECT_EQ(user.requests.back().predefinito, "http://a.example");
}

TEST_F(WebOpening, FetchesABareNameAsAFileAtTheSecondTry) {
  const struct {
    std::string typed;
    Texts fetched, told;
  } cases[] = {
      {"  /a b/caf\xE8.html ",
       {"/a b/caf\xC3\xA8.html", "file:///a b/caf\xC3\xA8.html"},
       {FetchError, NotFound}},
      {"www.x", {"www.x", "file://www.x"}, {FetchError, NotFound}},
      {"http://x", {"http://x"}, {FetchError, NotFound}},
      {"https://x", {"https://x"}, {FetchError, NotFound}},
      {"file://x", {"file://x"}, {FetchError, NotFound}},
      {"page.html", {"page.html", "file://page.html"}, {}},
      {"http://empty", {"http://empty"}, {NotFound}},
      {"http://other", {"http://other"}, {NotFound}},
  };
  const std::string page = SomePage();
  machine.pages = {{"file://page.html", page},
                   {"http://empty", ""},
                   {"http://other", "<html>no crossword</html>\r\n"}};
  for (const auto& [typed, fetched, told] : cases) {
    SCOPED_TRACE(typed);
    Draw(Older);
    machine.fetched.clear();
    Open(typed);
    EXPECT_EQ(machine.fetched, fetched);
    EXPECT_EQ(user.TakeTexts(), told);
    EXPECT_EQ(Drawing() == Older, !told.empty());
  }
  EXPECT_EQ(user.waits, Texts(std::size(cases), "Prelievo della pagina in corso ..."));
  EXPECT_EQ(machine.limits.tempo, std::chrono::seconds(60));
  EXPECT_EQ(machine.limits.byte, 64u << 20);
}

TEST_F(WebOpening, AFetchThatTheUserBreaksOffIsNoFault) {
  user.patient = false;
  for (const char* typed : {Somewhere, "page.html"}) {
    machine.pages[typed] = SomePage();
    Open(typed);
    EXPECT_EQ(user.TakeTexts(), Texts());
    EXPECT_EQ(Drawing(), Older);
  }
  EXPECT_EQ(machine.fetched, (Texts{Somewhere, "page.html"}));
}

TEST_F(WebOpening, MakesTheCrosswordOfThePageTheCurrentOneUnderTheOldName) {
  const std::string page = SomePage();
  IniziaAnteprima();
  MarkModified(false);
  window.rectangle = Rettangolo{};
  window.editPressed = false;
  OpenPage(page);
  EXPECT_EQ(Drawing(), Newer);
  EXPECT_EQ(CrosswordPage(), page) << "clues and colours, and nothing of the older one is left";
  EXPECT_EQ(ReadFile(PercorsoIstantanea()), TestoDelCruciverba());
  EXPECT_EQ(NomeCruciverba, "prova.tlrm");
  EXPECT_EQ(SchemaModificato, Falso);
  EXPECT_EQ(ModoGriglia, ModoModifica);
  EXPECT_TRUE(window.editPressed && window.enabled["MenuEdit"]);
  EXPECT_FALSE(window.preview || window.splash || window.rectangle);
  EXPECT_TRUE(window.title.starts_with("Telarium - 4x3"));
}

TEST_F(WebOpening, NeedsNoCrosswordBefore) {
  const std::string page = SomePage();
  ForgetAll();
  OpenPage(page);
  EXPECT_EQ(Drawing(), Newer);
  EXPECT_EQ(NomeCruciverba, NomeMaiSalvato);
  EXPECT_TRUE(window.enabled["menuSalva"] && window.enabled["menurl"]);
  EXPECT_TRUE(window.enabledButtons.contains(PulsanteEdit));
}

TEST_F(WebOpening, AsksForAChangedCrosswordOnceThereIsAnother) {
  const std::string page = SomePage();
  MarkModified();
  OpenPage("no crossword");
  EXPECT_EQ(user.TakeTexts(), Texts{NotFound}) << "nothing is asked before";
  user.Answer(Risposta::Ok);
  SetName("no folder/x.tlrm");
  OpenPage(page);
  EXPECT_EQ(Drawing(), Older) << "the save that was wanted failed";
  EXPECT_EQ(user.TakeTexts().size(), 2u);
  user.Answer(Risposta::Annulla);
  OpenPage(page);
  EXPECT_EQ(Drawing().front(), "CASA");
  EXPECT_EQ(SchemaModificato, Vero) << "as it was";
  SetName(InFolder("mio.tlrm"));
  user.Answer(Risposta::Ok);
  OpenPage(page);
  EXPECT_EQ(SchemaModificato, Falso);
  EXPECT_EQ(ReadFile(NomeCruciverba), TestoDelCruciverba());
  user.TakeTexts();
}

TEST_F(WebOpening, ABlockThatIsNoCrosswordIsToldAndChangesNothing) {
  const std::pair<std::string, const char*> cases[] = {
      {"a\r\nb", ReadError},
      {"a\r\nb\r\nc\r\nDimensioni : 99x99\r\n", SizeError},
      {"a\r\nb\r\nc\r\nDimensioni : 00x05\r\n", SizeError},
      {"a\r\nb\r\nc\r\nx\r\n", SizeError},
      {"a\r\nb\r\nc\r\nDimensioni : 04x03\r\nc.a.s.a.\r\na.D", ReadError},
      {Unisci("a\r\n", '\0', "\r\nc\r\nDimensioni : 04x03\r\n"), ReadError}};
  SomePage();
  const auto before = TestoDelCruciverba();
  for (const auto& [block, told] : cases) {
    SCOPED_TRACE(block);
    OpenPage(Unisci(MarkerLine, block));
    EXPECT_EQ(user.TakeTexts(), Texts{told});
    EXPECT_EQ(TestoDelCruciverba(), before);
    EXPECT_EQ(Drawing(), Older);
    EXPECT_TRUE(window.splash);
  }
}

TEST_F(WebOpening, APageCutAnywhereIsTakenAsFarAsItGoesOrToldAndChangesNothing) {
  const std::string page = SomePage();
  const std::size_t block = page.find(MarkerLine) + MarkerLine.size();
  const std::size_t lastRow = page.find("\r\n", page.find("04x03") + 7 + 2 * 10) + 8;
  int taken = 0;
  for (std::size_t length = 0; length <= page.size(); ++length) {
    SCOPED_TRACE(length);
    Draw(Older);
    SetClue(1, 1, Orizzontale, "older");
    SetColour(1, 2, 5);
    const auto before = TestoDelCruciverba();
    OpenPage(page.substr(0, length));
    const Texts told = user.TakeTexts();
    EXPECT_EQ(NomeCruciverba, "prova.tlrm");
    if (told.empty()) {
      ++taken;
      EXPECT_TRUE(length < lastRow || Drawing() == Newer);
      continue;
    }
    EXPECT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0] == NotFound, length <= block);
    EXPECT_EQ(Drawing(), Older);
    EXPECT_EQ(TestoDelCruciverba(), before);
  }
  EXPECT_GT(taken, 0);
}

}  // namespace
}  // namespace telarium
