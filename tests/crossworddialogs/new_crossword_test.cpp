#include "crossworddialogs/new_crossword.h"

#include "model/documento.h"
#include "platform/codepage.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* Beginning =
    "Autore     : Zanotti Graziella\r\nData       : 05-03-2024\r\n"
    "Tipo       : Crociate Normale\r\nDimensioni : ";

class NewCrossword : public TelariumTest {
 protected:
  // The crossword that is being worked on when the new one comes.
  void SetUp() override {
    TelariumTest::SetUp();
    Draw({"AB", "CD"});
    SetClue(1, 1, Orizzontale, "di prima");
    SetClue(53, 30, Verticale, "di prima");
    SetColour(1, 2, 255);
    Change([](Cruciverba& crossword) { crossword.laboratorio.Proprio().vietate = {"AB"}; });
    MarkModified();
  }

  void ExpectTold(const Texts& texts) {
    EXPECT_EQ(user.TakeTexts(), texts);
    EXPECT_EQ(Schema(4) + Schema(5) + Schema(6), "Dimensioni : 02x02A.B.C.D.");
    EXPECT_EQ(NumColonne + NumRighe, 4);
    EXPECT_EQ(Definizione(1, 1, Orizzontale), "di prima");
    EXPECT_EQ(IlDocumento().Valore().laboratorio->vietate, Texts{"AB"});
    EXPECT_EQ(SchemaModificato, Vero);
    EXPECT_EQ(NomeCruciverba, "prova.tlrm");
    EXPECT_FALSE(std::filesystem::exists(PercorsoIstantanea()));
  }

  void ExpectMade(const std::string& snapshot) const {
    EXPECT_EQ(FirstDifference(ReadFile(InFolder("_tlma_32.tmp")), snapshot), "");
    EXPECT_EQ(Definizione(1, 1, Orizzontale) + Definizione(53, 30, Verticale), "");
    EXPECT_EQ(ColoreCasella(1, 2), 0);
    EXPECT_EQ(SchemaModificato, 0);
    EXPECT_EQ(NomeCruciverba, "NuovoCruciverba.tlrm");
  }
};

TEST_F(NewCrossword, EmptyGridIsHandedOverInTheSnapshot) {
  EXPECT_EQ(NuovoVuoto(53, 30), EsitoNuovo::Fatto);
  EXPECT_EQ(Schema(4), "Dimensioni : 53x30");
  EXPECT_EQ(Schema(34), std::string(106, '.'));
  EXPECT_EQ(NuovoVuoto(3, 3), EsitoNuovo::Fatto);
  ExpectMade(Unisci(Beginning, "03x03\r\nH.H.H.\r\nH.H.H.\r\nH.H.H.\r\n[Colori caselle]\r\n",
                    " 0  0  0 \r\n 0  0  0 \r\n 0  0  0 \r\n"));
  EXPECT_EQ(NumColonne + NumRighe, 6);
}

TEST_F(NewCrossword, ModelIsHandedOverWithItsLetters) {
  const Percorso path = WriteFile("m.dfc", "XX\r\nXX\r\n-\r\nCA*\r\n.B.\r\n-\r\nno\r\n");
  EXPECT_EQ(NuovoDaModello(path, 1), EsitoNuovo::Fatto);
  ExpectMade(Unisci(Beginning, "03x02\r\n].[.D*\r\nH.\\.H.\r\n[Colori caselle]\r\n",
                    " 0  0 \r\n 0  0 \r\n 0  0 \r\n"));
  EXPECT_EQ(Schema(5) + Schema(6), "CCAA**..BB..");
  EXPECT_EQ(NuovoDaModello(path, 2), EsitoNuovo::ModelloAssente);
}

TEST_F(NewCrossword, OtherSizesAreRefusedWithABeep) {
  for (const int wrong : {2, 54, 0}) {
    EXPECT_EQ(NuovoVuoto(wrong, 2), EsitoNuovo::ColonneRifiutate);
    ExpectTold({"Numero caselle orizzontali consentito da 3 a 53."});
  }
  for (const int wrong : {2, 31, -1}) {
    EXPECT_EQ(NuovoVuoto(53, wrong), EsitoNuovo::RigheRifiutate);
    ExpectTold({"Numero caselle verticali consentito da 3 a 30."});
  }
  EXPECT_EQ(user.beeps, 6);
}

TEST_F(NewCrossword, WhatCannotBeMadeIsToldAndChangesNothing) {
  std::string tall;
  for (int r = 1; r <= 31; ++r)
    tall += "...\r\n";
  for (const std::string& large : {tall, std::string(54, '.') + "\r\n"}) {
    EXPECT_EQ(NuovoDaModello(WriteFile("m.dfc", large + '-'), 0), EsitoNuovo::ModelloRifiutato);
    ExpectTold({"Il modello supera le dimensioni massime di 53 colonne e 30 righe."});
  }
  const Percorso path = WriteFile("m.dfc", "-\r\n...\r\n");  // the model 0 has no rows
  for (const int number : {-1, 0, 1}) {
    EXPECT_EQ(NuovoDaModello(path, number), EsitoNuovo::ModelloAssente);
    ExpectTold({});
  }
  for (const char* model : {"...\r\n..\r\n-", "..\r\n...\r\n-", ".a\r\n-", ".@\r\n-", ".[\r\n-"}) {
    WriteFile("m.dfc", model);
    EXPECT_THROW(NuovoDaModello(path, 0), ProgramFailed) << model;
    ExpectTold({"Tipo di file modelli non valido!"});
  }
  EXPECT_EQ(NuovoDaModello(InFolder("manca.dfc"), 0), EsitoNuovo::ModelloRifiutato);
  ExpectTold({WithCause("Errore: Non trovato file di definizione modelli standard!",
                        InFolder("manca.dfc"), "il file o la cartella non esiste")});
  std::filesystem::resize_file(path, 4194305);
  EXPECT_EQ(NuovoDaModello(path, 0), EsitoNuovo::ModelloRifiutato);
  ExpectTold(
      {WithCause("Impossibile leggere il file modelli.", path, "il file è troppo grande"_cp)});
  CartellaIstantanea = InFolder("manca");
  EXPECT_EQ(NuovoVuoto(16, 13), EsitoNuovo::NonScritto);
  ExpectTold({WithCause("Errore di scrittura del file!", InFolder("manca/_tlma_32.tmp"),
                        "il file o la cartella non esiste")});
}

}  // namespace
}  // namespace telarium
