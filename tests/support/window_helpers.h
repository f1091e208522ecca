#pragma once

#include <QSet>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace telarium {

inline constexpr int Patience = 10'000;  // milliseconds, for what takes none

/// Shows a window and waits until it has done what it does when it opens.
inline void Open(QWidget& window) {
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, Patience));
  QCoreApplication::processEvents();
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
