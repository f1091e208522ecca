#include "lexicon/composition.h"

#include <gtest/gtest.h>

#include "lexicon/lexicon_builder.h"
#include "lexicon/own_words.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

class Composition : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    std::filesystem::create_directory(InFolder("lexicon"));
    Make("italiano", "sole\t60\t\ts.ms\ncittà\t70\t\ts.f\nL'Aquila\t66\tnome,locuzione\tnp\n");
    Make("inglese", "song\t40\t\ts.s\nsole\t20\t\ta\n");
    Make("sigle", "re\t95\t\ts.ms\n");
    OpenDictionary({"SOLE", "NUOVA"}, "Prova.dat");
    list_ = WriteFile("lista.txt", "sole;7\nAB\n");
  }

  void Make(const std::string& name, std::string_view source) {
    std::string cause;
    const auto bytes = CostruisciLessico(source, cause);
    ASSERT_TRUE(bytes) << cause;
    WriteFile("lexicon/" + name + ".lexicon", *bytes);
  }

  std::optional<Lessico> Compose(const std::vector<Percorso>& names) {
    return ComponiLessico(names, {.lessici = InFolder("lexicon"), .programma = CartellaProgramma},
                          cause_);
  }

  // "italiano, sigle, mio": the layers from the lowest on.
  std::string Layers(const std::vector<Percorso>& names) {
    const auto lexicon = Compose(names);
    if (!lexicon) return cause_;
    std::string layers;
    for (const auto& [layer, origin] : lexicon->Livelli())
      layers += Unisci(layers.empty() ? "" : ", ", layer->Nome());
    return layers;
  }

  Percorso list_;
  std::string cause_;
};

TEST_F(Composition, LayersLieInTheirOrderHoweverTheyAreNamed) {
  EXPECT_EQ(Layers({"italiano"}), "italiano, sigle, mio");
  EXPECT_EQ(Layers({list_, "Prova.dat", "inglese", "sigle", "italiano"}),
            "inglese, italiano, sigle, Prova.dat, lista.txt, mio");
  EXPECT_EQ(Layers({"PROVA.DAT"}), "sigle, PROVA.DAT, mio");
  EXPECT_EQ(Layers({list_}), "sigle, lista.txt");
  EXPECT_EQ(Layers({list_, "mio"}), "sigle, lista.txt, mio");
  EXPECT_EQ(Layers({WriteFile("vuota", "")}), "sigle, vuota");
  EXPECT_EQ(cause_, InFolder("vuota").string() + ": non contiene nemmeno una parola.");

  const auto two = Compose({"italiano", "inglese", list_});
  ASSERT_TRUE(two);
  EXPECT_EQ(two->Cerca("SONG")->segni, Segni{Segno::Straniera});
  EXPECT_EQ(two->Cerca("SOLE")->punteggio, 7);
  EXPECT_EQ(two->Cerca("SOLE")->segni, Segni());
  EXPECT_EQ(two->Cerca("LAQUILA")->grafia, "L'Aquila");
  EXPECT_TRUE(two->Cerca("AB")->propria && two->Cerca("RE")->nelCorredo);
  EXPECT_FALSE(Compose({list_})->Contiene("CITTA"));
  EXPECT_EQ(cause_, "");
}

TEST_F(Composition, BansOfTheOwnWordsHoldBesideListsAlone) {
  WriteFile(ParoleMie::NomeFile, "sole;0\nmia;50\n");
  const auto lexicon = Compose({list_});
  ASSERT_TRUE(lexicon);
  EXPECT_TRUE(lexicon->Bandita("SOLE"));
  EXPECT_FALSE(lexicon->Contiene("MIA"));
  EXPECT_TRUE(Compose({list_, "mio"})->Contiene("MIA"));
}

