#pragma once

#include <QMouseEvent>
#include <filesystem>
#include <memory>

#include "editor/activation.h"
#include "editor/startup.h"
#include "editor/windows/Form1.h"
#include "model/crossword_file.h"
#include "support/telarium_test.h"
#include "support/window_helpers.h"

namespace telarium {

/// The main window, started as its program does it, in a program folder with a small dictionary.
class Form1Test : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    WriteFile("telarium.INI",
              "PercentualeRiquadro= 90 \r\nSpessoreBordo= 2 \r\nAltezzaCaratteri= 50 \r\n"
              "AltezzaNumeri= 20 \r\n");
    OpenDictionary({"CASA", "SOLE", "ALE", "CARTA"});
    workingFolder_ = std::filesystem::current_path();
  }

  void TearDown() override {
    form.reset();
    std::filesystem::current_path(workingFolder_);
    TelariumTest::TearDown();
  }

  Percorso CrosswordFile(const std::vector<std::string>& rows) {
    Draw(rows);
    EXPECT_TRUE(ScriviCruciverba(InFolder("mio.tlrm")));
    return InFolder("mio.tlrm");
  }

  // Starts the program as its main does, up to the first idle moment.
  void Start(const Percorso& commandLine = {}) {
    Forget();
    RigaDiComando = commandLine;
    CaricaProgramma(InFolder(""));
    form.reset();  // before another one becomes the window
    form = std::make_unique<Form1>();
    platform.surface = &form->Area->Superficie();
    platform.hasWindow = true;
    form->Mostra();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get(), Patience));
    ASSERT_TRUE(QTest::qWaitFor([] { return GiaAttivata != Falso; }, Patience));
  }

  void StartWith(const std::vector<std::string>& rows) { Start(CrosswordFile(rows)); }

  void Resize(int width, int height) {
    form->showNormal();
    form->resize(width, height);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->size() == QSize(width, height); }, Patience));
  }

  // What the window shows at a point of its surface, in logical pixels.
  QColor Shown(double x, double y) {
    const QPixmap picture = form->Area->grab();
    const double ratio = picture.devicePixelRatio();
    return picture.toImage().pixelColor(static_cast<int>(x * ratio), static_cast<int>(y * ratio));
  }

  std::string EnabledButtons() const {
    std::string keys;
    for (int number = 1; number <= NumPulsanti; ++number) {
      const QAction& button = form->Toolbar1->Pulsante(number);
      if (!button.isSeparator() && button.isEnabled()) {
        keys += button.objectName().toStdString() + ' ';
      }
    }
    return keys;
  }

  // Sent straight to the control: the offscreen platform follows no pointer.
  static void MoveOver(QWidget* control) {
    const QPointF point(5, 5);
    QMouseEvent move(QEvent::MouseMove, point, control->mapToGlobal(point), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(control, &move);
  }

  void ClickButton(int number) { form->Toolbar1->Pulsante(number).trigger(); }

  std::unique_ptr<Form1> form;

 private:
  std::filesystem::path workingFolder_;
};

}  // namespace telarium
