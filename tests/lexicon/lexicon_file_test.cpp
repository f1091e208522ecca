#include "lexicon/lexicon_file.h"

#include <algorithm>
#include <cstring>
#include <sys/stat.h>

#include "lexicon/lexicon_builder.h"
#include "platform/codepage.h"
#include "platform/digest.h"
#include "platform/text.h"
#include "support/lexicon_use.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using namespace lessico_interno;

constexpr std::string_view Source =
    "FI\t60\tsigla\tsig=Firenze\n"
    "re\t60\t\ts.m\n"
    "reo\t9\t\ta.ms;s.ms\n"
    "amai\t80\t\tv.ind.pass.1s=amare\n"
    "amare\t80\t\tv.inf;a.fp=amaro\n"
    "città\t80\t\ts.f\n"
    "L'Aquila\t66\tnome\tnp\n"
    "città alta\t41\tlocuzione,bandita\t\n";

std::string Built(std::string_view source) {
  std::string cause;
  const auto bytes = CostruisciLessico(source, cause);
  EXPECT_TRUE(bytes) << cause;
  return bytes.value_or("");
}

Testata HeaderOf(const std::string& bytes) {
  Testata header;
  std::memcpy(&header, bytes.data(), sizeof header);
  return header;
}

// The bytes with the length and the digest that they ought to have.
std::string Repaired(std::string bytes) {
  Testata header = HeaderOf(bytes);
  header.byte = bytes.size();
  header.impronta = ImprontaDi(std::string_view(bytes).substr(InizioImpronta));
  return bytes.replace(0, sizeof header, reinterpret_cast<const char*>(&header), sizeof header);
}

class LexiconFileTest : public TelariumTest {
 protected:
  std::shared_ptr<const FileLessico> Open(std::string_view bytes) {
    return OpenLexicon(bytes, cause_);
  }

  // Uses whatever opens; whether it is found to be sound.
  bool IsSound(std::string_view bytes) {
    const auto lexicon = Open(bytes);
    if (!lexicon) return false;
    UseAll(*lexicon);
    return lexicon->Verifica(cause_);
  }

  std::string cause_;
};

std::string Described(const FileLessico& lexicon, NumeroVoce number) {
  const Voce entry = lexicon.Leggi(number);
  std::string text = Unisci(entry.parola, ' ', AUtf8(entry.grafia), ' ', entry.punteggio, " [",
                            NomiDeiSegni(entry.segni), ']');
  for (const Lettura& reading : entry.letture)
    text += Unisci(" <", AUtf8(reading.lemma), '|', NomiDelleForme(reading, entry.grafia), '>');
  return text;
}

TEST_F(LexiconFileTest, EntriesComeBackAsTheSourceHasThem) {
  const auto lexicon = Open(Built(Source));
  ASSERT_TRUE(lexicon) << cause_;
  EXPECT_TRUE(lexicon->Verifica(cause_)) << cause_;
  EXPECT_EQ(lexicon->Nome(), "prova");
  const char* const entries[] = {
      "FI FI 60 [sigla] <Firenze|>",
      "RE re 60 [] <re|lemma>",
      "REO reo 9 [] <reo|lemma> <reo|lemma>",
      "AMAI amai 80 [] <amare|finita>",
      "AMARE amare 80 [] <amare|lemma,infinito> <amaro|plurale,femminile>",
      "CITTA città 80 [] <città|lemma,femminile>",
      "LAQUILA L'Aquila 66 [nome] <L'Aquila|lemma>",
      "CITTAALTA città alta 41 [locuzione,bandita]",
  };
  NumeroVoce number = 0;
  for (const std::string entry : entries) {
    EXPECT_EQ(Described(*lexicon, number), entry);
    EXPECT_EQ(lexicon->Cerca(entry.substr(0, entry.find(' '))), number) << entry;
    ++number;
  }
  const std::pair<int, int> counts[] = {{2, 2}, {3, 1}, {4, 1}, {5, 2}, {6, 0}, {7, 1}, {9, 1}};
  for (const auto& [length, count] : counts)
    EXPECT_EQ(lexicon->Conta(length), count) << length;
  EXPECT_EQ(lexicon->Prima(5), 4u);
  for (const std::string_view absent : {"AMAR", "AMAREI", "amare", "RA", "R", ""})
    EXPECT_EQ(lexicon->Cerca(absent), std::nullopt) << absent;
  EXPECT_EQ(lexicon->Insieme(5, 1, 'M' - 'A').front(), 1u);
  EXPECT_EQ(lexicon->Insieme(5, 1, 'I' - 'A').front(), 2u);
  EXPECT_EQ(lexicon->Insieme(5, 4, 'A' - 'A').front(), 2u);
  EXPECT_EQ(lexicon->Famiglia(3), (std::vector<NumeroVoce>{3, 4}));  // AMAI, AMARE
  EXPECT_EQ(lexicon->Famiglia(2), (std::vector<NumeroVoce>{2}));
  EXPECT_EQ(lexicon->Famiglia(7), std::vector<NumeroVoce>());
  const auto lemma = lexicon->CercaLemma("amare");
  ASSERT_TRUE(lemma);
  EXPECT_EQ(lexicon->Lemma(*lemma), "amare");
  EXPECT_TRUE(std::ranges::equal(lexicon->FormeDi(*lemma), std::vector<NumeroVoce>{3, 4}));
  EXPECT_FALSE(lexicon->CercaLemma("amar"));
  MemoriaDiColonne memory;
  EXPECT_EQ(lexicon->Colonne(4, memory).segni.front(), BitSoloFinita);  // AMAI
  EXPECT_EQ(lexicon->Colonne(5, memory).lettere, "AMARECITTA");
}

