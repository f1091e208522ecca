#include "laboratory/checks.h"

#include <map>

#include <gtest/gtest.h>

#include "laboratory/small_lexicon.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "support/drawn_crossword.h"

namespace telarium {
namespace {

using Lines = std::vector<std::string>;

// 1 PORTA, 6 ETIRE, 7 SALVO, 8 CINGE, 9 ALTRE across; 1 PESCA, 2 OTAIL, 3 RILNT, 4 TRVGR, 5 AEOEE
// down.
const Lines Sound = {"PORTA", "ETIRE", "SALVO", "CINGE", "ALTRE"};

// A crossword with something planted in it. What is not said is sound: each run of letters is an
// entry of score 80, each has a clue like no other.
struct Planted {
  const char* name;
  Lines rows = Sound;
  Lines words = {};  // entries of the lexicon in place of those, "-WORD" for none
  std::map<std::string, std::string> clues = {};  // by number and direction
  Lines own = {}, banned = {};                    // what the crossword itself holds
  std::string_view rules = "severe";
  Lines found = {};  // in UTF-8
};

void PrintTo(const Planted& planted, std::ostream* out) {
  *out << planted.name;
}

class Crossword {
 public:
  explicit Crossword(const Planted& planted) : value(DrawnCrossword(planted.rows)) {
    value.laboratorio.Proprio().proprie = planted.own;
    value.laboratorio.Proprio().vietate = planted.banned;
    criteria.regole = *RegolamentoDiNome(planted.rules);
    const Derivati grid = Deriva(value);
    std::map<std::string, std::string> lines;
    for (const Slot& slot : grid.Parole()) {
      const std::string letters = grid.Lettere(slot);
      if (PiegaGrafia(letters)) lines[*PiegaGrafia(letters)] = *PiegaGrafia(letters) + " 80";
      SetClue(grid, slot, planted.clues);
    }
    for (const std::string& word : planted.words) {
      const std::string letters = word.substr(0, word.find(' '));
      if (letters[0] == '-') {
        lines.erase(letters.substr(1));
      } else {
        lines[letters] = word;
      }
    }
    Lines all;
    for (const auto& [letters, line] : lines)
      all.push_back(line);
    criteria.lessico.Aggiungi(std::make_shared<SmallLayer>(all), Origine::Lingua);
    // Two letters stand in the kit.
    std::erase_if(all, [](const std::string& line) { return line.find(' ') != 2; });
    criteria.lessico.Aggiungi(std::make_shared<SmallLayer>(all), Origine::Sigle);
  }

  Lines Found() const {
    Lines lines;
    const Verdetto verdict = Controlla(value, criteria);
    EXPECT_EQ(verdict.Stampabile(), verdict.errori.empty());
    for (const auto* findings : {&verdict.errori, &verdict.avvisi}) {
      for (const Rilievo& one : *findings) {
        EXPECT_EQ(Errore(one.codice), findings == &verdict.errori);
        lines.push_back(AUtf8(Unisci(NomeDi(one.codice), ' ', one.inizio.colonna, ',',
                                     one.inizio.riga, ' ', "-OV"[one.direzione], ' ', one.testo)));
      }
    }
    return lines;
  }

  Cruciverba value;
  Criteri criteria;

