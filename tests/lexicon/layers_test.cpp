#include <gtest/gtest.h>

#include "dictionary/dictionary_writer.h"
#include "lexicon/dictionary_layer.h"
#include "lexicon/lexicon.h"
#include "lexicon/rules.h"
#include "platform/codepage.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

struct Known {
  std::string_view word;
  int score;
  Segni marks = {};
  std::vector<Lettura> readings = {};
  std::string_view spelling = {};
};

// A layer as that of a language: with marks and readings.
class KnownLayer final : public Strato {
 public:
  KnownLayer(std::string name, std::vector<Known> words)
      : Strato(std::move(name)), words_(std::move(words)) {}

  int Conta(int) const override { return 0; }
  NumeroVoce Prima(int) const override { return 0; }
  std::optional<NumeroVoce> Cerca(std::string_view word) const override {
    for (NumeroVoce i = 0; i < words_.size(); ++i) {
      if (words_[i].word == word) return i;
    }
    return std::nullopt;
  }
  std::string_view Parola(NumeroVoce number) const override { return words_[number].word; }
  int Punteggio(NumeroVoce number) const override { return words_[number].score; }
  Voce Leggi(NumeroVoce number) const override {
    const Known& one = words_[number];
    return {one.word, one.spelling.empty() ? one.word : one.spelling, one.score, one.marks,
            one.readings};
  }

 private:
  std::vector<Known> words_;
};

std::shared_ptr<const Strato> Layer(std::string name, std::vector<Known> words) {
  return std::make_shared<KnownLayer>(std::move(name), std::move(words));
}

std::shared_ptr<const StratoElenco> List(std::string name,
                                         const std::vector<ElencoParole::Voce>& words) {
  ElencoParole list;
  for (const auto& [word, spelling, score] : words)
    list.Metti(word, spelling, score);
  return std::make_shared<StratoElenco>(std::move(name), list);
}

Analisi Code(std::string_view code) {
  return InterpretaAnalisi(code).value();
}

TEST(ListLayer, WordsLieByLengthThenScoreThenLetters) {
  const auto layer = List("l", {{"PANE", "", 20},
                                {"ORO", "", 5},
                                {"CASA", "casa", 60},
                                {"BARA", "", ElencoParole::SenzaPunteggio},
                                {"ALTO", "", 20},
                                {std::string_view("ZIBALDONE"), "", 100},
                                {"PANE", "", 60}});
  std::string order;
  for (NumeroVoce i = layer->Prima(3); i < layer->Prima(53); ++i)
    order += Unisci(layer->Parola(i), ' ', layer->Punteggio(i), ' ');
  EXPECT_EQ(order, "ORO 5 CASA 60 PANE 60 BARA 40 ALTO 20 ZIBALDONE 100 ");
  EXPECT_EQ(layer->Conta(4), 4);
  EXPECT_EQ(layer->Prima(4), 1u);
  EXPECT_EQ(layer->Conta(5) + layer->Conta(53) + layer->Conta(54) + layer->Conta(-1), 0);
  EXPECT_EQ(layer->Leggi(1).grafia, "casa");
  EXPECT_FALSE(layer->HaPunteggio(3));
  EXPECT_FALSE(layer->Cerca("ZIBALDON") || layer->Cerca(""));
  EXPECT_FALSE(List("empty", {})->Cerca("ORO"));
}

