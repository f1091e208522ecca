#include <QDialogButtonBox>
#include <QImage>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <limits>

#include "editor/redraw.h"
#include "editor/windows/form1_fixture.h"
#include "platform/codepage.h"
#include "platform/qt/qt_print_job.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/qt_text.h"
#include "platform/text.h"
#include "support/clue_store.h"

namespace telarium {
namespace {

constexpr int PrintButton = 6;
constexpr int PreviewButton = 7;

// The system's PDF printer with its dialog.
class PrintingTest : public Form1Test {
 protected:
  void SetUp() override {
    Form1Test::SetUp();
    platform.printerInUse = &printer;
  }

  // The dialog comes up; the user names a file for it.
  void PrintInto(const Percorso& file, QObject& context, QString* proposed = nullptr) {
    WhenOpen<QPrintDialog>(context, [=](QPrintDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Stampa"));
      auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
      ASSERT_TRUE(name);
      if (proposed) *proposed = name->text();
      name->setText(PercorsoAQt(file));
      dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
  }

  std::unique_ptr<LavoroDiStampa> JobInto(const Percorso& file) {
    QObject context;
    PrintInto(file, context);
    return printer.IniziaLavoro("prova");
  }

  // What a program of the PDF tools prints, in UTF-8.
  static std::string Output(const char* program, const QStringList& arguments) {
    QProcess process;
    process.start(QLatin1StringView(program), arguments);
    EXPECT_TRUE(process.waitForFinished(Patience)) << program;
    EXPECT_EQ(process.exitCode(), 0) << program;
    return process.readAllStandardOutput().toStdString();
  }
  static std::string TextOf(const Percorso& file) {
    return Output("pdftotext", {QStringLiteral("-layout"), PercorsoAQt(file), QStringLiteral("-")});
  }
  static QImage FirstPage(const Percorso& file, int dotsPerInch) {
    const QString picture = PercorsoAQt(file) + QStringLiteral(".picture");
    Output("pdftoppm", {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"),
                        QString::number(dotsPerInch), PercorsoAQt(file), picture});
    return QImage(picture + QStringLiteral(".png"));
  }

  static std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1))
      ++count;
    return count;
  }

