#pragma once

#include <QAccessible>

class QWidget;

namespace zephon {

// What a screen reader is told that a widget is, where Qt has no idea of its own: a group, a drawing. To be
// given first of all: a name that is set makes Qt decide. The name is the widget's accessible name.
void giveRole(QWidget& widget, QAccessible::Role role);

}  // namespace zephon
