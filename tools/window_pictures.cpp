#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <cstdio>
#include <functional>

#include "editor/cell_editing.h"
#include "editor/startup.h"
#include "editor/windows/Form1.h"
#include "model/state.h"
#include "platform/platform.h"
#include "platform/qt/qt_dialog.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_text.h"

// Takes the pictures of the guide: window_pictures DATA_FOLDER WORK_FOLDER PICTURE_FOLDER
// They show the real windows, on a screen that nobody sees, in a copy of the data folder that is
// made as WORK_FOLDER, whose name some of them show, and removed. A window that no longer opens as
// it is told here is an error.
namespace telarium {
namespace {

constexpr QSize MainSize(1000, 700);  // logical pixels
constexpr int Patience = 60'000;      // milliseconds
constexpr int Glance = 20;            // milliseconds between two looks
constexpr int ButtonSide = 48;        // pixels, shown at half the size
constexpr const char* Sample = "Archivio cruciverba/A tavola.tlrm";
constexpr const char* SmallSample = "Archivio cruciverba/Primo incontro.tlrm";

class Studio {
 public:
  Studio(Form1& form, const QString& folder) : form(form), folder_(folder) {}

  Form1& form;

  void Save(const QPixmap& picture, const char* name) {
    const QString file =
        folder_ + QLatin1Char('/') + QLatin1StringView(name) + QStringLiteral(".png");
    constexpr int smallest = 0;  // file, by the strongest compression
    if (!picture.save(file, "PNG", smallest)) Fail(name);
  }
  void Save(QWidget& window, const char* name) {
    QCoreApplication::processEvents();
    Save(window.grab(), name);
  }

  void Fail(const char* what) {
    std::fprintf(stderr, "window_pictures: %s\n", what);
    failed_ = true;
  }
  bool Failed() const { return failed_ || awaited_ > 0; }

  /// Runs a command of the menu, and meanwhile does `act` with the window that it opens, which then
  /// is closed.
  void During(const char* entry, const std::function<void(QWidget&)>& act) {
    OnWindow(act);
    Command(entry);
  }

  void Command(const char* entry) {
    if (!form.Voce(entry).isEnabled()) return Fail(entry);
    form.Voce(entry).trigger();
  }

  /// Does `act` with the next modal window over `below`, as soon as it is ready, and closes it.
  void OnWindow(const std::function<void(QWidget&)>& act, const QWidget* below = nullptr,
                QDeadlineTimer deadline = QDeadlineTimer(Patience)) {
    ++awaited_;
    QTimer::singleShot(Glance, &form, [=, this] {
      --awaited_;
      QWidget* window = QApplication::activeModalWidget();
      const auto* ours = dynamic_cast<FinestraModale*>(window);
      const bool ready =
          window && window != below && window->isVisible() && (!ours || ours->Pronta());
      if (!ready && !deadline.hasExpired()) return OnWindow(act, below, deadline);
      if (!ready) return Fail("a window did not open");
      act(*window);
      if (window->isVisible()) window->close();
    });
  }

