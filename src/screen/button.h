#pragma once

#include "screen/element.h"

namespace zephon {

enum class MouseButton { Left = 1, Right = 2 };

// A two-state button. A latching one keeps the state that a click turns; a momentary one is true only while
// it is pressed. `onChange` runs on every change of the value, whether the user or the program made it.
class Button : public Element {
 public:
  enum class Kind { Latching, Momentary };

  Button(ElementList& list, std::string name, Kind kind = Kind::Latching)
      : Element(list, std::move(name)), kind_(kind) {}

  std::function<void(bool value)> onChange;
  // The user's mouse button has been let go over the enabled button, after the value has taken its change.
  // With this set, a latching button's value is not turned by the right mouse button.
  std::function<void(MouseButton)> onMouseUp;

  Kind kind() const { return kind_; }
  bool value() const { return value_; }
  void setValue(bool on) {
    if (write(value_, on) && onChange) onChange(on);
  }

  const std::string& onText() const { return onText_; }
  const std::string& offText() const { return offText_; }
  void setOnText(std::string text) { write(onText_, std::move(text)); }
  void setOffText(std::string text) { write(offText_, std::move(text)); }
  void setTexts(const std::string& text) {
    setOnText(text);
    setOffText(text);
  }
  const std::string& caption() const { return value_ ? onText_ : offText_; }

  // What a user does. Nothing happens while the button is disabled or hidden.
  void click(MouseButton mouse = MouseButton::Left);

 private:
  Kind kind_;
  bool value_ = false;
  std::string onText_;
  std::string offText_;
};

}  // namespace zephon
