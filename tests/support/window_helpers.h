#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QDeadlineTimer>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "platform/qt/qt_dialog.h"

namespace telarium {

inline constexpr int Patience = 10'000;  // milliseconds, for what takes none

/// Shows a window and waits until it has done what it does when it opens.
inline void Open(FinestraModale& window) {
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, Patience));
  ASSERT_TRUE(QTest::qWaitFor([&] { return window.Pronta(); }, Patience));
}

/// Clicks controls with the left button, one after the other.
template <class... Controls>
void Click(Controls*... controls) {
  (QTest::mouseClick(controls, Qt::LeftButton), ...);
}

/// Clicks the middle of an item of a list or table, rows and columns from 0; once or twice.
inline void ClickItem(QAbstractItemView& view, int row, int column = 0) {
  const QPoint point = view.visualRect(view.model()->index(row, column)).center();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, point);
}
inline void DoubleClickItem(QAbstractItemView& view, int row, int column = 0) {
  ClickItem(view, row, column);
  const QPoint point = view.visualRect(view.model()->index(row, column)).center();
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, point);
}

/// Does this to the next modal window of a class as soon as it is open, while the test waits for it
/// to close. `context` outlives it.
template <class Window>
void WhenOpen(QObject& context, std::function<void(Window&)> act,
              QDeadlineTimer deadline = QDeadlineTimer(Patience)) {
  QTimer::singleShot(0, &context, [&context, act, deadline] {
    auto* window = dynamic_cast<Window*>(QApplication::activeModalWidget());
    const auto* ours = dynamic_cast<FinestraModale*>(window);
    if (!window || !window->isVisible() || (ours && !ours->Pronta())) {
      if (!deadline.hasExpired()) return WhenOpen(context, act, deadline);
      ADD_FAILURE() << "the window did not open";
      if (QWidget* other = QApplication::activeModalWidget()) other->close();
      return;
    }
    act(*window);
    if (!window->isVisible()) return;
    ADD_FAILURE() << "the window was left open";
    window->close();
  });
}

/// Fails the test for a control of a window that has no name, or the name of another one, and for
/// one that lies over another one or is cut off in an open window. Parts of a control that the
/// window library makes are none of ours.
void ExpectNamedControls(const QWidget& window);

/// The names of the controls that the Tab key reaches in an open window, in order, from the one
/// with the focus until it comes round; a blank behind each.
std::string TabOrder(QWidget& window);

}  // namespace telarium
