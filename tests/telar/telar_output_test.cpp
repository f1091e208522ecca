#include "support/crossword_page.h"
#include "support/loopback_server.h"
#include "telar/telar_fixture.h"

namespace telarium {
namespace {

std::string NotFetched(std::string_view cause) {
  return Unisci("Errore apertura file HTML. ", cause,
                "\nFile HTML su Internet non trovato/non valido (Solo versione Telarium 7 o "
                "superiore) oppure connessione a Internet non attiva.\n");
}

TEST_F(Telar, OpensAPageOfTheWebOrAFileToTheByte) {
  Draw({"CAFF", "A#..", "...."});
  SetClue(1, 1, Orizzontale, "\xC8 --> nero");
  const std::string file = TestoDelCruciverba().value();
  Write("la pagina \xC3\xA8.html", CrosswordPage());
  const LoopbackServer server(LoopbackServer::Reply("200 OK", "", CrosswordPage()));
  const std::string path = InFolder("work/la pagina \xC3\xA8.html").string();
  for (const std::string& address : {server.Address() + "/x.html", path, "file://" + path,
                                     std::string("file://la%20pagina%20%C3%A8.html")}) {
    SCOPED_TRACE(address);
    EXPECT_EQ(Out(Words{"apri", address, "new"}), "");
    EXPECT_EQ(FirstDifference(Read("new"), file), "");
    fs::remove(InFolder("work/new"));
  }
}

TEST_F(Telar, WritesNothingForAPageThatIsNoneOrBreaksOff) {
  const LoopbackServer missing(LoopbackServer::Reply("404 Not Found", "", CrosswordPage()));
  EXPECT_EQ(Told("apri " + missing.Address() + " old", 1),
            NotFetched("Il sito non ha questa pagina."));
  EXPECT_EQ(Told("apri nowhere.html old", 1), NotFetched("Il file \"nowhere.html\" non esiste."));
  Write("cut.html", Unisci(MarkerLine, Head, "04x03\r\n].[*D.H.\r\n"));
  EXPECT_EQ(Told("apri cut.html old", 1), "Errore di lettura del file!\n");
  Told("apri cut.html", 2);
}

TEST_F(Telar, AnInterruptBreaksTheFetchOff) {
  const LoopbackServer silent("", LoopbackServer::Then::Hold);
  call.arguments = {"apri", silent.Address(), "old"};
  TelarProcess process(call);
  process.WaitUntil([&] { return silent.Calls() > 0; });
  process.Interrupt();
  const TelarResult result = process.WaitForEnd();
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err, "Prelievo interrotto: nessun file scritto.\n");
}

}  // namespace
}  // namespace telarium
