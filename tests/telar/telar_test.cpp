#include <fcntl.h>
#include <list>
#include <sys/stat.h>
#include <unistd.h>

#include "telar/telar_fixture.h"

namespace telarium {
namespace {

constexpr const char* ReadError =
    "Errore di lettura del file! bad: il contenuto non è quello di un cruciverba, o è "
    "incompleto.\n";
constexpr const char* SizeError = "Formato del file non valido! Esecuzione terminata\n";
constexpr const char* NoWords =
    "Nessuna parola da 3 a 15 lettere nelle liste: il dizionario non è stato scritto.\n";
constexpr const char* NoDictionary = "Errore fatale! non trovato file di vocabolario: ";

TEST_F(Telar, CrosswordIsPrintedFieldByFieldAndCopiedToTheByte) {
  EXPECT_EQ(
      Out("parole sample"),
      "1\tO\t1\t1\t2\tCA\tCaffè nero\n1\tV\t1\t1\t3\tCI.\t  cinque € \n2\tV\t2\t1\t3\tAN.\tpoi\n"
      "3\tV\t4\t1\t3\t.À.\t\n4\tO\t1\t2\t4\tINDÀ\t\n5\tV\t3\t2\t2\tD.\t\n6\tO\t1\t3\t4\t....\t\n");
  EXPECT_EQ(Out("griglia sample"), "CA*.\nINDÀ\n....\n");
  EXPECT_EQ(Out("copia sample new"), "");
  const std::string copy = Unisci(
      Head, "04x03\r\n].[.D*H.\r\nc.h.^.\xDA.\r\nH.H.H.H.\r\n",
      "  1  11-Caff\xE8\tnero\r\n  1  12-  cinque \x80 \r\n  2  12-poi\r\n[Colori caselle]\r\n",
      " 0  0  0 \r\n 0  0  0 \r\n 0  0  0 \r\n 0  0  0 \r\n");
  EXPECT_EQ(FirstDifference(Read("new"), copy), "");
}

TEST_F(Telar, WhatTheLaboratoryKeepsIsCopiedButInNoPage) {
  const std::string section = "[Laboratorio]\r\nproprie = ZAZZERA\r\nsconosciuta = 1\r\n";
  Out("copia sample new");
  Write("kept", Read("new") + section);
  Out("copia kept copy");
  EXPECT_EQ(FirstDifference(Read("copy"), Read("new") + section), "");
  Out("form kept --uscita page.html");
  EXPECT_EQ(Read("page.html").find("ZAZZERA"), std::string::npos);
  Out("apri page.html again");
  EXPECT_EQ(FirstDifference(Read("again"), Read("new")), "");
}

TEST_F(Telar, LineBreaksAndTabsInCellsAreOneBlankEach) {
  Write("x", Unisci(Head, "04x01\r\n'.$.#.[.\r\n"));
  EXPECT_EQ(Out("griglia x"), "   A\n");
  EXPECT_EQ(Out("parole x"), "1\tO\t1\t1\t4\t   A\t\n");
}

TEST_F(Telar, NewCrosswordIsEmptyOrAModel) {
  EXPECT_EQ(Out("nuovo n --dimensioni 3x4"), "");
  EXPECT_EQ(Read("n").replace(45, 10, "DD-MM-YYYY"),
            "Autore     : Zanotti Graziella\r\nData       : DD-MM-YYYY\r\n"
            "Tipo       : Crociate Normale\r\nDimensioni : 03x04\r\n"
            "H.H.H.\r\nH.H.H.\r\nH.H.H.\r\nH.H.H.\r\n[Colori caselle]\r\n"
            " 0  0  0  0 \r\n 0  0  0  0 \r\n 0  0  0  0 \r\n");
  Write("m.dfc", "..\r\n-\r\nA*.\r\n...\r\n-\r\n");
  WriteFile("program/standard.DFC", "*.*\r\n..*\r\n-\r\n");
  Out("nuovo n --modello 2 --modelli m.dfc");
  EXPECT_EQ(Out("griglia n"), "A*.\n...\n");
  Out("nuovo --modello=1 n");
  EXPECT_EQ(Out("griglia n"), "*.*\n..*\n");
}

TEST_F(Telar, DictionaryIsMadeListedAndSearched) {
  Write("one", "mela\r\nperché\r\nŒdipo\r\nre\r\nabc1\r\nMELA\r\n");
  Write("two", "mola\nsedicilettereeee\nmille lire\nquindicilettere\npera");
  EXPECT_EQ(Out("diz-crea Prova.dat one two"),
            "3\t0\n4\t3\n5\t0\n6\t2\n7\t0\n8\t0\n9\t0\n10\t0\n11\t0\n12\t0\n13\t0\n14\t0\n15\t1\n");
  EXPECT_EQ(
      Out("diz-info PROVA.dat"),
      "3\t0\t0\n4\t440\t3\n5\t0\t0\n6\t452\t2\n7\t0\t0\n8\t0\t0\n9\t0\t0\n10\t0\t0\n11\t0\t0\n"
      "12\t0\t0\n13\t0\t0\n14\t0\t0\n15\t464\t1\n");
  EXPECT_EQ(Out("diz-elenca Prova.dat"), "MELA\nMOLA\nPERA\nOEDIPO\nPERCHE\nQUINDICILETTERE\n");
  EXPECT_EQ(Out("diz-elenca Prova.dat 6"), "OEDIPO\nPERCHE\n");
  EXPECT_EQ(Out("diz-elenca Prova.dat 3"), "");
  EXPECT_EQ(Out("diz-elenca Prova.dat 15"), "QUINDICILETTERE\n");
  EXPECT_EQ(Names("program"), Words{"Prova.dat"});
  MakeDictionary("MILA\n");
  const TelarResult found = Run("cerca m_l. --dizionario Prova.dat");
  EXPECT_EQ(found.out, "MELA\nMOLA\n");
  EXPECT_EQ(found.err, "Trov.: 2\n");
  EXPECT_EQ(Run("cerca M.LA").out, "MILA\n");
  EXPECT_EQ(Told("cerca ....a", 0), "Trov.: 0\n");
}

TEST_F(Telar, InstalledDictionariesHoldTheirLists) {
  call.environment.push_back(std::string("TELARIUM_CARTELLA=") + TELARIUM_DATA_DIR);
  const struct {
    std::string name, counts;  // from 3 letters on
    std::size_t words;
  } rows[] = {
      {"LessicoItaliano.dat",
       "584 2504 7882 16288 31995 32767 32767 32767 32767 32767 26697 15729 8578", 274092},
      {"LessicoInglese.dat",
       "1697 6187 13422 23118 32767 32767 32767 32767 26703 19377 13163 8599 5270", 248604},
      {"LessicoLatino.dat",
       "544 3893 15898 23803 32767 32767 32767 32767 32767 32767 32767 32767 31063", 337337},
      {"LessicoFrancese.dat",
       "712 2847 8262 18410 32703 32767 32767 32767 32767 32767 32767 23649 14036", 297221},
  };
  for (const auto& [name, counts, words] : rows) {
    SCOPED_TRACE(name);
    std::string printed;
    for (const std::string& line : Split(Out("diz-info " + name), '\n')) {
      printed += line.substr(line.rfind('\t') + 1) + ' ';
    }
    EXPECT_EQ(printed, counts + ' ');
    const Words all = Split(Out("diz-elenca " + name), '\n');
    EXPECT_EQ(all.size(), words);
    const auto misplaced = [](const std::string& a, const std::string& b) {
      return a.size() > b.size() || (a.size() == b.size() && a >= b) ||
             b.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") != std::string::npos;
    };
    EXPECT_EQ(std::adjacent_find(all.begin(), all.end(), misplaced), all.end());
  }
}

TEST_F(Telar, WrongArgumentsGetTheUsageTextAndDoNothing) {
  constexpr std::string_view lines =
      "|ignoto|Parole sample|--ignota|--cartella|--version=1|--help ignoto|parole|parole sample "
      "old|"
      "parole --ignota sample|parole -x sample|parole sample --dizionario x|griglia|copia sample|"
      "copia sample new old|copia sample new --cartella|nuovo --dimensioni 5x5|nuovo new|"
      "nuovo new old --modello 1|nuovo new --modello|nuovo new --modello 1 --dimensioni 5x5|"
      "nuovo new --modello 0|nuovo new --modello 1x|nuovo new --modelli m --dimensioni 5x5|"
      "nuovo new --modelli m|nuovo new --dimensioni=|nuovo new --dimensioni 5|"
      "nuovo new --dimensioni 5x|nuovo new --dimensioni x5|nuovo new --dimensioni 5x5x5|"
      "nuovo new --dimensioni -5x5|estrai sample|estrai sample new old|"
      "estrai sample new --infinito=1|estrai sample new --vicolo-cieco forse|"
      "estrai sample new --tentativi 0|estrai sample new --tentativi=|"
      "estrai sample new --tentativi 1.5|estrai sample new --tentativi 99999999999999999999|"
      "estrai sample new --dizionario|cerca|cerca ... ....|cerca ..|cerca "
      "................|diz-info|"
      "diz-info a b|diz-elenca|diz-elenca a 2|diz-elenca a 16|diz-elenca a x|diz-elenca a 3x|"
      "diz-elenca a 4294967299|diz-elenca a 3 4|diz-crea|diz-crea a.dat";
  const Words before = Names("work");
  for (const std::string& line : Split(lines, '|')) {
    SCOPED_TRACE(line);
    const Words told = Split(Told(line, 2), '\n');
    ASSERT_GT(told.size(), 2u);
    EXPECT_TRUE(told[0].starts_with("telar: "));
    EXPECT_TRUE(told[1].starts_with("Uso: telar "));
  }
  EXPECT_EQ(Names("work"), before);
  EXPECT_EQ(Names("program"), Words());
}

TEST_F(Telar, HelpAndVersionArePrinted) {
  const std::string general = Out("--help");
  for (const std::string& command :
       Split("parole griglia copia nuovo estrai cerca diz-info diz-elenca diz-crea", ' ')) {
    EXPECT_NE(general.find("\n  " + command + ' '), std::string::npos) << command;
    EXPECT_TRUE(Out(command + " --help").starts_with("Uso: telar " + command + ' '));
    EXPECT_EQ(Out("--help " + command), Out(command + " a --help"));
  }
  EXPECT_TRUE(general.starts_with("Uso: telar "));
  EXPECT_TRUE(Out("--version").starts_with("telar 7."));
}

TEST_F(Telar, OptionsStandAnywhereAndEndAtTheDoubleDash) {
  MakeDictionary("MELA\n");
  fs::create_directory(InFolder("work/other"));
  Out("diz-crea --cartella=other x.dat list");
  EXPECT_EQ(Names("work/other"), Words{"x.dat"});
  for (const char* line : {"--cartella other diz-elenca x.dat", "diz-elenca x.dat --cartella=other",
                           "diz-elenca --cartella other -- x.dat 4",
                           "--cartella=folder diz-elenca x.dat --cartella other"}) {
    EXPECT_EQ(Out(line), "MELA\n") << line;
  }
  Out("copia -- sample --help");
  EXPECT_EQ(Out("griglia -- --help"), Out("griglia sample"));
}

TEST_F(Telar, NamesWithBlanksAccentsAndFullLengthAreTaken) {
  for (const std::string& name : {std::string("perché no.tlrm"), std::string("日本 “x”\n.tlrm"),
                                  "-" + std::string(230, 'x'), std::string(255, 'y')}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Out(Words{"copia", "--", "sample", name}), "");
    EXPECT_EQ(Out(Words{"griglia", "--", name}), "CA*.\nINDÀ\n....\n");
    EXPECT_EQ(Out(Words{"copia", "sample", InFolder("work").string() + '/' + name}), "");
  }
}

TEST_F(Telar, BadCrosswordsAreToldOnOneLine) {
  const std::string start = Unisci(Head, "02x01\r\nH.H.\r\n");
  const std::pair<std::string, const char*> rows[] = {
      {"", ReadError},
      {Unisci(Head, "03x03\r\nH.H.H.\r\n"), ReadError},
      {std::string("\x01\xFF\r\r\r\r\x02\n\xFE 1 "), SizeError},
      {Unisci(Head, "54x05\r\nH.\r\n"), SizeError},
      {Unisci(Head, "05x31\r\nH.\r\n"), SizeError},
      {start + "  1  11-a" + '\0' + "b\r\n", ReadError},
      {start + " 54  11-a\r\n", ReadError},
      {"made 100 MB long", "Errore di lettura del file! bad: il file è troppo grande.\n"},
  };
  MakeDictionary("AAAB\n");
  for (const auto& [bytes, told] : rows) {
    SCOPED_TRACE(bytes);
    Write("bad", bytes);
    if (&bytes == &std::end(rows)[-1].first) fs::resize_file(InFolder("work/bad"), 100'000'000);
    for (const char* line : {"parole bad", "griglia bad", "copia bad old", "estrai bad old"})
      EXPECT_EQ(Told(line, 1), told) << line;
  }
}

TEST_F(Telar, OtherFailuresAreToldOnOneLineAndCostNothing) {
  MakeDictionary("AAAA\n");
  ASSERT_EQ(::mkfifo(InFolder("work/pipe").c_str(), 0600), 0);  // nobody at its other end
  Write("bad.dfc", "AB\r\nCDE\r\n-\r\n");
  Write("unfit", "re\nn0\n");
  Write("huge", "");
  fs::resize_file(InFolder("work/huge"), 100'000'000);
  WriteFile("program/short.dat", ReadFile(InFolder("program/LessicoItaliano.dat")).substr(0, 439));
  const std::string noCrossword = "Errore: Cruciverba  ";
  const std::string readError = "Errore di lettura del file! ";
  const std::string writeError = "Errore di scrittura del file! ";
  const std::string missing = ": il file o la cartella non esiste.\n";
  const std::string special = ": non è un file ma una pipe o un dispositivo.\n";
  const std::pair<const char*, std::string> rows[] = {
      {"parole none", noCrossword + "none  Non trovato! Esecuzione terminata.\n"},
      {"copia folder old", noCrossword + "folder  Non trovato! Esecuzione terminata.\n"},
      {"copia sample folder", writeError + "folder: il nome è quello di una cartella.\n"},
      {"copia sample none/new", writeError + "none/new" + missing},
      {"copia sample /proc/new", writeError + "/proc/new" + missing},
      {"copia sample pipe", writeError + "pipe: nessuno legge all'altro capo.\n"},
      {"griglia pipe", readError + "pipe" + special},
      {"griglia /dev/zero", readError + "/dev/zero" + special},
      {"nuovo old --modelli pipe --modello 1",
       "Impossibile leggere il file modelli. pipe" + special},
      {"diz-crea LessicoItaliano.dat pipe",
       "La lista di parole non si può leggere. pipe" + special},
      {"copia sample /dev/full", writeError + "/dev/full: il disco è pieno.\n"},
      {"nuovo none/new --dimensioni 5x5", writeError + "none/new" + missing},
      {"estrai square none/new", writeError + "none/new" + missing},
      {"estrai square old --dizionario none", NoDictionary + std::string("none\n")},
      {"estrai square old --dizionario .", NoDictionary + std::string(".\n")},
      {"cerca ... --cartella none", NoDictionary + std::string("LessicoItaliano.dat\n")},
      {"diz-info è.dat", NoDictionary + std::string("è.dat\n")},
      {"nuovo old --dimensioni 2x5", "Numero caselle orizzontali consentito da 3 a 53.\n"},
      {"nuovo old --dimensioni 5x31", "Numero caselle verticali consentito da 3 a 30.\n"},
      {"nuovo old --modello 1", "Errore: Non trovato file di definizione modelli standard! " +
                                    InFolder("program/STANDARD.dfc").string() + missing},
      {"nuovo old --modelli bad.dfc --modello 1", "Tipo di file modelli non valido!\n"},
      {"nuovo old --modelli bad.dfc --modello 2",
       "Il file modelli bad.dfc non ha righe per un modello numero 2.\n"},
      {"diz-crea LessicoItaliano.dat list none", "La lista di parole non è stata trovata: none\n"},
      {"diz-crea LessicoItaliano.dat folder", "La lista di parole non è stata trovata: folder\n"},
      {"diz-crea LessicoItaliano.dat huge", "La lista di parole è troppo grande: huge\n"},
      {"diz-crea LessicoItaliano.dat unfit unfit", NoWords},
      {"diz-crea New.dat unfit", NoWords},
      {"diz-info short.dat",
       "Il dizionario short.dat è troncato: ha 439 byte e ne richiede almeno 440.\n"},
  };
  for (const auto& [line, told] : rows) {
    SCOPED_TRACE(line);
    EXPECT_EQ(Told(line, 1), told);
  }
  EXPECT_EQ(Out("diz-elenca LessicoItaliano.dat"), "AAAA\n");
  EXPECT_TRUE(Out("diz-crea --vuoto LessicoItaliano.dat unfit").starts_with("3\t0\n"));
  EXPECT_EQ(Out("diz-elenca LessicoItaliano.dat"), "");
}

// With this one word every choice of the fill is forced, up to the last cell.
TEST_F(Telar, DeadEndsGetTheAnswerOfTheCommandLine) {
  MakeDictionary("AAAB\n");
  const std::string rest =
      " <Si> per accettare <No> per iniziare l'estrazione da capo <Annulla> per interrompere "
      "l'estrazione Va bene ? \n";
  const std::string first =
      "Parola verticale 4 alle coordinate 4,1 non trovata nel vocabolario: 'B...'" + rest;
  const std::string second =
      "Parola orizzontale 7 alle coordinate 1,4 non trovata nel vocabolario: 'BBB.'" + rest;
  EXPECT_EQ(Told("estrai square yes", 0), first + second);
  std::string yes = Out("griglia yes");
  EXPECT_NE(std::string_view("ABCDEFGHILMNOPQRSTUVZ").find(yes.at(18)), std::string::npos);
  EXPECT_EQ(yes.replace(18, 1, "?"), "AAAB\nAAAB\nAAAB\nBBB?\n****\n");
  EXPECT_EQ(Told("estrai --vicolo-cieco annulla square cancelled", 0), first);
  const std::string cancelled =
      Unisci(Head, "04x05\r\n[.[.[.\\.\r\n[.[.[.H.\r\n[.[.[.H.\r\n\\.\\.\\.H.\r\nD*D*D*D*\r\n",
             "[Colori caselle]\r\n 0  0  0  0  0 \r\n 0  0  0  0  0 \r\n 0  0  0  0  0 \r\n",
             " 0  0  0  0  0 \r\n");
  EXPECT_EQ(FirstDifference(Read("cancelled"), cancelled), "");
  EXPECT_EQ(Told("estrai square old --tentativi=2 --vicolo-cieco=no", 1),
            first + first + "Rinuncia dopo 2 tentativi: nessun file scritto.\n");
  EXPECT_EQ(Told("estrai square never --infinito", 1),
            "Rinuncia dopo 1.000 tentativi: nessun file scritto.\n");
  EXPECT_FALSE(fs::exists(InFolder("work/never")));
}

TEST_F(Telar, InterruptEndsAnEndlessRun) {
  MakeDictionary("AAAB\n");
  for (const char* option : {"--infinito", "--vicolo-cieco=no"}) {
    call.arguments = {"estrai", "square", "old", "--tentativi", "999999999999", option};
    TelarProcess run(call);
    run.WaitUntil([&] { return run.CatchesInterrupt(); });
    run.Interrupt();
    const TelarResult result = run.WaitForEnd();
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.ends_with("Estrazione interrotta: nessun file scritto.\n"));
  }
}

