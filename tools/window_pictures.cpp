#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

#include "editor/cell_editing.h"
#include "editor/geometry.h"
#include "editor/history_commands.h"
#include "editor/startup.h"
#include "editor/windows/Form1.h"
#include "fixed_platform.h"
#include "model/documento.h"
#include "model/state.h"
#include "platform/platform.h"
#include "platform/qt/qt_dialog.h"
#include "platform/qt/qt_platform.h"
#include "telarium/desktop.h"
#include "work_folder.h"

// Takes the pictures of the guide: window_pictures DATA_FOLDER WORK_FOLDER PICTURE_FOLDER
// They show the real windows, on a screen that nobody sees, in a copy of the data folder that is
// made as WORK_FOLDER, whose name some of them show, and removed. Chance and the clocks are fixed,
// so that only the pictures of what has changed come out otherwise; the fill tells its speed all
// the same. A window that no longer opens as it is told here is an error.
namespace telarium {
namespace {

constexpr QSize MainSize(1000, 700);  // logical pixels
constexpr int Patience = 60'000;      // milliseconds
constexpr int Glance = 20;            // milliseconds between two looks
constexpr int ButtonSide = 48;        // pixels, shown at half the size
constexpr const char* Sample = "Archivio cruciverba/A tavola.tlrm";
constexpr const char* SmallSample = "Archivio cruciverba/Primo incontro.tlrm";

bool IsBlank(const QImage& image) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != image.pixel(0, 0)) return false;
  return true;
}

class Studio {
 public:
  Studio(FixedPlatform& platform, Form1& form, const QString& folder)
      : platform(platform), form(form), folder_(folder) {}

  FixedPlatform& platform;
  Form1& form;

  void Save(const QPixmap& picture, const char* name) {
    const QString file =
        folder_ + QLatin1Char('/') + QLatin1StringView(name) + QStringLiteral(".png");
    constexpr int smallest = 0;  // file, by the strongest compression
    if (IsBlank(picture.toImage())) Fail("nothing is to be seen in the picture", name);
    if (!picture.save(file, "PNG", smallest)) Fail("cannot write the picture", name);
  }
  void Save(QWidget& window, const char* name) {
    QCoreApplication::processEvents();
    StopClock();
    Save(window.grab(), name);
  }

  void Fail(const char* what, const std::string& which) {
    std::fprintf(stderr, "window_pictures: %s: %s\n", what, which.c_str());
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
    if (!form.Voce(entry).isEnabled()) return Fail("the menu entry is disabled", entry);
    form.Voce(entry).trigger();
  }

  /// Does `act` with the next modal window over `below`, as soon as it is ready, and closes it.
  void OnWindow(const std::function<void(QWidget&)>& act, QWidget* below = nullptr) {
    ++awaited_;
    Await(act, below, QDeadlineTimer(Patience));
  }

 private:
  // `below` may be gone by then: another window may have got its place in memory.
  void Await(const std::function<void(QWidget&)>& act, const QPointer<QWidget>& below,
             QDeadlineTimer deadline) {
    QTimer::singleShot(Glance, &form, [=, this] {
      const QPointer<QWidget> window = QApplication::activeModalWidget();
      const auto* ours = dynamic_cast<FinestraModale*>(window.data());
      const bool ready =
          window && window != below && window->isVisible() && (!ours || ours->Pronta());
      if (!ready && !deadline.hasExpired()) return Await(act, below, deadline);
      --awaited_;
      if (!ready) return Fail("no window opened", below ? TextOf(*below) : "over the main one");
      act(*window);
      if (window && window->isVisible()) window->close();
    });
  }

  static std::string TextOf(const QWidget& below) {
    return "over " + below.windowTitle().toStdString();
  }

