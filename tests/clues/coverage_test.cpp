#include "clues/coverage.h"

#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <memory>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "clues/clue_family.h"
#include "clues/clue_kit.h"
#include "clues/coverage_cache.h"
#include "clues/sqlite_database.h"
#include "support/clue_store.h"
#include "support/ordinary_user.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;
using Counts = std::map<std::string, ConteggioDefinizioni>;

class CoverageTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    MakeStore("ALA\tF\tDi uccello\nALA\tD\tDi folla\nORO\tF\tMetallo\n");
  }

  Percorso store = InFolder("telarium1.mdb");
  FontiCopertura sources{
      .enciclopedia = store, .corredo = InFolder("sigle.tsv"), .cache = InFolder("cache/telarium")};

  // Statements on the store past the program, as another one would run them.
  void Sql(const char* statements) const { BaseDati(store).Esegui(statements); }

  Copertura Open() const {
    std::string cause;
    const auto coverage = CoperturaDa(sources, cause);
    EXPECT_EQ(cause, "");
    return coverage ? *coverage : Copertura();
  }

  std::string Cause() const {
    std::string cause;
    EXPECT_EQ(CoperturaDa(sources, cause), nullptr);
    return cause.substr(cause.find(": ") + 2);
  }

  Percorso Index() const {
    const auto files = ElencaFile(sources.cache, "copertura-*.idx");
    EXPECT_EQ(files.size(), 1u);
    return files.empty() ? Percorso() : sources.cache / files.front();
  }

  // Puts other counts into the index without touching its stamp: whoever gives them has read it,
  // and not the store.
  void Mark() const {
    std::error_code error;
    const auto index = IndiceCopertura::Apri(FileMappato(Index(), error));
    ASSERT_TRUE(index);
    const VoceCopertura marked[] = {{"SEGNATA", {1, 0}}};
    ASSERT_FALSE(ScriviFile(Index(), ComponiIndice(marked, index->Timbro())));
  }
  bool TakenFromTheIndex() const { return Open().Di("SEGNATA").Alcuna(); }

  static Counts All(const Copertura& coverage) {
    Counts counts;
    coverage.PerOgniParola([&](std::string_view word, ConteggioDefinizioni count) {
      counts[std::string(word)] = count;
    });
    EXPECT_EQ(counts.size(), static_cast<std::size_t>(coverage.Parole()));
    for (const auto& [word, count] : counts)
      EXPECT_EQ(coverage.Di(word), count) << word;
    return counts;
  }
};

// What the program's own search and its splitting give for a word.
ConteggioDefinizioni Fetched(const std::string& word) {
  const EnciclopediaAperta open = ApriEnciclopedia();
  if (!open->CercaParola(word)) return {};
  const auto count = [](std::optional<std::string> family) {
    std::string text = family.value_or("");
    spezzatesto(text);
    return std::stoi(text);
  };
  return {count(open->LeggiFacili()), count(open->LeggiDifficili())};
}

TEST_F(CoverageTest, CountsWhatAFetchDrawsFrom) {
  Sql("INSERT INTO Parole VALUES"
      " ('ALA', 'seconda riga', NULL), ('VUOTA', '', NULL), ('NULLA', NULL, NULL),"
      " ('NULLA', 'dietro una riga vuota', NULL), ('', 'x', 'y'), ('BIANCHI', ' ' || char(13,10), "
      "'  '),"
      " ('PARTI', char(13,10) || 'a' || char(13,10) || ' ' || char(13,10) || 'b' || char(10) || "
      "'c',"
      "  'd' || char(13,10,13,10) || 'e' || char(13)), ('CITTÀ', 'Ω', 'è' || char(13,10) || 'é'),"
      " ('L''ORO', 'x', NULL), ('ΩMEGA', 'x', NULL), ('ala', 'minuscola', NULL),"
      " (x'42', 'blob', NULL), (7, NULL, 8)");
  const Copertura coverage = Open();
  for (const char* word : {"ALA", "ORO", "VUOTA", "NULLA", "BIANCHI", "PARTI", "CITT\xC0", "CITTA",
                           "?MEGA", "ala", "B", "7", "MANCA"})
    EXPECT_EQ(coverage.Di(word), Fetched(word)) << word;
  const Counts expected = {{"ALA", {1, 1}},      {"ORO", {1, 0}}, {"PARTI", {2, 2}},
                           {"CITT\xC0", {1, 2}}, {"ala", {1, 0}}, {"7", {0, 1}}};
  EXPECT_EQ(All(coverage), expected);
  EXPECT_FALSE(coverage.Di("L'ORO").Alcuna() || coverage.Di("").Alcuna());

  const std::vector<std::string> words = {"ORO", "MANCA", "ALA"};
  const auto word = [&](std::size_t i) { return std::string_view(words[i % 3]); };
  EXPECT_EQ(coverage.Insieme(66, word, QualiDefinizioni::Tutte),
            (std::vector<std::uint64_t>{0xDB6DB6DB6DB6DB6D, 2}));
  EXPECT_EQ(coverage.Insieme(3, word, QualiDefinizioni::Difficili), std::vector<std::uint64_t>{4});
  EXPECT_TRUE(coverage.Insieme(0, word, QualiDefinizioni::Facili).empty());
}

