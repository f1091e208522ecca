#pragma once

#include <QApplication>

#include <benchmark/benchmark.h>

namespace telarium {

/// Shows a window of ours until what it opens with is painted.
template <class Window>
void ShowPainted(Window& window) {
  window.show();
  while (!window.Pronta())
    QApplication::processEvents();
  window.grab();
}

/// The main routine of a benchmark of windows: an application on a screen that nobody sees.
inline int RunOffscreen(int argc, char** argv, int (*run)()) {
  benchmark::Initialize(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  return run();
}

}  // namespace telarium
