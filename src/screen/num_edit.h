#pragma once

#include "screen/element.h"

namespace zephon {

// A number editor with a range and a step. `onChange` runs after every change of the value, by the user or
// the program, with the new and the previous value. The range binds the user: what the program writes is
// shown as it is, so that a device's odd value is seen, and a change of the range moves nothing by itself.
class NumEdit : public Element {
 public:
  struct Range {
    double minimum = 0;
    double maximum = 100;
    double increment = 1;
    bool operator==(const Range&) const = default;
  };

  NumEdit(ElementList& list, std::string name, double value, Range range)
      : Element(list, std::move(name)), value_(value), range_(range) {}

  std::function<void(double value, double previous)> onChange;
  std::function<void()> onEditStart;  // the user begins to change the value

  double value() const { return value_; }
  void setValue(double value) {
    const double previous = value_;
    if (write(value_, value) && onChange) onChange(value_, previous);
  }
  const Range& range() const { return range_; }
  void setRange(const Range& range) { write(range_, range); }
  void setMinimum(double minimum) { setRange({minimum, range_.maximum, range_.increment}); }
  void setMaximum(double maximum) { setRange({range_.minimum, maximum, range_.increment}); }

  // What a user does: a value outside the range goes to the nearer bound. Nothing happens while the editor is
  // disabled or hidden.
  void edit(double value);

 private:
  double value_;
  Range range_;
};

}  // namespace zephon
