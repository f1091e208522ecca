#include "lexicon/entry.h"

#include <set>

#include <gtest/gtest.h>

#include "platform/codepage.h"

namespace telarium {
namespace {

using C = Categoria;
using M = Modo;
using T = Tempo;
using G = Genere;
using N = Numero;

// The codes of the sources, what they mean, and the forms that a reading of them has.
const struct {
  std::string_view codice;
  Analisi analisi;
  std::string_view forme;
} Codici[] = {
    // clang-format off
    {"s", {.categoria = C::Sostantivo}, ""},
    {"s.f", {.categoria = C::Sostantivo, .genere = G::Femminile}, "femminile"},
    {"s.p", {.categoria = C::Sostantivo, .numero = N::Plurale}, "plurale"},
    {"a.fp.comp", {.categoria = C::Aggettivo, .genere = G::Femminile, .numero = N::Plurale, .comparata = true},
     "plurale,femminile,comparata"},
    {"avv.comp", {.categoria = C::Avverbio, .comparata = true}, "comparata"},
    {"np.ms", {.categoria = C::NomeProprio, .genere = G::Maschile, .numero = N::Singolare}, ""},
    {"sig", {.categoria = C::Abbreviazione}, ""},
    {"v", {.categoria = C::Verbo}, ""},
    {"v.inf", {.categoria = C::Verbo, .modo = M::Infinito}, "infinito"},
    {"v.ger.cli", {.categoria = C::Verbo, .modo = M::Gerundio, .clitica = true}, "gerundio,clitica"},
    {"v.part.pass", {.categoria = C::Verbo, .modo = M::Participio, .tempo = T::Passato}, "participio"},
    {"v.part.pass.fs.cli", {.categoria = C::Verbo, .modo = M::Participio, .tempo = T::Passato, .genere = G::Femminile, .numero = N::Singolare, .clitica = true},
     "femminile,participio,clitica"},
    {"v.cong.impf.1p", {.categoria = C::Verbo, .modo = M::Congiuntivo, .tempo = T::Imperfetto, .persona = 1, .numero = N::Plurale}, "finita"},
    {"v.imp.pres.2s.cli", {.categoria = C::Verbo, .modo = M::Imperativo, .tempo = T::Presente, .persona = 2, .numero = N::Singolare, .clitica = true},
     "finita,clitica"},
    {"v.fin", {.categoria = C::Verbo, .modo = M::Finito}, "finita"},
    // clang-format on
};

TEST(EntryTest, CodeOfTheSourcesIsAnAnalysisAndSurvivesItsBits) {
  std::set<std::uint32_t> seen;
  for (const auto& [codice, analisi, forme] : Codici) {
    SCOPED_TRACE(codice);
    EXPECT_EQ(InterpretaAnalisi(codice), analisi);
    EXPECT_EQ(AnalisiDaBit(BitDi(analisi)), analisi);
    EXPECT_TRUE(seen.insert(BitDi(analisi)).second);
    EXPECT_EQ(NomiDelleForme({"lemma", analisi}, "altra"), forme);
  }
  EXPECT_EQ(NomiDelleForme({"rose", {.categoria = C::Sostantivo, .numero = N::Plurale}}, "rose"),
            "lemma,plurale");
}

TEST(EntryTest, CodesAndBitsThatMeanNothingAreRefused) {
  for (const std::string_view codice : {"",
                                        ".",
                                        "x",
                                        "s.",
                                        "s..f",
                                        "S.f",
                                        "s.inf",
                                        "s.fs.ms",
                                        "s.cli",
                                        "v.cli.inf",
                                        "v.inf.ms",
                                        "v.part",
                                        "v.part.fut",
                                        "v.ind.pres",
                                        "v.ind.pres.4s",
                                        "v.ind.pres.ms",
                                        "v.cond.fut.1s",
                                        "v.fin.3s",
                                        "v.comp",
                                        "a.comp.ms",
                                        "v.infinito",
                                        "a ms"}) {
    EXPECT_FALSE(InterpretaAnalisi(codice)) << codice;
  }
  const std::uint32_t nome = BitDi({.categoria = C::Sostantivo});
  const std::uint32_t indicativo = BitDi({.categoria = C::Verbo,
                                          .modo = M::Indicativo,
                                          .tempo = T::Presente,
                                          .persona = 3,
                                          .numero = N::Plurale});
  ASSERT_TRUE(AnalisiDaBit(nome) && AnalisiDaBit(indicativo));
  // Past the last category, gender and number; a noun with a mood; a finite verb without person;
  // bits behind the last part.
  for (const std::uint32_t bit : {13u, 31u, nome | 3u << 14, nome | 3u << 16, nome | 1u << 5,
                                  indicativo & ~(3u << 12), nome | 1u << 20, 1u << 31})
    EXPECT_FALSE(AnalisiDaBit(bit)) << bit;
}

TEST(EntryTest, OnlyReadingsThatAreAllFiniteMakeAFiniteForm) {
  const Lettura finita = {"barcare", *InterpretaAnalisi("v.ind.pres.3s")};
  const Lettura nome = {"barca", *InterpretaAnalisi("s.fs")};
  EXPECT_TRUE(SoloFinita({finita, {"barcare", *InterpretaAnalisi("v.fin")}}));
  EXPECT_TRUE(SoloFinita({{"amare", *InterpretaAnalisi("v.ger")}}));
  EXPECT_FALSE(SoloFinita({finita, nome}));
  EXPECT_FALSE(SoloFinita({}));
}

TEST(EntryTest, MarksHaveNames) {
  const Segni segni{Segno::Bandita, Segno::Nome, Segno::Tronca};
  EXPECT_EQ(NomiDeiSegni(segni), "nome,tronca,bandita");
  EXPECT_EQ(NomiDeiSegni(Segni(0xFFFF)), "nome,sigla,straniera,locuzione,gioco,tronca,bandita");
  EXPECT_EQ(NomiDeiSegni({}), "");
  EXPECT_EQ(SegnoDiNome("locuzione"), Segno::Locuzione);
  EXPECT_EQ(SegnoDiNome("Nome"), std::nullopt);
  EXPECT_EQ(SegnoDiNome(""), std::nullopt);
}

TEST(EntryTest, SpelledFormIsFolded) {
  const std::pair<std::string_view, std::optional<std::string>> rows[] = {
      {"città", "CITTA"},
      {"L’Aquila", "LAQUILA"},
      {"l'œuvre", "LOEUVRE"},
      {"Luna Park", "LUNAPARK"},
      {"s.p.a.", "SPA"},
      {"dai-dai", "DAIDAI"},
      {"Re", "RE"},
      {"è", {}},
      {"", {}},
      {"- '", {}},
      {"7 nani", {}},
      {"a/b", {}},
      {"re\tmi", {}},
  };
  for (const auto& [utf8, folded] : rows) {
    SCOPED_TRACE(utf8);
    EXPECT_EQ(PiegaGrafiaUtf8(utf8), folded);
    EXPECT_EQ(PiegaGrafia(DaUtf8(utf8)), folded);
  }
  EXPECT_EQ(PiegaGrafiaUtf8("Łódź"), "LODZ");
  EXPECT_FALSE(PiegaGrafiaUtf8("re\xFF"));
  EXPECT_TRUE(PiegaGrafia(std::string(53, 'a')));
  EXPECT_FALSE(PiegaGrafia(std::string(54, 'a')));
}

}  // namespace
}  // namespace telarium
