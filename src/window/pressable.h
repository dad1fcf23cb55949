#pragma once

#include <QAbstractButton>
#include <functional>

#include "screen/button.h"

namespace zephon {

// What can be pressed: with either mouse button, the space bar, Enter or a screen reader's action. It never
// turns itself: a press is only told, and what it shows is set from outside. The ring of the focus shows once
// the keyboard is used.
class Pressable : public QAbstractButton {
 public:
  explicit Pressable(QWidget* parent);

  std::function<void(MouseButton)> onPress;

  void showOn(bool on);

 protected:
  bool showsRing() const { return hasFocus() && byKeyboard_; }

  void nextCheckState() override {}
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void press(MouseButton mouse);

  bool byKeyboard_ = false;
};

}  // namespace zephon