TEST_F(Telar, ManyRunsAtOnceFillTheUsersFolderAndTheirGrids) {
  call.environment.back() = "XDG_DATA_HOME=" + InFolder("home").string();
  std::list<TelarProcess> runs;
  const auto runAll = [&](std::string_view before, std::string_view behind) {
    for (int i = 0; i < 8; ++i) {
      call.arguments = Split(Unisci(before, i, behind), ' ');
      runs.emplace_back(call);
    }
    for (TelarProcess& run : runs)
      EXPECT_EQ(run.WaitForEnd().status, 0);
    runs.clear();
  };
  Write("m.dfc", ".......\n.*.*.*.\n.......\n.*.*.*.\n.......\n-\n");
  runAll("nuovo grid", " --modello 1 --modelli m.dfc");
  runAll("estrai --infinito grid0 full", "");
  const Words known = Split(Out("diz-elenca LessicoItaliano.dat"), '\n');
  for (int i = 0; i < 8; ++i) {
    const Words rows = Split(Out(Unisci("griglia full", i)), '\n');
    ASSERT_EQ(rows.size(), 5u);
    Words words = {rows[0], rows[2], rows[4]};
    for (const std::size_t c : {0, 2, 4, 6}) {
      words.emplace_back();
      for (const std::string& row : rows)
        words.back() += row.at(c);
    }
    for (const std::string& word : words)
      EXPECT_NE(std::count(known.begin(), known.end(), word), 0);
    for (const std::size_t r : {1, 3}) {
      for (const std::size_t c : {1, 3, 5})
        EXPECT_EQ(rows[r].at(c), '*');
    }
  }
}