TEST_F(LexiconFileTest, EntriesOfEveryLengthAndSetsOfMoreThanOneWordFit) {
  std::string source;
  for (int length = MinLunghezzaVoce; length <= MaxLunghezzaVoce; ++length) {
    for (int i = 0; i < 130; ++i) {
      std::string word(static_cast<std::size_t>(length), 'a');
      word[0] = static_cast<char>('a' + i / 26);
      word[1] = static_cast<char>('a' + i % 26);
      source += word + "\t50\t\ts.ms=gruppo" + word[0] + '\n';
    }
  }
  const auto lexicon = Open(Built(source));
  ASSERT_TRUE(lexicon) << cause_;
  EXPECT_TRUE(lexicon->Verifica(cause_)) << cause_;
  EXPECT_EQ(lexicon->Conta(53), 130);
  EXPECT_EQ(lexicon->Insieme(53, 0, 4).size(), 3u);
  EXPECT_EQ(lexicon->Insieme(53, 0, 4)[1], ~std::uint64_t{0} << (4 * 26 - 64));
  EXPECT_EQ(lexicon->Insieme(53, 0, 4)[2], 3u);
  EXPECT_EQ(lexicon->Famiglia(0).size(), 26u * 52);
}

TEST_F(LexiconFileTest, WhatIsNoLexiconIsRefusedWithItsCause) {
  const std::string sound = Built(Source);
  const auto with = [&](std::size_t offset, std::string_view bytes) {
    return std::string(sound).replace(offset, bytes.size(), bytes);
  };
  const std::pair<std::string, std::string_view> rows[] = {
      {"", "non è un lessico"_cp},
      {"FI\t60\tsigla\tsig=Firenze\n", "non è un lessico"_cp},
      {with(8, std::string_view("\1\0\0\0", 4)), "è di un'altra versione del programma"_cp},
      {with(12, "\1\2\3\4"), "è fatto per una macchina con un altro ordine dei byte"_cp},
      {sound + '\0', "è troncato o ha byte in più"_cp},
      {with(32, "\7"), "è danneggiato (sezioni)"_cp},
  };
  for (const auto& [bytes, cause] : rows) {
    EXPECT_FALSE(Open(bytes));
    EXPECT_EQ(cause_, cause);
  }
  std::filesystem::create_directory(InFolder("cartella"));
  ASSERT_EQ(mkfifo(InFolder("tubo").c_str(), 0600), 0);
  for (const char* name : {"cartella", "tubo", "assente"}) {
    cause_.clear();
    EXPECT_FALSE(FileLessico::Apri(InFolder(name), name, cause_));
    EXPECT_FALSE(cause_.empty());
  }
}

TEST_F(LexiconFileTest, FileCutAnywhereIsRefused) {
  const std::string sound = Built(Source);
  for (std::size_t length = 0; length < sound.size(); ++length) {
    ASSERT_FALSE(Open(sound.substr(0, length))) << length;
    // Even when it says that it is as short as that.
    if (length >= sizeof(Testata)) {
      ASSERT_FALSE(IsSound(Repaired(sound.substr(0, length)))) << length;
    }
  }
}

