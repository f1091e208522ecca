#include "laboratory/composer_words.h"

#include <algorithm>
#include <set>

#include "laboratory/checks.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/own_words.h"
#include "support/drawn_crossword.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

// The installed lexicons with lists above them that know some words otherwise.
class ComposerWordsTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    WriteFile(ParoleMie::NomeFile, "casa;3\ngatto;0\ncane;0\nzzyzx;70\nzq\nbasta;90\n");
    choice_.lessici = {"italiano", "inglese",
                       WriteFile("lista.txt", "kwyjibo;12\nqx;30\namare;55\n")};
    choice_.vietate = {"SOLE", "LUNA", "HOUSE", "HA"};
    choice_.ammesse = {"CANE", "LUNA"};
    own_ = {.proprie = {"AMAVA", "PORTA", "XXXYY", "SOLE", "VZ"}, .vietate = {"MARE", "CANE"}};
  }

  void Choose(std::string_view rules, UsoDefinizioni use,
              const Lunghezze& lengths = {0b10'0011'0100}) {
    choice_.regole = *RegolamentoDiNome(rules);
    choice_.definizioni = use;
    std::string cause;
    const LuoghiLessico places = {.lessici = Percorso(TELARIUM_DATA_DIR) / "lexicon",
                                  .programma = CartellaProgramma};
    lexicon_ = LessicoDi(choice_, places, cause);
    ASSERT_TRUE(lexicon_) << cause;
    vocabulary_ = VocabolarioDi(choice_, *lexicon_, &coverage_, lengths, own_);
  }

  // The words to be asked for: a sample of all layers, and those that something is said of.
  std::set<std::string, std::less<>> Asked() const {
    std::set<std::string, std::less<>> words = own_.proprie;
    words.insert(own_.vietate.begin(), own_.vietate.end());
    for (const auto* named : {&choice_.vietate, &choice_.ammesse})
      words.insert(named->begin(), named->end());
    words.insert({"ZZYZX", "ZQ", "BASTA", "KWYJIBO", "QX", "AMARE", "CASA", "ABSENT"});
    for (const int length : {2, 3, 4, 5, 9}) {
      for (const Lessico::Livello& level : lexicon_->Livelli()) {
        const int step = length == 2 ? 1 : 17;
        for (int i = 0; i < level.strato->Conta(length); i += step)
          words.emplace(
              level.strato->Parola(level.strato->Prima(length) + static_cast<NumeroVoce>(i)));
      }
    }
    return words;
  }

  bool MayStand(const std::string& word) const {
    if (std::set<std::size_t>{2, 4, 5, 9}.count(word.size()) == 0) return false;
    if (ParoleVietate(*lexicon_, own_.vietate).Ha(word)) return false;
    if (IsExempt(word)) return true;
    const bool clued = coverage_.Ha(word, choice_.quali);
    if (choice_.definizioni == UsoDefinizioni::Obbligatorie && !clued) return false;
    const auto known = lexicon_->Cerca(word);
    return known && !Divieto(*known, choice_.regole);
  }

  bool IsExempt(const std::string& word) const {
    return own_.proprie.contains(word) ||
           (word.size() == 2 && choice_.regole.due == DueLettere::Tutte);
  }

  void CheckWord(const std::string& word) const {
    const auto number = vocabulary_->Cerca(word);
    ASSERT_EQ(number.has_value(), MayStand(word)) << word;
    if (!number) return;
    const auto known = lexicon_->Cerca(word);
    const bool exempt = IsExempt(word);
    EXPECT_EQ(vocabulary_->Propria(*number), exempt) << word;
    EXPECT_EQ(vocabulary_->Definita(*number), coverage_.Ha(word, choice_.quali)) << word;
    if (known) {
      EXPECT_EQ(vocabulary_->Punteggio(*number), known->punteggio) << word;
    }
    for (int i = 0; i < NumGenie; ++i) {
      const auto kind = static_cast<Genia>(i);
      const bool has = !exempt && Appartiene(*known, kind);
      EXPECT_EQ((vocabulary_->GenieDi(*number) & SolaGenia(kind)) != 0, has) << word << i;
    }
  }

  const Copertura coverage_{std::vector<VoceCopertura>{{"CASA", {1, 0}},
                                                       {"AMATO", {2, 0}},
                                                       {"HOTEL", {0, 1}},
                                                       {"ZZYZX", {1, 1}},
                                                       {"RE", {1, 0}},
                                                       {"PORTA", {1, 0}},
                                                       {"ATTENTATO", {3, 0}}}};
  SceltaParole choice_;
  ParoleDiCruciverba own_;
  std::optional<Lessico> lexicon_;
  std::shared_ptr<const Vocabolario> vocabulary_;
};

TEST_F(ComposerWordsTest, HasTheWordsThatTheCheckLetsPass) {
  for (const std::string_view rules : {"severe", "settimanali", "libere"}) {
    SCOPED_TRACE(rules);
    Choose(rules, UsoDefinizioni::Preferite);
    const auto asked = Asked();
    ASSERT_GT(asked.size(), 7000u);
    for (const std::string& word : asked)
      CheckWord(word);
  }
  EXPECT_EQ(vocabulary_->Quante(2), 26 * 26 - 1);  // all but HA, which is banned
  EXPECT_EQ(vocabulary_->Quante(3), 0);
  Choose("severe", UsoDefinizioni::Obbligatorie);
  for (const std::string& word : Asked())
    CheckWord(word);
}