TEST(ListLayer, AHundredThousandWordsAreFoundAndNoOthers) {
  const auto word = [](unsigned i, char last) {
    std::string letters;
    for (int k = 0; k < 5; ++k, i /= 26)
      letters += static_cast<char>('A' + i % 26);
    return letters + last;
  };
  ElencoParole list;
  for (unsigned i = 0; i < 100'000; ++i)
    EXPECT_TRUE(list.Metti(word(i, 'A'), {}, static_cast<int>(i % 101)));
  const StratoElenco layer("l", list);
  for (unsigned i = 0; i < 100'000; ++i) {
    const auto number = layer.Cerca(word(i, 'A'));
    ASSERT_TRUE(number && layer.Punteggio(*number) == static_cast<int>(i % 101)) << i;
    ASSERT_FALSE(layer.Cerca(word(i, 'B'))) << i;
  }
}

class DictionaryLayer : public TelariumTest {};

TEST_F(DictionaryLayer, HoldsTheWordsThatTheProgramFindsInItWhateverItsTableSays) {
  OpenDictionary({"ORO", "CASA", "PANE", "QUINDICILETTERE"}, "Prova.dat");
  std::string bytes = ReadFile(InFolder("Prova.dat"));
  std::string cause;
  auto layer = StratoDizionario(InFolder("Prova.dat"), "Prova.dat", cause);
  ASSERT_TRUE(layer);
  EXPECT_EQ(layer->Conta(3) + layer->Conta(4) + layer->Conta(15), 4);
  EXPECT_TRUE(layer->Cerca("PANE") && !layer->HaPunteggio(*layer->Cerca("PANE")));
  // Cut anywhere, and with a section that is told to be longer than the file.
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    layer = StratoDizionario(WriteFile("cut.dat", bytes.substr(0, length)), "x", cause);
    ASSERT_TRUE(layer) << length;
    EXPECT_EQ(layer->Cerca("ORO").has_value(), length >= 442) << length;
  }
  bytes.replace(static_cast<std::size_t>(PosizioneVoce(4)) + 7, 8, "  131072");
  layer = StratoDizionario(WriteFile("long.dat", bytes), "x", cause);
  ASSERT_TRUE(layer);
  EXPECT_TRUE(layer->Cerca("CASA") && layer->Cerca("QUIN"));
  EXPECT_FALSE(StratoDizionario(InFolder("none.dat"), "x", cause));
  EXPECT_NE(cause, "");
}

