#pragma once

#include <QString>
#include <QWidget>
#include <string>

namespace telarium {

/// Fails the test for a control of a window that has no name, or the name of another one. Parts of
/// a control that the window library makes are none of ours.
void ExpectNamedControls(const QWidget& window);

/// The names of the controls that the Tab key reaches in an open window, in order, from the one
/// with the focus until it comes round; a blank behind each.
std::string TabOrder(QWidget& window);

}  // namespace telarium
