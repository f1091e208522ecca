#include "dictionary/dictionary_writer.h"

#include <chrono>
#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "platform/codepage.h"
#include "platform/folder_lock.h"
#include "support/numbered_words.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using namespace std::string_literals;
using Words = std::vector<std::string>;

// No file of this process grows past some bytes while this lives.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limited{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limited);
  }
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  void (*handler_)(int);
  rlimit before_{};
};

class DictionaryWriterTest : public TelariumTest {
 protected:
  const Percorso file = "LessicoItaliano.dat";

  // Writes lists, that of length 3 first, and tells the error.
  std::string Write(const ListeDiParole& lists) {
    outcome = ScriviDizionario(InFolder(file), lists);
    EXPECT_FALSE(std::filesystem::exists(InFolder("LESSICO.new")));
    return outcome.errore;
  }

  EsitoDizionario outcome;
};

TEST_F(DictionaryWriterTest, FormatIsKeptToTheByte) {
  struct Row {
    ListeDiParole lists;
    std::string table, words;
  };
  const Row rows[] = {
      {{}, "", std::string(16, '\0')},
      {{Words{}, {"CASA"}},
       std::string(16, '\0') + "     440     444",
       "CASA" + std::string(12, '\0')},
      {{Words{"APE", "ORA"}, {}, {"CARTA"}, {"CAPIRE"}},
       "     440     446" + std::string(16, '\0') + "     446     451     451     457",
       "APEORACARTACAPIRE"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.words);
    ASSERT_EQ(Write(row.lists), "");
    std::string expected =
        "Vocabolario della lingua italiana per parole crociate e giochi di lettere "
        "Zanotti Graziella";
    expected.resize(199, ' ');
    expected.resize(439, '\0');
    expected.replace(200, row.table.size(), row.table);
    EXPECT_EQ(FirstDifference(ReadFile(InFolder(file)), expected + row.words), "");
  }
}

TEST_F(DictionaryWriterTest, RepeatsAndWrongLengthsAreSkippedAndTheOrderStays) {
  ASSERT_EQ(
      Write({Words{"UVA", "UVA", "APE", "LUNGA", "APE", "ape", "RE", "UVA"}, {"APE", "LUNGA"}}),
      "");
  // "LUNGA" stands between the two "APE", so neither equals the word before it.
  const std::string image = ReadFile(InFolder(file));
  EXPECT_EQ(image.substr(200, 16), "     440     455");
  EXPECT_EQ(image.substr(216, 16), std::string(16, '\0'));
  EXPECT_EQ(image.substr(439), "UVAAPEAPEapeUVA\0"s);
  EXPECT_EQ(outcome.parole[0], 5);
  EXPECT_EQ(outcome.parole[1], 0);
}

TEST_F(DictionaryWriterTest, FullSectionIsWrittenAndDoubledWordsCountOnce) {
  Words words = NumberedWords(32767, 4);
  words.push_back(words.back());
  ASSERT_EQ(Write({Words{}, words}), "");
  EXPECT_EQ(outcome.parole[1], 32767);
  const std::string image = ReadFile(InFolder(file));
  EXPECT_EQ(image.substr(216, 16), "     440  131508");
  EXPECT_EQ(image.size(), 131507u);
}

TEST_F(DictionaryWriterTest, FailuresAreToldAndLeaveTheOldFile) {
  const auto refused = [&](const std::string& why) {
    return "Impossibile scrivere il dizionario LessicoItaliano.dat: " + why + ".";
  };
  WriteFile(file, "the old file");
  EXPECT_EQ(Write({Words{}, NumberedWords(32768, 4)}),
            refused("32.768 parole di 4 lettere, e ne sono ammesse al massimo 32.767"));
  {
    const FileSizeLimit limit(450);
    EXPECT_EQ(Write({Words{}, {"CASA"}}), refused(std::string("il file è troppo grande"_cp)));
  }
  {
    const BloccoCartella other(InFolder(""));
    EXPECT_EQ(Write({Words{}, {"CASA"}}),
              refused("un altro programma sta scrivendo nella stessa cartella"));
  }
  EXPECT_EQ(ReadFile(InFolder(file)), "the old file");

  std::filesystem::remove(InFolder(file));
  std::filesystem::create_directory(InFolder(file));
  EXPECT_EQ(Write({Words{}, {"CASA"}}),
            refused(std::string("il nome è quello di una cartella"_cp)));
}

TEST_F(DictionaryWriterTest, StaleTemporaryFileIsReplaced) {
  WriteFile("LESSICO.new", std::string(1000, 'x'));
  ASSERT_EQ(Write({Words{}, {"CASA"}}), "");
  EXPECT_EQ(ReadFile(InFolder(file)).size(), 455u);
}

// A process that rebuilds without end is killed at any moment: the file is one of the two whole
// ones.
TEST_F(DictionaryWriterTest, KilledRebuildLeavesAWholeDictionary) {
  const ListeDiParole lists[] = {{Words{}, NumberedWords(2000, 4)}, {Words{"APE"}}};
  std::string whole[2];
  for (int i : {0, 1}) {
    ASSERT_EQ(Write(lists[i]), "");
    whole[i] = ReadFile(InFolder(file));
  }
  int stale = 0;
  for (int kill = 0; kill < 60; ++kill) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ::prctl(PR_SET_PDEATHSIG, SIGKILL);  // it must not outlive the test
      for (int i = 0;; i = 1 - i)
        ScriviDizionario(InFolder(file), lists[i]);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(300 * kill));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const std::string left = ReadFile(InFolder(file));
    ASSERT_TRUE(left == whole[0] || left == whole[1])
        << left.size() << " bytes after kill " << kill;
    stale += std::filesystem::exists(InFolder("LESSICO.new"));
    ASSERT_EQ(Write(lists[0]), "");  // removes what the killed one has left
  }
  EXPECT_GT(stale, 0) << "no kill came while a file was being written";
}

}  // namespace
}  // namespace telarium