TEST_F(CoverageTest, CluesOfTheKitCountOnceBesideThoseOfTheStore) {
  WriteFile(
      "sigle.tsv",
      "AL\tF\tAlessandria\nAL\tF\tCon il\nAL\tD\tAlluminio\nZN\tD\tCittà\nMI\tF\tNota\nrotta\n");
  MakeStore("AL\tF\tCon il\nAL\tF\tAlluminio\nZN\tF\tx\n");
  Sql("UPDATE Parole SET DEFINIZ_DIFFIC = ' Città ' WHERE PAROLA = 'ZN'");
  const Counts expected = {{"AL", {3, 1}}, {"ZN", {1, 1}}, {"MI", {1, 0}}};
  EXPECT_EQ(All(Open()), expected);
  Mark();
  EXPECT_TRUE(TakenFromTheIndex());
  WriteFile("sigle.tsv", "MI\tF\tNota\n");
  EXPECT_EQ(Open().Di("AL"), (ConteggioDefinizioni{2, 0})) << "a newer kit has taken its place";

  const DefinizioniDelCorredo kit(WriteFile("due.tsv", "MI\tD\tb\nMI\tF\ta\nMI\tF\ta\n"));
  using Clues = std::vector<std::string_view>;
  EXPECT_EQ(kit.Di("MI", QualiDefinizioni::Tutte), (Clues{"a", "b"}));
  EXPECT_EQ(kit.Di("MI", QualiDefinizioni::Difficili), Clues{"b"});
  EXPECT_EQ(kit.Di("MA", QualiDefinizioni::Tutte), Clues());
  EXPECT_TRUE(DefinizioniDelCorredo(InFolder("manca")).Di("MI", QualiDefinizioni::Tutte).empty());
}

void SetTimes(const Percorso& file, const struct stat& as) {
  const timespec times[] = {as.st_atim, as.st_mtim};
  ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
}

// Each change takes the clue of ORO away or puts it back, without the file growing.
TEST_F(CoverageTest, EachChangeIsSeenAtOnceAndNothingIsReadWithoutOne) {
  const auto statement = [](bool clue) {
    return clue ? "UPDATE Parole SET DEFINIZ_FACILE = 'Metallo' WHERE PAROLA = 'ORO'"
                : "UPDATE Parole SET DEFINIZ_FACILE = '       ' WHERE PAROLA = 'ORO'";
  };
  const auto changedCopy = [&](bool clue) {
    const Percorso copy = InFolder("copia");
    fs::copy_file(store, copy, fs::copy_options::overwrite_existing);
    BaseDati(copy).Esegui(statement(clue));
    return copy;
  };
  const auto timesOf = [](const Percorso& file) {
    struct stat status {};
    EXPECT_EQ(::stat(file.c_str(), &status), 0);
    return status;
  };
  std::unique_ptr<BaseDati> logging;
  const auto intoTheLog = [&](bool clue) {
    if (!logging) {
      logging = std::make_unique<BaseDati>(store);
      logging->Esegui("PRAGMA journal_mode = WAL");
    }
    logging->Esegui(statement(clue));
  };
  struct Way {
    const char* name;
    std::function<void(bool)> change;
  };
  const Way ways[] = {
      {"another program", [&](bool clue) { Sql(statement(clue)); }},
      {"the store's own interface",
       [&](bool clue) {
         const EnciclopediaAperta open = ApriEnciclopedia();
         const std::string family = clue ? "Metallo" : "";
         for (const ChiaveRiga& key : open->Chiavi())
           if (key.parola == "ORO") open->ScriviRiga(key.numero, {{}, family, {}});
       }},
      {"another file in its place, as old and as long",
       [&](bool clue) {
         const auto before = timesOf(store);
         const Percorso copy = changedCopy(clue);
         SetTimes(copy, before);
         fs::rename(copy, store);
       }},
      {"other bytes in the same file, its time put back",
       [&](bool clue) {
         const auto before = timesOf(store);
         fs::copy_file(changedCopy(clue), store, fs::copy_options::overwrite_existing);
         SetTimes(store, before);
       }},
      {"a log that grows", intoTheLog},
      {"a log that begins anew within its length",
       [&](bool clue) {
         logging->Esegui("PRAGMA wal_checkpoint(RESTART)");
         intoTheLog(clue);
       }},
  };
  for (const auto& [name, change] : ways) {
    SCOPED_TRACE(name);
    for (int round = 0; round < 3; ++round) {
      change(false);
      EXPECT_FALSE(Open().Di("ORO").Alcuna()) << round;
      change(true);
      EXPECT_TRUE(Open().Di("ORO").Alcuna()) << round;
    }
    Mark();
    EXPECT_TRUE(TakenFromTheIndex());
  }
  logging->Esegui("BEGIN");
  intoTheLog(false);
  EXPECT_TRUE(TakenFromTheIndex()) << "what is not committed is not there";
  EXPECT_EQ(TimbroFermo({store, {}}), std::nullopt);
  logging->Esegui("COMMIT");
  EXPECT_FALSE(Open().Di("ORO").Alcuna());
  logging.reset();
  EXPECT_FALSE(Open().Di("ORO").Alcuna());
  Mark();
  EXPECT_TRUE(TakenFromTheIndex());
}

