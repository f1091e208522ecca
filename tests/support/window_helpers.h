#pragma once

#include <QApplication>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>

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

/// Does this to the next modal window of a class as soon as it is open, while the test waits for it
/// to close. `context` outlives it.
template <class Window>
void WhenOpen(QObject& context, std::function<void(Window&)> act) {
  QTimer::singleShot(0, &context, [&context, act] {
    auto* window = dynamic_cast<Window*>(QApplication::activeModalWidget());
    const auto* ours = dynamic_cast<FinestraModale*>(window);
    if (!window || !window->isVisible() || (ours && !ours->Pronta())) {
      return WhenOpen(context, act);
    }
    act(*window);
    if (!window->isVisible()) return;
    ADD_FAILURE() << "the window was left open";
    window->close();
  });
}

/// The named controls of a window in the order in which Tab goes through them, beginning with the
/// one that has the focus.
inline QString TabOrder(const QWidget& window) {
  QStringList names;
  const QWidget* first = window.focusWidget();
  const QWidget* control = first;
  do {
    const bool reached = (control->focusPolicy() & Qt::TabFocus) && control->isEnabled() &&
                         control->isVisible() && !control->focusProxy();
    if (reached && !control->objectName().isEmpty()) names.append(control->objectName());
    control = control->nextInFocusChain();
  } while (control != first);
  return names.join(u' ');
}

/// Expects that no two controls of a window have one name, Qt's own parts left aside.
inline void ExpectNamesOnce(const QWidget& window) {
  QSet<QString> names;
  for (const QWidget* control : window.findChildren<QWidget*>()) {
    const QString name = control->objectName();
    if (name.isEmpty() || name.startsWith(QStringLiteral("qt_"))) continue;
    EXPECT_FALSE(names.contains(name)) << name.toStdString();
    names.insert(name);
  }
}

}  // namespace telarium