 private:
  void SetClue(const Derivati& grid, const Slot& slot,
               const std::map<std::string, std::string>& clues) {
    const auto [column, row] = slot.inizio;
    const std::string key =
        Unisci(grid.Numero(slot.inizio), slot.direzione == Orizzontale ? 'O' : 'V');
    const auto planted = clues.find(key);
    value.definizioni.Imposta(
        planted == clues.end() ? Unisci("q", key, " w", key, " z", key) : DaUtf8(planted->second),
        column, row, slot.direzione);
  }
};

const Planted Cases[] = {
    {.name = "Nothing", .found = {}},
    // --- inesistente ---
    {.name = "NoWord",
     .words = {"-PORTA"},
     .found = {"inesistente 1,1 O PORTA (1 orizzontale) non è in nessun elenco di parole."}},
    {.name = "OwnWordIsNotQuestioned",
     .words = {"-PORTA", "PESCA 5 v.ind.pres.3s pescare"},
     .own = {"porta", "pesca"},
     .found = {}},
    {.name = "EmptyCells",
     .rows = {".....", "ETIRE", "SALVO", "CINGE", "ALTRE"},
     .clues = {{"1O", ""}},
     .found = {"inesistente 1,1 O 1 orizzontale ha caselle vuote.",
               "senza-definizione 1,1 O 1 orizzontale non ha una definizione.",
               "inesistente 1,1 V .ESCA (1 verticale) ha caselle vuote.",
               "inesistente 2,1 V .TAIL (2 verticale) ha caselle vuote.",
               "inesistente 3,1 V .ILNT (3 verticale) ha caselle vuote.",
               "inesistente 4,1 V .RVGR (4 verticale) ha caselle vuote.",
               "inesistente 5,1 V .EOEE (5 verticale) ha caselle vuote."}},
    {.name = "SignInACell",
     .rows = {"POR7A", "ETIRE", "SALVO", "CINGE", "ALTRE"},
     .found = {"inesistente 1,1 O POR7A (1 orizzontale) ha un segno che non è una lettera.",
               "inesistente 4,1 V 7RVGR (4 verticale) ha un segno che non è una lettera."}},
    {.name = "AccentsAndSmallLettersFold",
     .rows = {"PORT\xC0", "eTIRE", "SALVO", "CINGE", "ALTRE"},
     .found = {}},
    // --- ripetuta ---
    {.name = "EntryTwice",
     .rows = {"PORTA", "ETIRE", "P\xD2RTA", "CINGE", "ALTRE"},
     .found = {"ripetuta 1,3 O PÒRTA (7 orizzontale) è nello schema anche come 1 orizzontale."}},
    // --- regola ---
    {.name = "FiniteFormUnderStrictRules",
     .words = {"PORTA 80 v.ind.pres.3s portare", "PESCA 80 v.ind.pres.3s pescare s.fs pesca"},
     .found =
         {"regola 1,1 O PORTA (1 orizzontale) è una forma di verbo finita o un gerundio: le regole "
          "«severe» non l'ammettono."}},
    {.name = "OneInTenTakesTheBestScores",
     .words = {"PORTA 70 v.ind.pres.3s portare", "SALVO 60 v.ind.pres.1s salvare",
               "CINGE 80 v.ind.pres.3s cingere"},
     .rules = "settimanali",
     .found = {"regola 1,1 O PORTA (1 orizzontale) è una forma di verbo finita o un gerundio: lo "
               "schema ne ha "
               "3, le "
               "regole ne ammettono 1.",
               "regola 1,3 O SALVO (7 orizzontale) è una forma di verbo finita o un gerundio: lo "
               "schema ne ha "
               "3, le "
               "regole ne ammettono 1."}},
    {.name = "TwoLettersUnderFreeRules",
     .rows = {"PO#TA", "ETIRE", "SALVO", "CINGE", "ALTRE"},
     .words = {"-PO", "-TA"},
     .clues = {{"1O", ""}, {"3O", ""}},
     .rules = "libere",
     .found = {"due-lettere 0,0 - Troppe voci di due lettere: 2 su 11, meglio non più di 1."}},
    // --- separate ---
    {.name = "AreaCutOff",
     .rows = {"PORTA", "ETIRE", "#####", "###CI", "###LO"},
     .found = {"separate 4,4 - Da queste 4 caselle non si arriva al resto dello schema.",
               "due-lettere 0,0 - Troppe voci di due lettere: 9 su 11, meglio non più di 1."}},
    // --- clues ---
    {.name = "NoClue",
     .clues = {{"5V", "  "}},
     .found = {"senza-definizione 5,1 V AEOEE (5 verticale) non ha una definizione."}},
    {.name = "ClueTwice",
     .clues = {{"5V", "Già visto"}, {"6O", "GIA VISTO!"}},
     .found = {"definizione-ripetuta 1,2 O ETIRE (6 orizzontale) ha la stessa definizione di AEOEE "
               "(5 verticale)."}},
    {.name = "ClueHoldsItsAnswer",
     .clues = {{"1O", "Si apre, la pòrta: portale"}},
     .found = {"definizione-rivela 1,1 O La definizione di PORTA (1 orizzontale) contiene la "
               "risposta."}},
    {.name = "ClueHoldsAPhrase",
     .words = {"PORTA 80 =POR_TA", "CINGE 80 =C'IN_GE"},
     .clues = {{"1O", "Un «por ta» qui"}, {"6O", "Oltre c'in ge"}, {"9O", "Un por lungo"}},
     .found = {"definizione-rivela 1,1 O La definizione di PORTA (1 orizzontale) contiene la "
               "risposta.",
               "definizione-rivela 1,2 O La definizione di ETIRE (6 orizzontale) contiene un'altra "
               "voce dello schema: CINGE (8 orizzontale)."}},
    {.name = "ClueSharesAStem",
     .clues = {{"1O", "Un portale"}, {"7O", "Un salvacondotto"}},
     .found = {"definizione-rivela 1,1 O La definizione di PORTA (1 orizzontale) tradisce la "
               "risposta: «portale» le somiglia troppo."}},
    {.name = "ClueSharesALemma",
     .words = {"CINGE 80 v.ind.pres.3s cingere s.fs cinta", "CINTE 80 v.part.pass.fp cingere",
               "SALVO 80 v.ind.pres.3s essere", "SIA 80 v.cong.pres.3s essere"},
     .clues = {{"8O", "Sono cinte d'assedio"}, {"7O", "Sia pure"}},
     .rules = "libere",
     .found = {"definizione-rivela 1,4 O La definizione di CINGE (8 orizzontale) tradisce la "
               "risposta: «cinte» le somiglia troppo."}},
    {.name = "ClueHoldsAnotherEntry",
     .rows = {"POR#A", "ETIRE", "SALVO", "CINGE", "ALTRE"},
     .clues = {{"5O", "Pesca in acque, malaltre, por"}},
     .found = {"definizione-rivela 1,2 O La definizione di ETIRE (5 orizzontale) contiene un'altra "
               "voce dello schema: PESCA (1 verticale).",
               "cella-sola 5,1 - La casella 1 di AEOEE (4 verticale) non ha un incrocio."}},
    {.name = "BannedEntryAndClue",
     .words = {"PORTA 80 +bandita", "SCEMO 80 +bandita"},
     .clues = {{"6O", "Uno Scemo, no"}, {"7O", "La zuppa"}},
     .banned = {"cinge", "zuppa", "la"},
     .found = {"vietata 1,1 O PORTA (1 orizzontale) è una parola vietata.",
               "definizione-vietata 1,2 O La definizione di ETIRE (6 orizzontale) contiene una "
               "parola vietata: «Scemo».",
               "definizione-vietata 1,3 O La definizione di SALVO (7 orizzontale) contiene una "
               "parola vietata: «zuppa».",
               "vietata 1,4 O CINGE (8 orizzontale) è una parola vietata."}},
    {.name = "ClueTooLong",
     .clues = {{"1O", std::string(45, 'x')},
               {"6O", std::string(46, 'y')},
               {"7O", std::string(60, 'w')},
               {"8O", std::string(61, 'z')}},
     .found =
         {"definizione-lunga 1,4 O La definizione di CINGE (8 orizzontale) ha 61 caratteri: il "
          "massimo è 60.",
          "definizione-oltre 1,2 O La definizione di ETIRE (6 orizzontale) ha 46 caratteri: "
          "meglio non più di 45.",
          "definizione-oltre 1,3 O La definizione di SALVO (7 orizzontale) ha 60 caratteri: "
          "meglio non più di 45."}},
    {.name = "PatternThreeTimes",
     .clues = {{"1O", "In fondo al mare"},
               {"3V", "In fondo ai laghi"},
               {"4V", "In fondo"},
               {"8O", "In fondo all'orto"}},
     .found =
         {"schema-ripetuto 1,4 O La definizione di CINGE (8 orizzontale) comincia come altre 2: "
          "«In fondo a»."}},
    {.name = "FillerClue",
     .clues = {{"1V", "Nome maschile"}},
     .found = {"riempitiva 1,1 V La definizione di PESCA (1 verticale) dice troppo poco: «Nome "
               "maschile»."}},
    // --- warnings about words ---
    {.name = "TwoFormsOfALemma",
     .words = {"PORTA 80 s.fs porta v.ind.pres.3s portare", "CINGE 80 v.inf portare",
               "ETIRE 80 s.fs etira v.part.pass.fp salvare", "SALVO 80 a.ms salvo v.inf salvare",
               "ALTRE 80 a.fp altro v.ind.pres.3s portare"},
     .found =
         {"lemma-ripetuto 1,4 O CINGE (8 orizzontale) e PORTA (1 orizzontale) sono forme della "
          "stessa parola, «portare».",
          "lemma-ripetuto 1,5 O ALTRE (9 orizzontale) e CINGE (8 orizzontale) sono forme della "
          "stessa parola, «portare»."}},
    {.name = "FiveLettersInCommon",
     .rows = {"PORTALE", "#######", "TERZINO", "#######", "APORTAL", "#######", "TERZONI"},
     .found = {"separate 1,3 - Da queste 7 caselle non si arriva al resto dello schema.",
               "separate 1,5 - Da queste 7 caselle non si arriva al resto dello schema.",
               "separate 1,7 - Da queste 7 caselle non si arriva al resto dello schema.",
               "tratto-comune 1,5 O APORTAL (3 orizzontale) e PORTALE (1 orizzontale) hanno in "
               "comune PORTAL."}},
    {.name = "RareEntriesBeyondOneInTen",
     .words = {"PORTA 29", "SALVO 10", "CINGE 30"},
     .found = {"rare 1,3 O SALVO (7 orizzontale) è una parola rara: lo schema ne ha 2, meglio non "
               "più di 1."}},
    {.name = "RareEntriesThatCross",
     .words = {"SALVO 29", "OTAIL 29"},
     .found =
         {"rare 2,1 V OTAIL (2 verticale) è una parola rara: lo schema ne ha 2, meglio non più "
          "di 1.",
          "incrocio-duro 1,3 O SALVO (7 orizzontale) e OTAIL (2 verticale) si incrociano e "
          "sono rare tutt'e due."}},
};

class Check : public testing::TestWithParam<Planted> {};

TEST_P(Check, TellsWhatIsPlantedAndNothingElse) {
  const Planted& planted = GetParam();
  Lines found = Crossword(planted).Found();
  // Runs without a crossing are all cells in one word.
  if (planted.name == std::string("FiveLettersInCommon"))
    std::erase_if(found, [](const std::string& line) { return line.starts_with("cella-sola"); });
  EXPECT_EQ(found, planted.found);
}

INSTANTIATE_TEST_SUITE_P(Laboratory, Check, testing::ValuesIn(Cases),
                         [](const auto& row) { return row.param.name; });

TEST(Checks, CriteriaChangeWhatIsAsked) {
  Planted planted = {
      .name = "", .words = {"PORTA 39 s.fs porta", "SALVO 80 s.fp porta"}, .clues = {{"1O", ""}}};
  Crossword crossword(planted);
  crossword.criteria.vuoleDefinizioni = false;
  crossword.criteria.ammetteForme = true;
  EXPECT_EQ(crossword.Found(), Lines());
  crossword.criteria.minimi[5] = 40;
  crossword.criteria.lessico.Vieta("SALVO");
  crossword.criteria.lessico.Vieta("CINGE");
  crossword.criteria.lessico.Ammetti("CINGE");
  EXPECT_EQ(crossword.Found(),
            (Lines{"regola 1,1 O PORTA (1 orizzontale) ha punteggio 39: il minimo chiesto è 40.",
                   "vietata 1,3 O SALVO (7 orizzontale) è una parola vietata."}));
}

TEST(Checks, FiguresInTheirOrder) {
  Crossword crossword({.name = "",
                       .rows = {"PO#TA", "ETIRE", "SALVO", "CINGE", "AL.RE"},
                       .words = {"PO 20", "ETIRE 55"},
                       .own = {"cinge"}});
  const Copertura coverage(std::vector<VoceCopertura>{
      {"ETIRE", {.facili = 1, .difficili = 1}}, {"SALVO", {.facili = 2}}, {"ROBA", {.facili = 1}}});
  crossword.criteria.copertura = &coverage;
  crossword.criteria.grado = [](std::string_view word, std::string_view) {
    return GradoDefinizione{.difficile = word == "ETIRE"};
  };
  Lines figures;
  for (const auto& [name, value] : Controlla(crossword.value, crossword.criteria).cifre)
    figures.push_back(name + ' ' + value);
  // Entries that are judged: PO, TA, ETIRE, SALVO, PESCA, OTAIL, TRVGR, AEOEE.
  EXPECT_EQ(figures, (Lines{"nere 4.0", "media 4.4", "punteggio 69.4", "minimo 20", "facili 2",
                            "difficili 1", "lettere 13", "piazza 5x4", "difficolta 1.4", "voci-2 2",
                            "voci-4 1", "voci-5 8"}));
}

TEST(Checks, WithoutWordsFiguresAreEmpty) {
  const Crossword crossword({.name = "", .rows = {"#.#", "###"}});
  const Verdetto verdict = Controlla(crossword.value, crossword.criteria);
  EXPECT_TRUE(verdict.Stampabile());
  EXPECT_EQ(verdict.cifre[1], (Cifra{"media", ""}));
  EXPECT_EQ(verdict.cifre[3], (Cifra{"minimo", ""}));
  EXPECT_EQ(verdict.cifre[7], (Cifra{"piazza", "1x1"}));
  EXPECT_EQ(verdict.cifre.size(), 9u);
  EXPECT_TRUE(Controlla(Cruciverba(), crossword.criteria).errori.empty());
}

}  // namespace
}  // namespace telarium
