#include <QApplication>

#include <gtest/gtest.h>

// The tests of the windows need an application. Unless the environment names a platform, nobody
// sees it.
int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Telarium"));
  return RUN_ALL_TESTS();
}