  StampanteQt printer;
};

TEST_F(PrintingTest, MakesAPdfWithTextAndTheGridInItsPlace) {
  StartWith({"PERCH\xC9", "#....."});
  Resize(800, 700);
  SetColour(1, 2, 0x3060C0);
  SetClue(1, 1, Orizzontale, "Così si chiede, «affinché» è la risposta"_cp);
  const double width = form->Area->width();
  const Percorso file = InFolder("uscita.pdf");
  QString proposed;
  PrintInto(file, *form, &proposed);
  form->Voce("MenuStampa").trigger();
  EXPECT_TRUE(proposed.endsWith(QStringLiteral("/mio.pdf"))) << proposed.toStdString();

  const std::string text = TextOf(file);
  EXPECT_EQ(Count(text, "Così si chiede, «affinché» è la risposta"), 1u) << text;
  EXPECT_EQ(Count(text, "É"), 1u);
  EXPECT_EQ(Count(text, "VERTICALI:"), 1u);
  EXPECT_LT(std::filesystem::file_size(file), 200'000u);

  // A4 with margins of 6 mm; 10 dots to the millimetre.
  const QImage page = FirstPage(file, 254);
  EXPECT_NEAR(page.width(), 2100, 2);
  EXPECT_NEAR(page.height(), 2970, 2);
  const double height = form->Area->height() * 2.031467;
  const auto at = [&](double x, double y) {
    return page.pixelColor(qRound(60 + x * 1980 / width), qRound(60 + y * 2850 / height));
  };
  const double side = LatoCasella;
  EXPECT_EQ(at(OrigineX + side / 2, OrigineY + side * 1.5), QColor(0xC0, 0x60, 0x30));
  EXPECT_EQ(at(OrigineX + side * 1.5, OrigineY + side * 1.5), QColor(Qt::white));
  int darkest = 255;
  for (double d = -2; d <= 2; d += 0.2)
    darkest = std::min(darkest, at(OrigineX + side * 3 + d, OrigineY + side * 1.5).lightness());
  EXPECT_LT(darkest, 60) << "an outline";
  EXPECT_EQ(at(OrigineX + side * 6 + 8, OrigineY + side * 1.5), QColor(Qt::white));

  ClickButton(PreviewButton);  // and from there on, into the folder of the last one
  SetName(InFolder("altro.tlrm"));
  PrintInto(InFolder("secondo.pdf"), *form, &proposed);
  ClickButton(PrintButton);
  EXPECT_EQ(proposed, PercorsoAQt(InFolder("altro.pdf")));
  EXPECT_TRUE(FileOrdinario(InFolder("secondo.pdf")));
  EXPECT_TRUE(form->Command3d15->isVisible());
}

TEST_F(PrintingTest, ScalesPlacesAndNotType) {
  const auto job = JobInto(InFolder("a.pdf"));
  ASSERT_TRUE(job);
  job->CorpoCarattere(10);
  job->ScalaSuperficie(1000, 1000);
  const double width = job->LarghezzaTesto("MMMMM");
  const double height = job->AltezzaTesto({});
  EXPECT_NEAR(width * 198 / 1000, 14.7, 0.2) << "in mm: five times 0.833 of 10 points";
  job->ScalaSuperficie(2000, 500);
  EXPECT_EQ(job->AltezzaSuperficie(), 500);
  EXPECT_NEAR(job->LarghezzaTesto("MMMMM"), 2 * width, 0.1);
  EXPECT_NEAR(job->AltezzaTesto({}), height / 2, 0.1);
  job->Posizione(7, 9);
  job->Scrivi("MMMMM");
  EXPECT_NEAR(job->PosizioneX(), 7 + 2 * width, 0.1);
}

TEST_F(PrintingTest, BeginsWithThePrintersType) {
  ASSERT_TRUE(printer.Carattere("Liberation Mono"));
  printer.Corsivo(true);
  printer.Grassetto(true);
  const Percorso file = InFolder("tipo.pdf");
  const auto job = JobInto(file);
  ASSERT_TRUE(job && job->Corsivo() && job->Grassetto());
  job->Scrivi("x");
  job->FineStampa();
  EXPECT_EQ(Count(Output("pdffonts", {PercorsoAQt(file)}), "LiberationMono-BoldItalic"), 1u);
}

TEST_F(PrintingTest, SurvivesAnyCoordinatesAndSizesAndGoesOnOnAnotherPage) {
  const Percorso file = InFolder("estremi.pdf");
  const auto job = JobInto(file);
  ASSERT_TRUE(job);
  job->ScalaSuperficie(0, -5);
  job->ScalaSuperficie(1000, 1400);
  for (const double value : {std::numeric_limits<double>::quiet_NaN(),
                             std::numeric_limits<double>::infinity(), -1e300, 1e9, 0.0}) {
    job->CorpoCarattere(value);
    job->Posizione(value, value);
    job->ScriviRiga("fuori");
    job->RiquadroPieno(value, value, 10, 10, ColoreNero);
    job->Riquadro(5, 5, value, value, ColoreNero);
  }
  EXPECT_TRUE(job->NuovaPagina());
  job->CorpoCarattere(10);
  job->Posizione(100, 1300);
  job->Scrivi("dentro");
  job->FineStampa();
  job->FineStampa();
  EXPECT_GT(TextOf(file).find("dentro"), TextOf(file).find('\f')) << "on the second page";
  EXPECT_EQ(Count(TextOf(file), "dentro"), 1u);
}

TEST_F(PrintingTest, WritesNoFileThatIsGivenUpOrCannotBeWritten) {
  const Percorso file = InFolder("mai.pdf");
  JobInto(file)->Scrivi("x");
  EXPECT_FALSE(FileOrdinario(file));

  std::filesystem::create_directory(InFolder("via"));
  const auto job = JobInto(InFolder("via") / "mai.pdf");
  ASSERT_TRUE(job);
  std::filesystem::remove(InFolder("via"));
  job->FineStampa();
  const std::vector<std::string> texts = user.TakeTexts();
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_TRUE(texts[0].starts_with("Non è possibile scrivere il file "_cp));

  StartWith({"CASA"});
  PrendiStrumento(Strumento::CasellaNera);
  WhenOpen<QPrintDialog>(*form, [](QPrintDialog& dialog) { dialog.reject(); });
  form->Voce("MenuStampa").trigger();
  EXPECT_EQ(PuntatoreMouse, PuntatoreCasellaNera);
}

// Qt's own PDF engine stands for a printer, of which there is none here.
TEST_F(PrintingTest, PaintsOnThePaperOfAPrinter) {
  const Percorso file = InFolder("carta.pdf");
  QPrinter paper(QPrinter::HighResolution);
  paper.setOutputFileName(PercorsoAQt(file));
  LavoroQt job(CartaDellaStampante(paper), {"Arial", false, false});
  ASSERT_TRUE(job.Iniziato());
  job.ScalaSuperficie(1000, 1400);
  job.Scrivi("prima");
  EXPECT_TRUE(job.NuovaPagina());
  job.Posizione(0, 0);
  job.Scrivi("seconda");
  job.FineStampa();
  EXPECT_GT(TextOf(file).find("seconda"), TextOf(file).find('\f'));

  paper.setOutputFileName(PercorsoAQt(InFolder("no folder/x.pdf")));
  EXPECT_FALSE(LavoroQt(CartaDellaStampante(paper), {"Arial", false, false}).Iniziato());
}

TEST_F(PrintingTest, ClosesAPreviewWhenTheWindowChangesItsSize) {
  StartWith({"CASA"});
  Resize(800, 700);
  const std::string all = EnabledButtons();
  QTest::keyClick(form.get(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(EnabledButtons(), "Nuovo Apri Salva Stampa Anteprima Edit Compila ");
  EXPECT_EQ(Shown(form->Area->width() / 2.0, form->Area->height() * 0.9), QColor(Qt::white));
  Resize(700, 600);
  EXPECT_FALSE(form->Command3d15->isVisible());
  EXPECT_EQ(EnabledButtons(), all);
  EXPECT_EQ(Shown(OrigineX + LatoCasella * 2, OrigineY - 3 + 0.5), QColor(128, 0, 0));

  ClickButton(PreviewButton);
  QTest::mouseClick(form->Command3d15, Qt::LeftButton);
  EXPECT_EQ(EnabledButtons(), all);
  ClickButton(PreviewButton);
  QTest::keyClick(form.get(), Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([&] { return form->Command3d15->isHidden(); }, Patience));
  EXPECT_EQ(EnabledButtons(), all);
}

TEST_F(PrintingTest, APreviewShowsTheCluesThatAreFetchedMeanwhile) {
  MakeStore("CASA\tF\tDove si abita, e per giunta volentieri\n");
  StartWith({"CASA"});
  Resize(800, 700);
  ClickButton(PreviewButton);
  const QImage before = form->Area->grab().toImage();
  form->Voce("Menuprelfac").trigger();
  EXPECT_EQ(user.TakeTexts().size(), 1u);
  EXPECT_TRUE(form->Command3d15->isVisible());
  EXPECT_NE(form->Area->grab().toImage(), before);
}

}  // namespace
}  // namespace telarium