TEST(LessicoTest, ALaterLayerOverridesScoresButAPlainWordStaysOne) {
  Lessico lexicon;
  lexicon.Aggiungi(Layer("italiano", {{"RE", 80, {}, {{"re", Code("s.m")}}, "re"},
                                      {"SOLE", 75},
                                      {"MAIL", 50, {Segno::Straniera}},
                                      {"ALTO", 70},
                                      {"CULO", 40, {Segno::Bandita}},
                                      {"OVEST", 60}}),
                   Origine::Lingua);
  lexicon.Aggiungi(Layer("inglese", {{"SOLE", 30, {Segno::Nome}, {{"sole", Code("a")}}},
                                     {"ROSE", 33, {}, {{"rose", Code("s")}}},
                                     {"PULL", 20},
                                     {"OVEST", 1, {Segno::Bandita}}}),
                   Origine::Straniera);
  lexicon.Aggiungi(Layer("sigle", {{"RE", 60, {Segno::Sigla}, {{"RE", Code("sig")}}},
                                   {"TO", 60, {Segno::Sigla}}}),
                   Origine::Sigle);
  lexicon.Aggiungi(List("a.dat", {{"PULL"}, {"ALTO"}, {"NUOVA"}}), Origine::Dizionario);
  lexicon.Aggiungi(List("b.txt", {{"SOLE", "", 90}, {"XY", "", 10}, {"CULO", "", 70}}),
                   Origine::Elenco);
  lexicon.Aggiungi(List("mio", {{"ALTO", "", 0}, {"MAIL", "", 88}, {"PROPRIA", "", 0}}),
                   Origine::Mio);
  const struct {
    std::string_view word;
    int score;
    std::string_view layer;
    Segni marks;
    bool kit, own;
    std::size_t readings;
  } rows[] = {
      {"RE", 60, "sigle", {}, true, false, 1},
      {"TO", 60, "sigle", {Segno::Sigla}, true, false, 0},
      {"SOLE", 90, "b.txt", {}, false, true, 0},
      {"ROSE", 33, "inglese", {Segno::Straniera}, false, false, 1},
      {"PULL", PunteggioIgnoto, "a.dat", {}, false, false, 0},
      {"ALTO", 70, "italiano", {Segno::Bandita}, false, true, 0},
      {"MAIL", 88, "mio", {Segno::Straniera}, false, true, 0},
      {"CULO", 70, "b.txt", {Segno::Bandita}, false, true, 0},
      {"OVEST", 60, "italiano", {Segno::Bandita}, false, false, 0},
      {"PROPRIA", 0, "mio", {Segno::Bandita}, false, true, 0},
      {"NUOVA", PunteggioIgnoto, "a.dat", {}, false, false, 0},
      {"XY", 10, "b.txt", {}, false, true, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.word);
    const auto found = lexicon.Cerca(row.word);
    ASSERT_TRUE(found);
    EXPECT_TRUE(lexicon.Contiene(row.word));
    EXPECT_EQ(found->punteggio, row.score);
    EXPECT_EQ(found->strato, row.layer);
    EXPECT_EQ(NomiDeiSegni(found->segni), NomiDeiSegni(row.marks));
    EXPECT_EQ(lexicon.Bandita(row.word), row.marks.Ha(Segno::Bandita));
    EXPECT_EQ(found->nelCorredo, row.kit);
    EXPECT_EQ(found->propria, row.own);
    EXPECT_EQ(found->letture.size(), row.readings);
  }
  EXPECT_EQ(lexicon.Cerca("RE")->grafia, "re");
  EXPECT_FALSE(lexicon.Cerca("NESSUNA") || lexicon.Contiene("NESSUNA"));
  // Bans hold for every layer, an admission lifts each of them.
  lexicon.Vieta("SOLE");
  Lessico copy = lexicon;
  for (const char* word : {"SOLE", "ALTO", "CULO", "OVEST"}) {
    EXPECT_TRUE(copy.Cerca(word)->segni.Ha(Segno::Bandita)) << word;
    copy.Ammetti(word);
    EXPECT_FALSE(copy.Bandita(word) || copy.Cerca(word)->segni.Ha(Segno::Bandita)) << word;
    EXPECT_TRUE(lexicon.Bandita(word)) << word;
  }
}

Parola Word(std::string letters, Segni marks = {}, std::vector<std::string_view> codes = {}) {
  Parola word;
  word.lettere = std::move(letters);
  word.segni = marks;
  for (const std::string_view code : codes)
    word.letture.push_back({"x", Code(code)});
  return word;
}

TEST(Rules, EachSetRefusesWhatItsTableSays) {
  Parola kit = Word("RM", {Segno::Sigla}), own = Word("XY");
  kit.nelCorredo = true;
  own.propria = true;
  const struct {
    Parola word;
    std::string_view severe, settimanali;
  } rows[] = {
      {Word("ANDAVA", {}, {"v.ind.impf.3s"}),
       "ANDAVA è una forma di verbo finita o un gerundio: le regole «severe» non l'ammettono."_cp,
       ""},
      {Word("BARCA", {}, {"s.fs", "v.ind.pres.3s"}), "", ""},
      {Word("ANDARE", {}, {"v.inf"}), "", ""},
      {Word("SENZALETTURE"), "", ""},
      {Word("ANDAR", {Segno::Tronca}, {"v.inf"}),
       "ANDAR è una parola tronca: le regole «severe» non l'ammettono."_cp,
       "ANDAR è una parola tronca: le regole «settimanali» non l'ammettono."_cp},
      {kit, "", ""},
      {own, "", ""},
      {Word("XY"),
       "XY non è una delle voci di due lettere riconosciute: le regole «severe» non "
       "l'ammettono."_cp,
       "XY non è una delle voci di due lettere riconosciute: le regole «settimanali» non "
       "l'ammettono."_cp},
      {Word("STU", {Segno::Gioco}),
       "STU si spiega solo come gioco di lettere: le regole «severe» non l'ammettono."_cp, ""},
      {Word("FBI", {Segno::Sigla}), "", ""},
      {Word("ROMA", {Segno::Nome}), "", ""},
      {Word("SHOW", {Segno::Straniera}), "", ""},
  };
  for (const auto& row : rows) {
    const auto because = [&](const char* set) {
      return Divieto(row.word, *RegolamentoDiNome(set)).value_or("");
    };
    EXPECT_EQ(because("severe"), row.severe);
    EXPECT_EQ(because("settimanali"), row.settimanali);
    EXPECT_EQ(because("libere"), "");
  }
}

