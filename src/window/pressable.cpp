#include "window/pressable.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

namespace zephon {

Pressable::Pressable(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  connect(this, &QAbstractButton::clicked, this, [this] { press(MouseButton::Left); });
  // Only a screen reader turns the button itself; that is a press, too.
  connect(this, &QAbstractButton::toggled, this, [this](bool on) {
    showOn(!on);
    press(MouseButton::Left);
  });
}

void Pressable::showOn(bool on) {
  const QSignalBlocker quiet(this);
  setChecked(on);
}

void Pressable::press(MouseButton mouse) {
  if (onPress) onPress(mouse);
}

void Pressable::focusInEvent(QFocusEvent* event) {
  switch (event->reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
      byKeyboard_ = true;
      break;
    case Qt::MouseFocusReason:
      byKeyboard_ = false;
      break;
    default:
      break;
  }
  QAbstractButton::focusInEvent(event);
}

void Pressable::keyPressEvent(QKeyEvent* event) {
  byKeyboard_ = true;
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter) {
    if (!event->isAutoRepeat()) click();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

void Pressable::mousePressEvent(QMouseEvent* event) {
  byKeyboard_ = false;
  QAbstractButton::mousePressEvent(event);
  if (event->button() == Qt::RightButton) event->accept();  // its release is asked for
}

void Pressable::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) {
    event->accept();
    if (rect().contains(event->position().toPoint())) press(MouseButton::Right);
    return;
  }
  QAbstractButton::mouseReleaseEvent(event);
}

}  // namespace zephon