TEST_F(CoverageTest, ALogThatAKilledProgramHasLeftCounts) {
  {
    BaseDati writer(store);
    writer.Esegui("PRAGMA journal_mode = WAL; INSERT INTO Parole VALUES ('REGISTRO', 'x', NULL)");
    fs::copy_file(store, InFolder("file"));
    fs::copy_file(InFolder("telarium1.mdb-wal"), InFolder("log"));
  }
  fs::rename(InFolder("file"), store);
  fs::rename(InFolder("log"), InFolder("telarium1.mdb-wal"));
  EXPECT_TRUE(Open().Di("REGISTRO").Alcuna());
  EXPECT_EQ(ElencaFile(InFolder(""), "telarium1*").size(), 1u) << "it is folded back";
  Mark();
  EXPECT_TRUE(TakenFromTheIndex());
}

// Whether a process holds a lock on a file: asked by another one, as its own never are in its way.
bool Locked(const Percorso& file) {
  const pid_t child = ::fork();
  if (child == 0) {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    const int opened = ::open(file.c_str(), O_RDWR);
    ::_exit(opened >= 0 && ::fcntl(opened, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK);
  }
  int status = 0;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  return WIFEXITED(status) && WEXITSTATUS(status) == 1;
}

// The system takes all locks of a process on a file away when it closes the file once.
TEST_F(CoverageTest, LocksOfOpenConnectionsStay) {
  BaseDati writer(store);
  EXPECT_FALSE(Locked(store));
  writer.Esegui("BEGIN IMMEDIATE");
  EXPECT_TRUE(Open().Di("ORO").Alcuna());
  EXPECT_TRUE(Open().Di("ORO").Alcuna());
  EXPECT_TRUE(Locked(store));
}

// A stamp is fixed when the clock that files are dated by has gone on.
TEST_F(CoverageTest, AfterAFixedStampEachWriteHasAnotherTime) {
  const FontiIndice from{store, {}};
  const Percorso later = WriteFile("later", "x");
  for (int round = 0; round < 10; ++round) {
    ASSERT_EQ(::utimensat(AT_FDCWD, store.c_str(), nullptr, 0), 0);
    const auto stamp = TimbroFermo(from);
    ASSERT_EQ(::utimensat(AT_FDCWD, later.c_str(), nullptr, 0), 0);
    EXPECT_EQ(stamp, TimbroDi(from));
    EXPECT_LT(fs::last_write_time(store), fs::last_write_time(later));
  }
  const timespec never[] = {{0, 0}, {250'000'000'000, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, store.c_str(), never, 0), 0);
  EXPECT_EQ(TimbroFermo(from), TimbroDi(from));
}

TEST_F(CoverageTest, AStoreThatCannotBeReadIsToldWithItsCause) {
  const std::string good = ReadFile(store);
  const std::string held = "il file \xE8 occupato da un altro programma.";
  {
    BaseDati other(store);
    other.Esegui("BEGIN EXCLUSIVE");
    EXPECT_EQ(Cause(), held);
  }
  EXPECT_TRUE(Open().Di("ORO").Alcuna());
  {
    BaseDati other(store);
    other.Esegui("BEGIN EXCLUSIVE");
    EXPECT_TRUE(Open().Di("ORO").Alcuna()) << "known from the index";
  }
  const std::pair<std::string, std::string> cases[] = {
      {std::string(5000, 'x'), "il file non \xE8 un'enciclopedia."},
      {"", "(no such table: Parole)."},
      {good.substr(0, 5000), "il file \xE8 danneggiato."},
  };
  for (const auto& [bytes, error] : cases) {
    WriteFile("telarium1.mdb", bytes);
    EXPECT_TRUE(Cause().ends_with(error)) << Cause();
    EXPECT_EQ(FirstDifference(ReadFile(store), bytes), "");
  }
  fs::remove(store);
  EXPECT_EQ(Cause(), "il file manca o non si pu\xF2 aprire.");
  fs::create_directory(store);
  EXPECT_EQ(Cause(), "il file manca o non si pu\xF2 aprire.");
  EXPECT_FALSE(Copertura().Di("ORO").Alcuna());
}

TEST_F(CoverageTest, AnIndexThatIsNoneIsMadeAnew) {
  const Counts good = All(Open());
  const std::string bytes = ReadFile(Index());
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    EXPECT_EQ(IndiceCopertura::Apri(bytes.substr(0, length)), nullptr) << length;
    std::string damaged = bytes;
    damaged[length] = static_cast<char>(damaged[length] ^ 0x40);
    EXPECT_EQ(IndiceCopertura::Apri(damaged), nullptr) << length;
  }
  std::string longer = bytes + '\0', newer = bytes;
  newer[8] = 2;
  for (std::string* sound : {&longer, &newer})
    SegnaImpronta(*sound);
  for (const std::string& other : {std::string(), bytes.substr(0, 100), longer, newer}) {
    WriteFile(Index(), other);
    EXPECT_EQ(All(Open()), good);
    EXPECT_EQ(ReadFile(Index()), bytes);
  }
  fs::remove(Index());
  fs::create_directories(sources.cache / NomeIndice({store, sources.corredo}) / "altro");
  EXPECT_EQ(All(Open()), good);
}

TEST_F(CoverageTest, WithoutACacheItIsMadeInMemory) {
  const Counts good = All(Open());
  fs::permissions(InFolder(""), fs::perms(0755));
  sources.cache = InFolder("protetta");
  EXPECT_TRUE(AsOrdinaryUser([&] { return All(Open()) == good; }));
  WriteFile("file", "x");
  for (const Percorso& cache : {Percorso(), InFolder("file") / "telarium", Percorso("/dev/null")}) {
    sources.cache = cache;
    EXPECT_EQ(All(Open()), good) << cache;
  }
  EXPECT_EQ(ReadFile(InFolder("file")), "x");
}

TEST_F(CoverageTest, OldIndexesOfStoresThatAreGoneAreRemoved) {
  const auto make = [&](const char* name) {
    const Percorso other = InFolder(name);
    fs::copy_file(store, other);
    std::string cause;
    CoperturaDa({other, {}, sources.cache}, cause);
    return sources.cache / NomeIndice({other, {}});
  };
  const Percorso gone = make("gone"), there = make("there"), young = make("young");
  const Percorso foreign = sources.cache / "copertura-0.idx", users = sources.cache / "altro";
  WriteFile(foreign, "x");
  WriteFile(users, "x");
  for (const char* name : {"gone", "young"})
    fs::remove(InFolder(name));
  for (const Percorso& old : {gone, there, foreign, users})
    fs::last_write_time(old, fs::file_time_type::clock::now() - std::chrono::hours(61 * 24));
  Open();
  for (const auto& [file, stays] :
       {std::pair(gone, false), std::pair(foreign, false), std::pair(there, true),
        std::pair(young, true), std::pair(users, true)})
    EXPECT_EQ(fs::exists(file), stays) << file;
}

TEST_F(CoverageTest, MakersAndWritersAtOnceGetOneMomentOfTheStore) {
  // Both words change in one step.
  Sql("PRAGMA journal_mode = WAL; UPDATE Parole SET DEFINIZ_FACILE = 'x', DEFINIZ_DIFFIC = NULL");
  std::atomic<bool> done = false;
  std::atomic<int> torn = 0, read = 0;
  std::vector<std::jthread> makers;
  for (int i = 0; i < 3; ++i) {
    makers.emplace_back([&] {
      while (!done) {
        std::string cause;
        const auto coverage = CoperturaDa(sources, cause);
        if (!coverage) continue;
        ++read;
        torn += coverage->Di("ALA") != coverage->Di("ORO");
      }
    });
  }
  BaseDati writer(store);
  for (int round = 0; round < 40; ++round) {
    writer.Esegui("UPDATE Parole SET DEFINIZ_FACILE = DEFINIZ_FACILE || char(13,10) || 'y'");
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  done = true;
  makers.clear();
  EXPECT_GT(read, 0);
  EXPECT_EQ(torn, 0);
  EXPECT_EQ(Open().Di("ORO"), (ConteggioDefinizioni{41, 0}));
}

}  // namespace
}  // namespace telarium