TEST(Rules, SharesAreRoundedDown) {
  const Regolamento& severe = *RegolamentoDiNome(RegolamentoIniziale);
  EXPECT_EQ(severe.Di(Genia::Straniera).Ammesse(39), 1);
  EXPECT_EQ(severe.Di(Genia::Straniera).Ammesse(19), 0);
  EXPECT_EQ(severe.Di(Genia::Finita).Ammesse(1000), 0);
  EXPECT_EQ(severe.Di(Genia::Nome).Ammesse(7), 7);
  EXPECT_EQ(RegolamentoDiNome("settimanali")->Di(Genia::Finita).Ammesse(58), 5);
  EXPECT_FALSE(RegolamentoDiNome("Severe"));
}

TEST(Rules, AFileChangesASetLineByLine) {
  std::string cause;
  const auto rules = InterpretaRegolamento(
      "\xEF\xBB\xBF# le mie\r\n\r\nFinite = uno  su 7\r\n due=tutte\nbase = settimanali\n"
      "sigle = no\nnomi = S\xC3\x8C\ntre = parole",
      "mie.txt", cause);
  ASSERT_TRUE(rules) << cause;
  Regolamento expected = *RegolamentoDiNome("settimanali");
  expected.nome = "mie.txt";
  expected.Di(Genia::Finita) = {7};
  expected.Di(Genia::Sigla) = {Quota::Nessuna};
  expected.due = DueLettere::Tutte;
  expected.tre = TreLettere::Parole;
  EXPECT_EQ(*rules, expected);
  const auto empty = InterpretaRegolamento("", "severe", cause);
  ASSERT_TRUE(empty);
  EXPECT_EQ(*empty, *RegolamentoDiNome("severe"));
  EXPECT_EQ(InterpretaRegolamento("nomi = s\xEC", "severe", cause), empty);

  constexpr std::string_view valuesOfShare =
      "\" non è un valore di \"finite\"; i valori sono no, si, uno su N (N da 1 a 9999)"_cp;
  const std::pair<std::string_view, std::string> wrong[] = {
      {"base = severe\n\nfinito = no",
       std::string(
           "riga 3: \"finito\" non è una regola; le regole sono base, finite, tronche, due, "
           "tre, nomi, sigle, straniere"_cp)},
      {"finite no", "riga 1: manca \"=\" in \"finite no\""},
      {"due = tutte\ndue = corredo", std::string("riga 2: \"due\" è impostata due volte"_cp)},
      {"base = dure", std::string("riga 1: \"dure\" non è un valore di \"base\"; i valori sono "
                                  "severe, settimanali, libere"_cp)},
      {"finite = uno su 0", Unisci("riga 1: \"uno su 0", valuesOfShare)},
      {"finite = uno su dieci", Unisci("riga 1: \"uno su dieci", valuesOfShare)},
      {"finite =", Unisci("riga 1: \"", valuesOfShare)},
      {std::string_view("b\0a\0s\0e\0", 8),
       std::string("il file è in UTF-16, o non è un testo: va salvato in UTF-8"_cp)},
  };
  for (const auto& [text, because] : wrong) {
    EXPECT_FALSE(InterpretaRegolamento(text, "x", cause)) << text;
    EXPECT_EQ(cause, because);
  }
}

}  // namespace
}  // namespace telarium
