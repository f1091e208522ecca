#include "clues/table_view.h"

#include "clues/small_grid.h"
#include "editor/settings.h"
#include "support/clue_store.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

class TableView : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    ImpostazioniIniziali();
  }

  // The rows, as "12-O WORD clue".
  static Texts Rows(const BozzaDiTabella& draft) {
    Texts rows;
    for (const Slot& slot : draft.Parole())
      rows.push_back(draft.Sigla(slot) + ' ' + draft.ParolaDi(slot) + ' ' +
                     draft.DefinizioneDi(slot));
    return rows;
  }
};

TEST_F(TableView, OpensInItsModeAndNotWithoutAGrid) {
  RecordingWindow window;
  window.tipShows = true;
  ApriTabella();
  EXPECT_TRUE(window.shown.empty());
  Draw({"CA"});
  ImpostaPuntatoreMouse(PuntatoreOrizzontale);
  ApriTabella();
  EXPECT_EQ(window.shown, std::vector<Modale>{Modale::TelarBro});
  EXPECT_EQ(ModoGriglia, 20);
  EXPECT_EQ(PuntatoreMouse, 0);
  EXPECT_FALSE(window.tipShows);
}

TEST_F(TableView, AChangedWordReachesItsCrossingsAndNoClueMoves) {
  Draw({"#C.#", "CASA", "#REO"});
  SetClue(1, 2, Orizzontale, "Ci si abita");
  SetClue(2, 1, Verticale, "Vettura");
  BozzaDiTabella draft = ApriBozza();
  EXPECT_EQ(Rows(draft), (Texts{"1-O C. ", "1-V CAR Vettura", "2-V .SE ", "3-O CASA Ci si abita",
                                "4-V AO ", "5-O REO "}));
  EXPECT_EQ(draft.SiglaEstesa(draft.Parole()[1]), "1-Verticale");
  EXPECT_EQ(draft.SiglaEstesa(draft.Parole()[3]), "3-Orizzontale");
  EXPECT_TRUE(VariaRiga(draft, draft.Parole()[3], {"CO.I", "Cos\xEC"}));
  EXPECT_EQ(Rows(draft), (Texts{"1-O C. ", "1-V COR Vettura", "2-V ..E ", "3-O CO.I Cos\xEC",
                                "4-V IO ", "5-O REO "}));
  EXPECT_EQ(SchemaModificato, Vero);
  EXPECT_EQ(user.pointerShapes, (std::vector<int>{PuntatoreClessidra, PuntatoreFreccia}));
  EXPECT_EQ(DrawingOfSchema(), (Texts{"#C.#", "CASA", "#REO"})) << "it is a draft";
  ConfermaBozza(draft);
  EXPECT_EQ(DrawingOfSchema(), (Texts{"#C.#", "CO.I", "#REO"}));
  EXPECT_EQ(Rows(ApriBozza()), Rows(draft));
}

TEST_F(TableView, ARefusedWordChangesNothing) {
  Draw({"CASA"});
  BozzaDiTabella draft = ApriBozza();
  const Slot word = draft.Parole().front();
  for (const char* refused : {"CAS", "CAS\xC0", "CA*A"})
    EXPECT_FALSE(VariaRiga(draft, word, {refused, "nuova"}));
  const Texts told = user.TakeTexts();
  ASSERT_EQ(told.size(), 3u);
  EXPECT_EQ(
      told[0],
      "La parola deve avere obbligatoriamente 4 caratteri, usare il simbolo punto '.' per gli "
      "spazi.");
  EXPECT_EQ(told[2], told[1]);
  EXPECT_EQ(Rows(draft), Texts{"1-O CASA "});
  EXPECT_EQ(SchemaModificato, Falso);
}