  // The status bar tells the time by the clock on the wall, until it is told another.
  void StopClock() {
    const auto panels = form.StatusBar1->findChildren<QLabel*>();
    panels[panels.size() - 2]->setText(QString::fromStdString(DataDiOggi()).replace(u'-', u'/'));
    panels[panels.size() - 1]->setText(QStringLiteral("12:00"));
  }

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
  if (!Button(window, "Command4").isEnabled()) studio.Fail("no dictionary was read", "Form4");
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

void TakeMenu(Studio& studio, const char* name) {
  QMenu& menu = *studio.form.Voce(name).menu();
  menu.ensurePolished();
  menu.resize(menu.sizeHint());
  studio.Save(menu.grab(), QByteArray(name).toLower().constData());
}

void TakeMenus(Studio& studio) {
  for (const char* name : {"MenuFile", "MenuEdit", "MenuUtiliti", "Menupz", "MenuHelp"})
    TakeMenu(studio, name);
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

void TakeDeadEnd(Studio& studio) {
  studio.During("MenuEstrazione", [&](QWidget& question) {
    studio.Save(question, "fill_question");
    studio.OnWindow([&](QWidget& deadEnd) { studio.Save(deadEnd, "dead_end"); }, &question);
    Button(question, "OK").click();
  });
}

// The endless run, stopped in one of its attempts.
void TakeFillProgress(Studio& studio) {
  constexpr int attempt = 500;
  constexpr int words = 15;
  constexpr int too_many = 2 * attempt;
  bool taken = false;
  studio.form.EstrazioneAutomatica.Segue([&](const AvanzamentoEstrazione& progress) {
    const bool goes_on = studio.form.SeguiEstrazione(progress);
    if (!taken && progress.tentativo >= attempt && progress.slotCollocati >= words) {
      studio.Save(studio.form.Avanzamento->grab(), "fill_progress");
      taken = true;
    }
    return goes_on && !taken && progress.tentativo < too_many;
  });
  studio.Command("MenuInf");
  studio.During("MenuEstrazione", [&](QWidget& question) { Button(question, "OK").click(); });
  if (!taken) studio.Fail("the run did not come to as many words as", "fill_progress");
}

void MakeBlack(Studio& studio, int column, int row) {
  studio.Command("MenuCN");
  QTest::mouseClick(studio.form.Area, Qt::LeftButton, {}, InCell(column, row));
}

// Some changes, the last of them taken back; then what the next start offers of them.
void TakeHistory(Studio& studio) {
  std::chrono::sys_seconds now{
      std::chrono::seconds(QDate(2026, 11, 23).startOfDay().addSecs(15 * 3600).toSecsSinceEpoch())};
  const auto clock = [&now] { return now += std::chrono::seconds(40); };
  const Percorso folder = CartellaProgramma / "cronologia";
  IlDocumento().SegnaModificato(false);  // nobody is asked whether to save the fill
  Open(studio, Sample);
  {
    Cronologia history(IlDocumento(), folder, clock);
    ImpostaCronologia(&history);
    MakeBlack(studio, 3, 2);
    MakeBlack(studio, 11, 10);
    studio.Command("MenuAC");
    studio.Command("MenuTC");
    MakeBlack(studio, 7, 4);
    studio.Command("MenuAnnulla");
    TakeMenu(studio, "MenuLaboratorio");
    studio.During("MenuCronologia",
                  [&](QWidget& window) { studio.Save(window, "storiadellemodifiche"); });
  }
  Cronologia next(IlDocumento(), folder, clock);
  ImpostaCronologia(&next);
  studio.OnWindow([&](QWidget& window) { studio.Save(window, "lavorononsalvato"); });
  OffriLavoroPerso();
  ImpostaCronologia(nullptr);
}

// The form and the platform as in the program, the first activation done. The tips are not wanted
// at the start, but later by the menu entry.
void Begin(FixedPlatform& platform, Form1& form) {
  constexpr const char* tips = "Options/Show Tips at Startup";
  platform.Sistema().ScriviImpostazione(tips, "0");
  CollegaFinestra(platform, form);
  form.Mostra();
  if (!QTest::qWaitFor([] { return GiaAttivata != Falso; }, Patience))
    throw std::runtime_error("the main window did not come to its first activation");
  platform.Sistema().ScriviImpostazione(tips, "1");
  form.showNormal();
  form.resize(MainSize);
  QCoreApplication::processEvents();
}

bool TakeAll(const QString& pictures) {
  FixedPlatform platform;
  ImpostaPiattaforma(&platform);
  CaricaProgramma(CartellaProgramma);
  Form1 form;
  Begin(platform, form);
  Studio studio(platform, form, pictures);
  for (const auto take :
       {TakeMain, TakeMenus, TakeMenuWindows, TakePreview, TakeClueEditor, TakeTableOfEncyclopedia,
        TakeMessages, TakeDeadEnd, TakeFillProgress, TakeHistory})
    take(studio);
  return !studio.Failed();
}

// One screen of a usual size, for the platform that shows nothing.
void DescribeScreen(const QString& file) {
  QFile json(file);
  if (!json.open(QIODevice::WriteOnly) ||
      json.write(R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": 1280, "height": 900,
                     "logicalDpi": 96, "dpr": 1}]})") < 0 ||
      !json.flush())
    throw std::runtime_error("cannot write the description of the screen");
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file));
  qputenv("QT_SCALE_FACTOR", "1");
}

// The same on every machine, so that the windows have the same sizes.
void SetTypeface() {
  const QFont font(QStringLiteral("DejaVu Sans"), 9);
  if (!QFontInfo(font).exactMatch()) throw std::runtime_error("DejaVu Sans is not installed");
  QApplication::setFont(font);
}

bool Run(int& argc, char** argv) {
  const QDir pictures(QString::fromLocal8Bit(argv[3]));
  const QString shown = pictures.absolutePath();  // the working folder will be the program's own
  if (!pictures.mkpath(QStringLiteral(".")))
    throw std::runtime_error("cannot make the folder of the pictures");
  const WorkFolder work(QString::fromLocal8Bit(argv[2]), QDir(QString::fromLocal8Bit(argv[1])));
  CartellaProgramma = work.Path();
  const QTemporaryDir settings;  // instead of the user's
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings.path()));
  DescribeScreen(settings.filePath(QStringLiteral("screen.json")));
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication application(argc, argv);
  NominaApplicazione();
  SetTypeface();
  if (!ParlaItaliano(application)) throw std::runtime_error("Qt's translations are not installed");
  return TakeAll(shown);
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fputs("usage: window_pictures DATA_FOLDER WORK_FOLDER PICTURE_FOLDER\n", stderr);
    return 2;
  }
  try {
    return telarium::Run(argc, argv) ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "window_pictures: %s\n", error.what());
    return 1;
  }
}
