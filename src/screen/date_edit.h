#pragma once

#include "screen/element.h"

namespace zephon {

// A date-and-time field. The value is the platform's date value: days since 30 December 1899, with the
// fraction of the day. Its text is the picture "mm/dd/yy hh:nn:ss".
class DateEdit : public Element {
 public:
  using Element::Element;

  std::function<void()> onEditStart;  // the user begins to change the value

  double value() const { return value_; }
  void setValue(double value) { write(value_, value); }

  void beginEdit() {
    if (enabled() && visible() && onEditStart) onEditStart();
  }
  void edit(double value) {
    if (!enabled() || !visible()) return;
    beginEdit();
    setValue(value);
  }

 private:
  double value_ = 0;
};

}  // namespace zephon