TEST_F(TableView, ItsGeometryCountsNoBars) {
  platform.hasWindow = true;
  platform.window.width = 240;
  platform.window.height = 146;
  RecordingWindow window;
  Draw({"AB", "C#"});
  BozzaDiTabella draft = ApriBozza();
  ASSERT_TRUE(VariaRiga(draft, draft.Parole().front(), {"AB", "x"}));
  EXPECT_EQ(LatoCasella, 64) << "(146 - 2 - 16) / 2";
  EXPECT_EQ(OrigineX, 56);
  EXPECT_EQ(OrigineY, 8);
}

TEST_F(TableView, ASearchGivesAllCluesOfBothFamilies) {
  MakeStore(
      "CASA\tF\tCi si abita\nCASA\tF\tHa un tetto (e muri)\nCASA\tD\tDimora & covo\n"
      "RE\tF\tNota\n");
  const auto found = CercaVoci(" casa ");
  ASSERT_TRUE(found);
  Texts captions, clues;
  for (const auto& [caption, clue] : *found) {
    captions.push_back(caption);
    clues.push_back(clue);
  }
  EXPECT_EQ(captions, (Texts{"01-(Facile) Ci si abita", "02-(Facile) Ha un tetto (e muri)",
                             "03-(Diffic) Dimora & covo"}));
  EXPECT_EQ(clues, (Texts{"Ci si abita", "Ha un tetto (e muri)", "Dimora & covo"}));
  EXPECT_EQ(user.pointerShapes, (std::vector<int>{PuntatoreMano, PuntatoreFreccia}));
  {
    const EnciclopediaAperta store = ApriEnciclopedia();
    store->InserisciRiga({.parola = "NO", .facili = "\r\n \r\n", .difficili = {}});
  }
  EXPECT_EQ(CercaVoci("NO")->size(), 0u) << "blank lines are no clues";

  EXPECT_FALSE(CercaVoci("CA.A"));
  EXPECT_FALSE(CercaVoci("C"));
  EXPECT_FALSE(CercaVoci("ZZZ"));
  const Texts told = user.TakeTexts();
  ASSERT_EQ(told.size(), 3u);
  EXPECT_EQ(AUtf8(told[0]),
            "La ricerca della definizione è possibile solo su una parola completa di almeno 2 "
            "caratteri.");
  EXPECT_EQ(told[1], told[0]);
  EXPECT_TRUE(told[2].starts_with("La parola ZZZ non "));
  EXPECT_EQ(user.beeps, 1);
  EXPECT_EQ(PuntatoreMouse, PuntatoreFreccia);
}

TEST_F(TableView, TheSmallGridIsDrawnCallByCall) {
  AltezzaCaratteri = 50;
  PercentualeRiquadro = 90;
  DistanzaDaSpigolo = 5;
  DistanzaDaCentro = 10;
  SetGeometry(40);  // of the main grid, from which the numbers take their distance
  SetColour(3, 1, 0x00FF00);
  Draw({"A.#"});
  RecordingSurface surface;
  surface.width = 75;  // side (75 - 10) / 3 = 21.7, cut off; left (75 - 63) / 2
  surface.height = 60;
  const BozzaDiTabella draft = ApriBozza();
  DisegnaSchemaPiccolo(surface, draft.Derivata(), &draft.Parole().front());
  EXPECT_EQ(surface.calls, (Texts{
                               "Pulisci",
                               "Carattere Arial",
                               "CorpoCarattere 10.5",
                               "Riquadro 6 20 27 41 0",
                               "Posizione 13.5 27.6",
                               "Scrivi A",
                               "Riquadro 27 20 48 41 0",
                               "Riquadro 48 20 69 41 0",
                               "RiquadroPieno 49.05 21.05 67.95 39.95 0",
                               "CorpoCarattere 3.81818181818",
                               "Posizione 10 22",
                               "Scrivi 1",
                               "Riquadro 6 20 48 41 65535",
                               "Riquadro 7 21 47 40 65535",
                           }));
  surface.width = 12;
  surface.calls.clear();
  DisegnaSchemaPiccolo(surface, draft.Derivata(), nullptr);
  EXPECT_EQ(surface.calls, Texts{"Pulisci"}) << "no cell has room";
}

}  // namespace
}  // namespace telarium
