#pragma once

#include "screen/colour.h"
#include "screen/element.h"

namespace zephon {

// A scale with pointers. Pointer 0 is the active one of a plain meter; a stacked bar counts its pointers
// from 1.
class Slider : public Element {
 public:
  struct Pointer {
    double value = 0;
    int mode = 1;  // 1 on, 0 off
    Colour colour = kGreen;
    bool operator==(const Pointer&) const = default;
  };
  struct Axis {
    double minimum = 0;
    double maximum = 100;
    double majorStep = 20;
    double minorStep = 10;
    bool operator==(const Axis&) const = default;
  };

  Slider(ElementList& list, std::string name, Axis axis, int pointers = 1)
      : Element(list, std::move(name)), axis_(axis), pointers_(static_cast<std::size_t>(pointers)) {}

  std::function<void()> onClick;               // a user's click on the meter
  std::function<void(double value)> onChange;  // a user's or the program's change of pointer 0

  std::size_t pointers() const { return pointers_.size(); }
  const Pointer& pointer(std::size_t index = 0) const { return pointers_.at(index); }
  double value() const { return pointers_.front().value; }
  void setValue(double value) {
    if (write(pointers_.front().value, value) && onChange) onChange(value);
  }
  void setPointerValue(std::size_t index, double value) { write(pointers_.at(index).value, value); }
  void setPointerColour(std::size_t index, Colour colour) { write(pointers_.at(index).colour, colour); }
  void setPointerMode(std::size_t index, int mode) { write(pointers_.at(index).mode, mode); }
  bool on() const { return pointers_.front().mode == 1; }

  const Axis& axis() const { return axis_; }
  void setAxis(const Axis& axis) { write(axis_, axis); }
  Colour fill() const { return fill_; }
  void setFill(Colour colour) { write(fill_, colour); }

  void click() {
    if (enabled() && visible() && onClick) onClick();
  }

 private:
  Axis axis_;
  std::vector<Pointer> pointers_;
  Colour fill_ = kMeterOn;
};

}  // namespace zephon
