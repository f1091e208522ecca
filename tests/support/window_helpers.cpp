#include "support/window_helpers.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QLayout>
#include <QMenuBar>
#include <QTest>
#include <set>

#include <gtest/gtest.h>

namespace telarium {
namespace {

void CheckNames(const QWidget& widget, std::set<QString>& names) {
  if (qobject_cast<const QAbstractScrollArea*>(&widget)) return;
  if (qobject_cast<const QComboBox*>(&widget)) return;
  if (qobject_cast<const QMenuBar*>(&widget)) return;
  for (const QObject* child : widget.children()) {
    if (!child->isWidgetType()) continue;
    const QString& name = child->objectName();
    if (name.startsWith(QStringLiteral("qt_"))) continue;
    EXPECT_FALSE(name.isEmpty()) << "a " << child->metaObject()->className() << " without a name";
    EXPECT_TRUE(names.insert(name).second) << "two controls named " << name.toStdString();
    CheckNames(static_cast<const QWidget&>(*child), names);
  }
}

void CheckPlaces(const QWidget& widget) {
  if (qobject_cast<const QAbstractScrollArea*>(&widget)) return;
  std::vector<const QWidget*> shown;
  for (const QObject* child : widget.children()) {
    const auto* control = qobject_cast<const QWidget*>(child);
    if (!control || !control->isVisible() || control->isWindow()) continue;
    EXPECT_TRUE(widget.rect().contains(control->geometry()))
        << control->objectName().toStdString() << " is cut off";
    for (const QWidget* other : shown)
      EXPECT_FALSE(control->geometry().intersects(other->geometry()))
          << control->objectName().toStdString() << " and " << other->objectName().toStdString();
    shown.push_back(control);
    if (control->layout()) CheckPlaces(*control);
  }
}

}  // namespace

void ExpectNamedControls(const QWidget& window) {
  std::set<QString> names;
  CheckNames(window, names);
  EXPECT_FALSE(names.empty());
  if (!window.isVisible()) return;
  // At scale factor 2 the screen is smaller than any real one, and than some window needs.
  const QSize least = window.layout() ? window.layout()->minimumSize() : QSize(600, 400);
  if (least.boundedTo(window.size()) == least) CheckPlaces(window);
}

std::string TabOrder(QWidget& window) {
  std::string order;
  const QWidget* first = window.focusWidget();
  for (const QWidget* reached = first; reached; reached = window.focusWidget()) {
    order += reached->objectName().toStdString() + ' ';
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    if (window.focusWidget() == first) break;
  }
  return order;
}

}  // namespace telarium
