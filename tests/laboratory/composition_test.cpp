#include "laboratory/composition.h"

#include <gtest/gtest.h>

#include "laboratory/small_lexicon.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "support/drawn_crossword.h"

namespace telarium {
namespace {

using Lines = std::vector<std::string>;

Lessico SmallLexicon() {
  const Lines words = {"RE 90",
                       "ARO 20",
                       "ARMA 20",
                       "CASA 80",
                       "NOTO 60",
                       "SEGUO 70 v.ind.pres.1s seguire",
                       "HOTEL 75 +straniera",
                       "TAXI 80 +straniera",
                       "VIETA 50 +bandita"};
  Lessico lexicon;
  lexicon.Aggiungi(std::make_shared<SmallLayer>(words), Origine::Lingua);
  lexicon.Aggiungi(std::make_shared<SmallLayer>(Lines{"RE 90"}), Origine::Sigle);
  return lexicon;
}

const Copertura& Coverage() {
  static const Copertura coverage{std::vector<VoceCopertura>{{"CASA", {1, 0}}}};
  return coverage;
}

std::optional<Composizione> Prepared(const Cruciverba& crossword, const SceltaComposizione& choice,
                                     std::string& message) {
  return PreparaComposizione(crossword, choice, SmallLexicon(), &Coverage(), message);
}

Composizione Prepared(const Lines& rows, const SceltaComposizione& choice = {}) {
  std::string message;
  auto prepared = Prepared(DrawnCrossword(rows), choice, message);
  EXPECT_TRUE(prepared) << message;
  return prepared.value_or(Composizione());
}

// "1,1 O ca_?": a slot with its cells: a given letter, "." for any, "?" for none, "_" for one that
// is left.
Lines Slots(const Composizione& composition) {
  Lines lines;
  const Problema& problem = composition.problema;
  for (std::size_t i = 0; i < composition.slot.size(); ++i) {
    const Slot& slot = composition.slot[i];
    std::string line = Unisci(slot.inizio.colonna, ',', slot.inizio.riga,
                              slot.direzione == Orizzontale ? " O " : " V ");
    for (const int cell : problem.slot[i].caselle) {
      const Lettere letters = problem.lettere[static_cast<std::size_t>(cell)];
      line += problem.Lasciata(cell) ? '_' : letters == TutteLeLettere ? '.' : '?';
      for (char letter = 'A'; letter <= 'Z'; ++letter)
        if (letters == SolaLettera(letter)) line.back() = letter;
    }
    lines.push_back(line + (problem.slot[i].aperto ? " aperto" : ""));
  }
  return lines;
}

TEST(CrosswordToProblem, SlotsAreTheRunsThatAreNotGivenWhole) {
  const Composizione composition = Prepared({"CASA", "\xC0#7.", "R#.."});
  EXPECT_EQ(Slots(composition), (Lines{"3,1 V S?.", "4,1 V A..", "3,2 O ?.", "3,3 O .."}));
  EXPECT_EQ(composition.problema.altrove, (Lines{"CASA", "CAR"}));
  EXPECT_EQ(composition.proprie, Lines{"CAR"});  // in no layer
  EXPECT_EQ(composition.problema.vocabolario->Quante(3), 1);
  EXPECT_EQ(composition.problema.vocabolario->Quante(4), 0);  // no slot is so long

  const Composizione lone = Prepared({".#.", "###", "A#."});
  EXPECT_EQ(lone.problema.Slot(), 0);
  EXPECT_EQ(lone.problema.Caselle(), 0);
}

TEST(CrosswordToProblem, OutsideARegionCellsStayEmptyAndTheirEntriesOpen) {
  const Composizione composition =
      Prepared({"....", "..A.", "...."}, {.parole = {}, .regione = Regione{{3, 1}, {4, 2}}});
  EXPECT_EQ(Slots(composition), (Lines{"1,1 O __.. aperto", "3,1 V .A_ aperto", "4,1 V .._ aperto",
                                       "1,2 O __A. aperto"}));
  Cruciverba filled = ConLettere(composition, std::string(composition.caselle.size(), 'X'));
  EXPECT_EQ(Deriva(filled).Lettere({{1, 1}, Orizzontale, 4}), "..XX");
  EXPECT_EQ(Deriva(filled).Lettere({{1, 2}, Orizzontale, 4}), "..AX");
}

TEST(CrosswordToProblem, LettersThatAreDroppedTakeTheirCluesAlongButForLockedWords) {
  Cruciverba crossword = DrawnCrossword({"CASA", "A#O.", "SETA"});
  for (const int direction : Direzioni)
    crossword.definizioni.Imposta("uno", 1, 1, direction);
  crossword.definizioni.Imposta("due", 1, 3, Orizzontale);
  crossword.laboratorio.Proprio().bloccate = {
      {{1, 1}, Verticale}, {{9, 9}, Orizzontale}, {{2, 2}, Verticale}};
  std::string message;
  const auto composition = Prepared(crossword, {.parole = {}, .daCapo = true}, message);
  ASSERT_TRUE(composition);
  EXPECT_EQ(Slots(*composition),
            (Lines{"1,1 O C...", "3,1 V ...", "4,1 V ...", "3,2 O ..", "1,3 O S..."}));
  const Cruciverba filled = ConLettere(*composition, std::string(composition->caselle.size(), 'E'));
  EXPECT_EQ(filled.definizioni(1, 1, Verticale), "uno");
  EXPECT_EQ(filled.definizioni(1, 1, Orizzontale), "");
  EXPECT_EQ(filled.definizioni(1, 3, Orizzontale), "");
  EXPECT_EQ(Deriva(filled).Lettere({{1, 1}, Orizzontale, 4}), "CEEE");
}

TEST(CrosswordToProblem, WordsThatStayKeepLettersAndCluesAndOwnOnesAreNoted) {
  Cruciverba crossword = DrawnCrossword({"Cit\xE0", "A#..", "S#.."});
  crossword.definizioni.Imposta("resta", 1, 1, Orizzontale);
  crossword.definizioni.Imposta("va", 3, 1, Verticale);
  crossword.laboratorio.Proprio().proprie = {"cas"};
  std::string message;
  const auto composition =
      Prepared(crossword, {.parole = {}, .volute = {"TEX", "YZ", "QQ"}}, message);
  ASSERT_TRUE(composition) << message;
  EXPECT_EQ(composition->proprie, (Lines{"CITA", "QQ", "TEX", "YZ"}));
  std::string letters(composition->caselle.size(), SenzaLettera);
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const auto [column, row] = composition->caselle[i];
    if (row > 1)
      letters[i] = column == 3 ? (row == 2 ? 'E' : 'X') : (row == 2 ? 'O' : SenzaLettera);
  }
  const Cruciverba filled = ConLettere(*composition, letters);
  EXPECT_EQ(Deriva(filled).Lettere({{1, 1}, Orizzontale, 4}), "Cit\xE0");
  EXPECT_EQ(Deriva(filled).Lettere({{4, 1}, Verticale, 3}), "\xE0O.");
  EXPECT_EQ(filled.definizioni(1, 1, Orizzontale), "resta");
  EXPECT_EQ(filled.definizioni(3, 1, Verticale), "");
  EXPECT_EQ(filled.laboratorio->proprie, (Lines{"cas", "CITA", "TEX"}));
}

TEST(CrosswordToProblem, NumbersCountWhatStands) {
  SceltaComposizione choice;
  const auto foreign = static_cast<std::size_t>(Genia::Straniera);
  const Lines rows = {"TAXI", "...#", "#..#", ".#.."};
  EXPECT_EQ(Prepared(rows, choice).problema.alMassimo[foreign], 0);  // one in twenty of 8
  choice.straniere = 3;
  choice.parole.regole = *RegolamentoDiNome("libere");
  EXPECT_EQ(Prepared(rows, choice).problema.alMassimo[foreign], 2);
  choice.straniere.reset();
  EXPECT_EQ(Prepared(rows, choice).problema.alMassimo[foreign], SenzaLimite);

  choice.due = 3;
  EXPECT_TRUE(Prepared(rows, choice).dueDiTroppo.empty());
  choice.due = 2;
  const auto tooMany = Prepared(rows, choice).dueDiTroppo;
  ASSERT_EQ(tooMany.size(), 3u);
  EXPECT_EQ(tooMany[0], (Slot{{1, 1}, Verticale, 2}));
}

struct Contradiction {
  const char* message;  // in UTF-8
  SceltaComposizione choice;
};

SceltaComposizione Wanting(const char* word) {
  return {.parole = {}, .volute = {word}};
}

SceltaComposizione Masked(std::initializer_list<MascheraDiParola> masks) {
  return {.parole = {}, .maschere = masks};
}

SceltaComposizione Within(Regione region) {
  return {.parole = {}, .regione = region};
}

TEST(CrosswordToProblem, DemandsThatContradictEachOtherAreTold) {
  Cruciverba crossword = DrawnCrossword({"C....", ".#.#.", "NOTO.", ".#.#."});
  crossword.laboratorio.Proprio().vietate = {"casa"};
  crossword.laboratorio.Proprio().proprie = {"gatto"};
  SceltaComposizione scored = Wanting("ARMA");
  scored.parole.livelli.fill(30);
  SceltaComposizione clued = Wanting("TAXI");
  clued.parole.definizioni = UsoDefinizioni::Obbligatorie;
  SceltaComposizione outside = Masked({{{{1, 1}, Orizzontale}, "C..A."}});
  outside.regione = Regione{{1, 2}, {5, 4}};
  const MascheraDiParola across = {{{1, 1}, Orizzontale}, "..A.."};
  const Contradiction rows[] = {
      {"La parola voluta CASA è vietata.", Wanting("CASA")},
      {"La parola voluta VIETA è vietata.", Wanting("VIETA")},
      {"La parola voluta SEGUITO (7) non ha posto: nessuna parola da completare ha tante lettere.",
       Wanting("SEGUITO")},
      {"Le parole volute SEGUITO (7), TRE (3) non hanno posto: nessuna parola da completare ha "
       "tante "
       "lettere.",
       {.parole = {}, .volute = {"CASA", "NOTO", "SEGUITO", "TRE"}}},
      {"La parola voluta SEGUO è una forma di verbo finita o un gerundio: le regole «severe» non "
       "l'ammettono.",
       Wanting("SEGUO")},
      {"La parola voluta ARMA ha punteggio 20: il minimo chiesto è 30.", scored},
      {"La parola voluta TAXI non ha una definizione, che qui ci vuole.", clued},
      {"", Wanting("NOTO")},
      {"", Wanting("GATTO")},
      {"", Wanting("AROLA")},
      {"La maschera ..A.. in 2,1 orizzontale: lì non comincia nessuna parola.",
       Masked({{{{2, 1}, Orizzontale}, "..A.."}})},
      {"La maschera ..A.. in 60,1 verticale: lì non comincia nessuna parola.",
       Masked({{{{60, 1}, Verticale}, "..A.."}})},
      {"La maschera A in 1,1 verticale è lunga 1, la parola 4.",
       Masked({{{{1, 1}, Verticale}, "A"}})},
      {"La maschera B.... in 1,1 orizzontale: la casella 1,1 ha già un'altra lettera, C.",
       Masked({{{{1, 1}, Orizzontale}, "B...."}})},
      {"La maschera E... in 3,1 verticale: la casella 3,1 ne ha un'altra da un'altra maschera.",
       Masked({across, {{{3, 1}, Verticale}, "E..."}})},
      {"La maschera C.7.. in 1,1 orizzontale: il segno 7 non è una lettera.",
       Masked({{{{1, 1}, Orizzontale}, "C.7.."}})},
      {"La maschera C..A. in 1,1 orizzontale: la casella 4,1 non si riempie: sta fuori della "
       "regione.",
       outside},
      {"", Masked({across, {{{3, 1}, Verticale}, "a.T."}})},
      {"La regione 2,2,1,3 finisce prima di dove comincia.", Within({{2, 2}, {1, 3}})},
      {"La regione 1,1,6,4 esce dallo schema, che ha 5 colonne e 4 righe.",
       Within({{1, 1}, {6, 4}})},
  };
  for (const auto& [expected, choice] : rows) {
    std::string message;
    EXPECT_EQ(Prepared(crossword, choice, message).has_value(), std::string(expected).empty());
    EXPECT_EQ(AUtf8(message), expected);
  }
}

}  // namespace
}  // namespace telarium