TEST_F(ComposerWordsTest, BestWordsComeFirstThoseWithAClueBeforeAllOthers) {
  Choose("severe", UsoDefinizioni::Preferite);
  for (const int length : {2, 4, 5, 9}) {
    for (int i = 1; i < vocabulary_->Quante(length); ++i) {
      const NumeroParola before = {length, i - 1}, word = {length, i};
      ASSERT_GE(vocabulary_->Pregio(before), vocabulary_->Pregio(word));
      ASSERT_GE(vocabulary_->Definita(before), vocabulary_->Definita(word));
      if (vocabulary_->Pregio(before) == vocabulary_->Pregio(word)) {
        ASSERT_LT(vocabulary_->Parola(before), vocabulary_->Parola(word));
      }
    }
  }
}

// Whether the check warns of two forms of one word.
bool CheckTells(const std::string& one, const std::string& other, const Criteri& criteria) {
  std::vector<std::string> rows(3, std::string(9, '#'));
  rows[0].replace(0, one.size(), one);
  rows[2].replace(0, other.size(), other);
  const Verdetto verdict = Controlla(DrawnCrossword(rows), criteria);
  return std::ranges::count(verdict.avvisi, Codice::LemmaRipetuto, &Rilievo::codice) > 0;
}

TEST_F(ComposerWordsTest, AkinAsAnEditorSeesIt) {
  const struct {
    const char* one;
    const char* other;
    bool akin;
  } cases[] = {
      {"ESSO", "ESSA", true},    {"ESSI", "ESSE", true},       {"ALLO", "ALLE", true},
      {"DEL", "DELLE", true},    {"ALLO", "DALLO", false},     {"NOSTRO", "VOSTRO", false},
      {"TUO", "TUE", true},      {"MIO", "MIEI", true},        {"QUESTO", "QUESTE", true},
      {"UNO", "UNA", true},      {"ALTRO", "ALTRA", true},     {"LUI", "LEI", false},
      {"LA", "IL", false},       {"SECONDO", "SECONDA", true}, {"TRATTI", "TRATTE", false},
      {"ALPI", "ALPINA", false}, {"DATA", "DATO", false},      {"DATA", "DATE", true},
      {"NEI", "NEL", true},      {"ALLA", "AGLIO", false},     {"VERSO", "VERSI", true},
  };
  Choose("severe", UsoDefinizioni::No, {0b1111'1100});
  const Criteri criteria = CriteriDi(choice_, *lexicon_, nullptr);
  for (const auto& [one, other, akin] : cases) {
    ASSERT_TRUE(vocabulary_->Cerca(other)) << other;
    std::set<std::string_view> found;
    for (const NumeroParola relative : vocabulary_->Parenti(one))
      found.insert(vocabulary_->Parola(relative));
    EXPECT_EQ(found.contains(other), akin) << one << ' ' << other;
    EXPECT_EQ(CheckTells(one, other, criteria), akin) << one << ' ' << other;
  }
}

TEST_F(ComposerWordsTest, AkinAreTheWordsThatTheCheckTellsOf) {
  for (const std::string_view rules : {"severe", "libere"}) {
    Choose(rules, UsoDefinizioni::No);
    const Criteri criteria = CriteriDi(choice_, *lexicon_, nullptr);
    const auto told = [&](const std::string& one, const std::string& other) {
      return CheckTells(one, other, criteria);
    };
    const auto& italian = *lexicon_->Livelli().front().strato->ComeFile();
    int pairs = 0;
    for (const char* const word :
         {"AMARE", "AMAVA", "CORSO", "CORSA", "PORTA", "VA", "BUONO", "ES", "HOTEL", "DARE",
          "ZZYZX", "SONO", "ERA", "MATTO", "RE", "MIEI", "DEI"}) {
      std::set<std::string> akin;
      for (const NumeroParola other : vocabulary_->Parenti(word))
        akin.emplace(vocabulary_->Parola(other));
      EXPECT_FALSE(akin.contains(word));
      std::set<std::string> compared = akin;
      compared.insert({"ANDARE", "GATTO", "VADO", "IT", "DA"});
      if (const auto entry = italian.Cerca(word)) {
        for (const NumeroVoce relative : italian.Famiglia(*entry))
          compared.emplace(italian.Parola(relative));
      }
      for (const std::string& other : compared) {
        if (other == word || !vocabulary_->Cerca(other)) continue;
        EXPECT_EQ(akin.contains(other), told(word, other)) << word << ' ' << other << ' ' << rules;
        pairs += akin.contains(other);
      }
    }
    EXPECT_GT(pairs, 20);
  }
  choice_.ammetteForme = true;
  Choose("severe", UsoDefinizioni::No);
  EXPECT_FALSE(vocabulary_->HaParentele());
}

}  // namespace
}  // namespace telarium