TEST_F(Telar, UsersOwnFolderGetsWhatIsMissingAndKeepsWhatIsThere) {
  call.environment.back() = "XDG_DATA_HOME=" + InFolder("home").string();
  fs::create_directory(InFolder("home/telarium"));
  WriteFile("home/telarium/standard.DFC", "mio");
  WriteFile("home/telarium/LessicoItaliano.dat", "");
  EXPECT_TRUE(Out("diz-info LessicoItaliano.dat").starts_with("3\t0\t0\n"));
  EXPECT_TRUE(Out("diz-info LessicoInglese.dat").starts_with("3\t440\t1697\n"));
  EXPECT_EQ(ReadFile(InFolder("home/telarium/standard.DFC")), "mio");
  EXPECT_FALSE(fs::exists(InFolder("home/telarium/STANDARD.dfc")));
  EXPECT_EQ(ReadFile(InFolder("home/telarium/telarium.INI")),
            ReadFile(Percorso(TELARIUM_DATA_DIR) / "telarium.INI"));
}

TEST_F(Telar, NoFolderIsFilledThatTheUserDidNotMean) {
  Out("nuovo new --dimensioni 5x5");
  EXPECT_EQ(Names("program"), Words());
  call.environment[0] = "TMPDIR=/nonexistent";  // no place for the snapshot
  EXPECT_EQ(Told("nuovo old --dimensioni 5x5", 1), "Impossibile creare una cartella temporanea.\n");
  EXPECT_EQ(Names("program"), Words());
  const Words before = Names("work");
  call.environment = {"HOME=relative", "XDG_DATA_HOME=relative"};
  Run("griglia sample");
  EXPECT_EQ(Names("work"), before);
}

TEST_F(Telar, StandardOutputThatTakesNothingIsAFailure) {
  MakeDictionary("MELA\n");
  const Descrittore full(::open("/dev/full", O_WRONLY | O_CLOEXEC));
  for (const int output : {TelarCall::Closed, full.Numero()}) {
    call.output = output;
    for (const char* line :
         {"griglia sample", "parole sample", "diz-info LessicoItaliano.dat",
          "diz-elenca LessicoItaliano.dat", "cerca ....", "--help", "--version"}) {
      const TelarResult result = Run(line);
      EXPECT_EQ(result.status, 1) << line;
      EXPECT_TRUE(result.err.ends_with("Errore di scrittura sull'uscita standard.\n")) << line;
    }
    EXPECT_EQ(Run("copia sample new").status, 0);  // prints nothing
  }
}

TEST_F(Telar, ReaderOfMessagesThatGoesAwayEndsNoRun) {
  MakeDictionary("AAAB\n");
  int ends[2];
  ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
  const Descrittore writing(ends[1]);
  ::close(ends[0]);
  call.errors = writing.Numero();
  EXPECT_EQ(Run("estrai square old --tentativi 2 --vicolo-cieco no").status, 1);
}

}  // namespace
}  // namespace telarium