TEST_F(Composition, WhatCannotBeHadIsToldByItsName) {
  const std::string missing = ": il file o la cartella non esiste.";
  const Percorso utf16 = WriteFile("utf16", {"\xFF\xFE\0\0", 4}), other = WriteFile("altra", "1\n");
  WriteFile("lexicon/francese.lexicon", "TELARLEX");
  EXPECT_EQ(Layers({"latino"}), Unisci("Il lessico \"latino\" non si può aprire.\n"_cp,
                                       InFolder("lexicon/latino.lexicon").string(), missing));
  EXPECT_TRUE(Layers({"francese"}).starts_with("Il lessico \"francese\" non si può aprire.\n"_cp));
  EXPECT_EQ(Layers({"italiano", "Manca.priv"}), Unisci("Impossibile leggere il dizionario.\n",
                                                       InFolder("Manca.priv").string(), missing));
  const std::string_view list = "La lista di parole non si può leggere.\n"_cp;
  EXPECT_EQ(Layers({"spagnolo"}), Unisci(list, "spagnolo", missing,
                                         " Le lingue sono italiano, inglese, latino, francese."));
  EXPECT_EQ(Layers({utf16}), Unisci(list, utf16.string(),
                                    ": la lista è in UTF-16, o non è un testo: va salvata in "
                                    "UTF-8."_cp));
  EXPECT_EQ(Layers({other}),
            Unisci(list, other.string(), ": la lista non contiene parole, solo 1 riga d'altro."));
  std::filesystem::create_symlink("/dev/null", InFolder(ParoleMie::NomeFile));
  EXPECT_TRUE(Layers({"italiano"}).starts_with("L'elenco delle parole proprie"));
  std::filesystem::remove(InFolder("lexicon/sigle.lexicon"));
  EXPECT_TRUE(Layers({list_}).starts_with("Il lessico \"sigle\" non si"));
}

TEST_F(Composition, WhatAListHasBesideWordsIsToldAndLeftOut) {
  const Percorso odd = WriteFile("strana", "sole;7\n1\n2\n");
  std::string low = "x;1\n";
  for (int i = 0; i < 1000; ++i)
    low += Unisci("pa", std::string(1 + i % 40, 'a' + i / 40), ";50\n");
  const Percorso own = WriteFile(ParoleMie::NomeFile, "# mie\nculo 0\nsole;0\n");
  EXPECT_TRUE(Compose({odd, list_, WriteFile("bassa", low)}));
  EXPECT_EQ(cause_, Unisci("Lista ", odd.string(),
                           ": righe che non contengono una parola, ignorate: 2 (la prima: 2).\n"
                           "Lista ",
                           InFolder("bassa").string(),
                           ": righe che non contengono una parola, ignorate: 1 (la prima: 1).\n"
                           "Lista ",
                           InFolder("bassa").string(),
                           ": nessun punteggio supera 50, ma valgono come stanno, da 0 a 100.\n"
                           "Lista ",
                           own.string(),
                           ": righe che non contengono una parola, ignorate: 1 (la prima: 2)."));
}

TEST_F(Composition, RulesAndWordsAreReadFromFiles) {
  EXPECT_EQ(TrovaRegolamento("libere", cause_), *RegolamentoDiNome("libere"));
  const Percorso file = WriteFile("mie.txt", "base = libere\nnomi = no\n");
  const auto rules = TrovaRegolamento(file, cause_);
  ASSERT_TRUE(rules);
  EXPECT_EQ(rules->nome, "mie.txt");
  EXPECT_EQ(rules->Di(Genia::Nome), Quota{Quota::Nessuna});
  EXPECT_FALSE(TrovaRegolamento(WriteFile("mie.txt", "\nnome = no\n"), cause_));
  EXPECT_TRUE(cause_.starts_with(Unisci("Le regole non si possono leggere.\n", file.string(),
                                        ": riga 2: \"nome\" non è una regola"_cp)))
      << cause_;
  EXPECT_FALSE(TrovaRegolamento("Severe", cause_));
  EXPECT_TRUE(cause_.ends_with(" Le regole con un nome sono severe, settimanali, libere."))
      << cause_;
  EXPECT_EQ(LeggiParole(list_, cause_), (InsiemeDiParole{"AB", "SOLE"}));
  EXPECT_EQ(LeggiParole(WriteFile("vuota", ""), cause_), InsiemeDiParole());
  EXPECT_FALSE(LeggiParole("manca", cause_));
}

}  // namespace
}  // namespace telarium