 private:
  QString folder_;
  int awaited_ = 0;
  bool failed_ = false;
};

QPushButton& Button(QWidget& window, const char* name) {
  return *window.findChild<QPushButton*>(QLatin1StringView(name));
}

// A place in a cell on the surface, columns and rows from 1: below, to leave the word in view, and
// farther to the right, where the pointer means the horizontal word.
QPoint InCell(int column, int row) {
  return {OrigineX + column * LatoCasella - 2, OrigineY + row * LatoCasella - 6};
}

// --- The windows that a menu entry opens ---

struct MenuWindow {
  const char* picture;
  const char* entry;
  QSize size;                                           // none: its own
  void (*prepare)(Studio&, QWidget& window) = nullptr;  // before the picture
};

void PickLine(QWidget& window, const char* list, const QString& text) {
  auto& view = *window.findChild<QListWidget*>(QLatin1StringView(list));
  const auto found = view.findItems(text, Qt::MatchStartsWith);
  if (!found.isEmpty()) view.setCurrentItem(found.front());
}

void EditRow(Studio&, QWidget& window) {
  auto& table = *window.findChild<QTableWidget*>(QStringLiteral("Gitter1"));
  table.setCurrentCell(12, 1);
  QTest::keyClick(&table, Qt::Key_Return);
}

// Goes to a word of the encyclopedia by the search.
void FindWord(Studio& studio, QWidget& window) {
  studio.OnWindow(
      [](QWidget& question) {
        question.findChild<QLineEdit*>()->setText(QStringLiteral("ALBA"));
        QTest::keyClick(&question, Qt::Key_Return);
      },
      &window);
  Button(window, "Cerca").click();
}

void OpenDictionary(Studio& studio, QWidget& window) {
  auto& files = *window.findChild<QListWidget*>(QStringLiteral("File1"));
  PickLine(window, "File1", QStringLiteral("LessicoItaliano"));
  QTest::keyClick(&files, Qt::Key_Return);
  if (!Button(window, "Command4").isEnabled()) studio.Fail("no dictionary was read");
}

const MenuWindow menu_windows[] = {
    {"formnew", "MenuNuovo", {}},
    {"form2", "MenuApri", {}},
    {"telarsav",
     "MenuSalvaCN",
     {},
     [](Studio&, QWidget& window) {
       window.findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QStringLiteral("A tavola"));
     }},
    {"print", "MenuStampa", {}},
    {"settaggi", "menusetschema", {}},
    {"fonten",
     "MenuFont",
     {},
     [](Studio&, QWidget& window) {
       PickLine(window, "LstFonts", QStringLiteral("Liberation Serif"));
     }},
    {"telarbro", "MenuParole", {1040, 680}, EditRow},
    {"telariummdb", "Menudefiniz", {}, FindWord},
    {"form4", "menudiz", {}, OpenDictionary},
    {"frmtip", "Menusugg", {}},
    {"form3", "MenuInfo", {}},
};

void TakeMenuWindows(Studio& studio) {
  for (const MenuWindow& one : menu_windows) {
    studio.During(one.entry, [&](QWidget& window) {
      if (!one.size.isEmpty()) {
        window.showNormal();
        window.resize(one.size);
        QCoreApplication::processEvents();
      }
      if (one.prepare) one.prepare(studio, window);
      studio.Save(window, one.picture);
    });
  }
}

// --- The main window ---

void Open(Studio& studio, const char* name) {
  studio.form.RiceviDaFuori(CartellaProgramma / name);
  QCoreApplication::processEvents();
}

void TakeMain(Studio& studio) {
  studio.Save(studio.form, "form1_start");
  Open(studio, Sample);
  studio.Save(studio.form, "form1");
  QTest::mouseMove(studio.form.Area, InCell(1, 9));
  studio.Save(studio.form.Area->grab(QRect(OrigineX - 12, OrigineY + 7 * LatoCasella,
                                           8 * LatoCasella, 4 * LatoCasella + 14)),
              "rectangle");
  QTest::mouseMove(studio.form.Area, QPoint(4, MainSize.height() / 2));
  studio.Save(*studio.form.Toolbar1, "toolbar");
  for (QAction* button : studio.form.Toolbar1->actions()) {
    if (button->isSeparator()) continue;
    studio.Save(button->icon().pixmap(ButtonSide),
                ("button_" + button->objectName().toLower().toStdString()).c_str());
  }
}

void TakeMenus(Studio& studio) {
  for (const char* name : {"MenuFile", "MenuEdit", "MenuUtiliti", "Menupz", "MenuHelp"}) {
    QMenu& menu = *studio.form.Voce(name).menu();
    menu.ensurePolished();
    menu.resize(menu.sizeHint());
    studio.Save(menu.grab(), QByteArray(name).toLower().constData());
  }
}

void TakePreview(Studio& studio) {
  Open(studio, SmallSample);
  studio.Command("MenuAnteprima");
  studio.Save(studio.form, "preview");
  studio.form.Command3d15->click();
  Open(studio, Sample);
}

// The clue editor of a word of the sample, with clues found and a masked search.
void TakeClueEditor(Studio& studio) {
  studio.form.Voce("Menudef").trigger();
  QTest::mouseMove(studio.form.Area, InCell(1, 9));
  studio.OnWindow([&](QWidget& window) {
    Button(window, "Command1").click();
    for (const int place : {0, 2})
      window.findChild<QWidget*>(QStringLiteral("Check3d1_%1").arg(place))
          ->setProperty("checked", false);
    Button(window, "Command3D4").click();
    studio.Save(window, "telardef");
  });
  QTest::mouseClick(studio.form.Area, Qt::LeftButton, {}, InCell(1, 9));
}

void TakeTableOfEncyclopedia(Studio& studio) {
  studio.During("Menudefiniz", [&](QWidget& browser) {
    FindWord(studio, browser);
    studio.OnWindow([&](QWidget& table) { studio.Save(table, "frmparole"); }, &browser);
    Button(browser, "Command1").click();
  });
}

void TakeMessages(Studio& studio) {
  studio.During("Menupreltutt", [&](QWidget& box) { studio.Save(box, "report"); });
}

// Hardly a fill of the sample's grid comes through without a dead end, or soon without any.
void TakeFill(Studio& studio) {
  const auto accept = [](QWidget& question) { Button(question, "OK").click(); };
  studio.During("MenuEstrazione", [&](QWidget& question) {
    studio.Save(question, "fill_question");
    studio.OnWindow([&](QWidget& deadEnd) { studio.Save(deadEnd, "dead_end"); }, &question);
    accept(question);
  });
  studio.Command("MenuInf");
  studio.During("MenuEstrazione", [&](QWidget& question) {
    constexpr int while_it_runs = 700;  // milliseconds
    QTimer::singleShot(while_it_runs, &studio.form, [&] {
      studio.Save(studio.form.Avanzamento->grab(), "fill_progress");
      studio.form.Avanzamento->Interrompi();
    });
    accept(question);
  });
}

bool TakeAll(const QString& pictures) {
  PiattaformaQt platform;
  ImpostaPiattaforma(&platform);
  constexpr const char* tips = "Options/Show Tips at Startup";
  platform.Sistema().ScriviImpostazione(tips, "0");
  CaricaProgramma(CartellaProgramma);
  Form1 form;
  platform.ChiUsa().Finestra(&form);
  platform.ChiUsa().SegueEstrazione(
      [&form](const AvanzamentoEstrazione& a) { return form.SeguiEstrazione(a); });
  platform.FinestraPrincipale(&form.Area->Superficie());
  form.Mostra();
  Studio studio(form, pictures);
  if (!QTest::qWaitFor([] { return GiaAttivata != Falso; }, Patience)) return false;
  platform.Sistema().ScriviImpostazione(tips, "1");  // for the menu entry
  form.showNormal();
  form.resize(MainSize);
  QCoreApplication::processEvents();
  for (const auto take : {TakeMain, TakeMenus, TakeMenuWindows, TakePreview, TakeClueEditor,
                          TakeTableOfEncyclopedia, TakeMessages, TakeFill})
    take(studio);
  return !studio.Failed();
}

bool CopyFolder(const QDir& from, const QDir& to) {
  if (!to.mkpath(QStringLiteral("."))) return false;
  for (const QString& name : from.entryList(QDir::Files))
    if (!QFile::copy(from.filePath(name), to.filePath(name))) return false;
  for (const QString& name : from.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
    if (!CopyFolder(from.filePath(name), to.filePath(name))) return false;
  return true;
}

// One screen of a usual size, for the platform that shows nothing.
void DescribeScreen(const QString& file) {
  QFile json(file);
  if (!json.open(QIODevice::WriteOnly)) return;
  json.write(R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": 1280, "height": 900,
                 "logicalDpi": 96, "dpr": 1}]})");
  json.close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file));
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  using namespace telarium;
  if (argc != 4) {
    std::fputs("usage: window_pictures DATA_FOLDER WORK_FOLDER PICTURE_FOLDER\n", stderr);
    return 2;
  }
  const QDir data(QString::fromLocal8Bit(argv[1])), pictures(QString::fromLocal8Bit(argv[3]));
  QDir work(QString::fromLocal8Bit(argv[2]));
  if (work.exists() || !CopyFolder(data, work) || !pictures.mkpath(QStringLiteral("."))) {
    std::fprintf(stderr, "window_pictures: cannot make %s of %s\n", argv[2], argv[1]);
    return 1;
  }
  CartellaProgramma = QFile::encodeName(work.absolutePath()).toStdString();
  const QString shown =
      pictures.absolutePath();   // the program's own folder becomes the working one
  const QTemporaryDir settings;  // instead of the user's
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings.path()));
  qputenv("QT_SCALE_FACTOR", "1");
  DescribeScreen(settings.filePath(QStringLiteral("screen.json")));
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Telarium"));
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  QTranslator translator;
  if (!translator.load(QStringLiteral("qtbase_it"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    return 1;
  QApplication::installTranslator(&translator);
  const bool taken = TakeAll(shown);
  QDir(PercorsoAQt(CartellaProgramma)).removeRecursively();
  return taken ? 0 : 1;
}