// The digest is made right again, so that nothing but the contents tells.
TEST_F(LexiconFileTest, DamageIsSurvivedAndFound) {
  const std::string sound = Built(Source);
  ASSERT_TRUE(IsSound(Repaired(sound))) << cause_;
  EXPECT_FALSE(IsSound(std::string(sound).replace(24, 1, "?")));
  const Testata header = HeaderOf(sound);
  const auto isSoundWith = [&](std::size_t offset, std::string_view bytes) {
    return IsSound(Repaired(std::string(sound).replace(offset, bytes.size(), bytes)));
  };
  for (std::size_t offset = 32; offset + 4 <= sizeof(Testata); offset += 4) {
    for (const std::string_view number :
         {std::string_view("\xFF\xFF\xFF\xFF", 4), std::string_view("\0\0\0\x80", 4)})
      EXPECT_FALSE(isSoundWith(offset, number)) << "header, " << offset;
  }
  for (const Sezione section :
       {Lunghezze, Parole, Grafie, CapiVoce, CapiFamiglia, Famiglie, Posti, Insiemi}) {
    const auto [begin, size] = header.sezioni[section];
    for (std::size_t i = 0; i < size; ++i) {
      const char flipped = static_cast<char>(sound[begin + i] ^ 1 << i % 8);
      ASSERT_FALSE(isSoundWith(begin + i, {&flipped, 1})) << "section " << section << ", " << i;
    }
  }
  // The rest may hold other values that are sound.
  const auto inSection = [&](Sezione section, std::size_t element) {
    return header.sezioni[section].inizio + element;
  };
  EXPECT_FALSE(isSoundWith(inSection(Punteggi, 0), "\x65"));          // 101
  EXPECT_FALSE(isSoundWith(inSection(Punteggi, 1), "\x3D"));          // more than the one before
  EXPECT_FALSE(isSoundWith(inSection(SegniDelleVoci, 0), "\x80"));    // a mark that there is not
  EXPECT_FALSE(isSoundWith(inSection(Lemmi, 4), "\xFF"));             // a lemma past the next one
  EXPECT_FALSE(isSoundWith(inSection(LettureDelleVoci, 0), "\x7F"));  // a lemma that there is not
  EXPECT_FALSE(isSoundWith(inSection(LettureDelleVoci, 4), "\xFF"));  // nor an analysis
}

TEST(LexiconBuilderTest, SourceThatBreaksTheFormatIsRefusedWithItsLine) {
  const std::string many = [] {
    std::string readings = "s.ms";
    for (int i = 0; i < 64; ++i)
      readings += ";s.ms";
    return readings;
  }();
  const std::pair<std::string, std::string_view> rows[] = {
      {"", "non ci sono voci"},
      {"re\t60\t\n", "riga 1: i campi non sono quattro"},
      {"re\t60\t\t\n\nte\t60\t\t\n", "riga 2: i campi non sono quattro"},
      {"re\t60\t\t\t\n", "riga 1: i campi non sono quattro"},
      {"è\t60\t\t\n", "riga 1: la grafia non è di 2-53 lettere"_cp},
      {"a2\t60\t\t\n", "riga 1: la grafia non è di 2-53 lettere"_cp},
      {std::string(54, 'a') + "\t60\t\t\n", "riga 1: la grafia non è di 2-53 lettere"_cp},
      {"Łódź\t60\t\t\n", "riga 1: la grafia ha un carattere che la code page non ha"},
      {"re \t60\t\t\n", "riga 1: la grafia ha spazi ai due capi"},
      {"re\t101\t\t\n", "riga 1: il punteggio non è un numero da 0 a 100"_cp},
      {"re\t-1\t\t\n", "riga 1: il punteggio non è un numero da 0 a 100"_cp},
      {"re\t6.5\t\t\n", "riga 1: il punteggio non è un numero da 0 a 100"_cp},
      {"re\t\t\t\n", "riga 1: il punteggio non è un numero da 0 a 100"_cp},
      {"re\t60\tnomi\t\n", "riga 1: un segno è sconosciuto o ripetuto"_cp},
      {"re\t60\tnome,nome\t\n", "riga 1: un segno è sconosciuto o ripetuto"_cp},
      {"re\t60\t\ts.x\n", "riga 1: il codice di una lettura è sconosciuto"_cp},
      {"re\t60\t\ts.m;\tte\n", "riga 1: i campi non sono quattro"},
      {"re\t60\t\ts.m;;s.f\n", "riga 1: il codice di una lettura è sconosciuto"_cp},
      {"re\t60\tnome,\t\n", "riga 1: un segno è sconosciuto o ripetuto"_cp},
      {"re\t60\t\ts.m;\n", "riga 1: manca una lettura"},
      {"re\t60\t\ts.m=\n", "riga 1: un lemma manca o ha un carattere che la code page non ha"},
      {"re\t60\t\ts.m=Łódź\n", "riga 1: un lemma manca o ha un carattere che la code page non ha"},
      {"re\t60\t\t" + many + '\n', "riga 1: le letture sono troppe"},
      {"reo\t60\t\t\nre\t60\t\t\n", "riga 2: non segue la riga che precede"},
      {"re\t60\t\t\nte\t61\t\t\n", "riga 2: non segue la riga che precede"},
      {"te\t60\t\t\nre\t60\t\t\n", "riga 2: non segue la riga che precede"},
      {"re\t60\t\t\nRe\t60\t\t\n", "riga 2: non segue la riga che precede"},
      {"re\t60\t\t\nte\t60\t\t\nrè\t59\t\t\n", "riga 3: RE sta anche alla riga 1"},
  };
  for (const auto& [source, expected] : rows) {
    std::string cause;
    EXPECT_FALSE(CostruisciLessico(source, cause)) << source;
    EXPECT_EQ(cause, expected) << source;
  }
}

}  // namespace
}  // namespace telarium
