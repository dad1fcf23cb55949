#include "screen/button.h"

namespace zephon {

void Button::click(MouseButton mouse) {
  if (!enabled() || !visible()) return;
  if (mouse == MouseButton::Left) {
    if (kind_ == Kind::Latching) {
      setValue(!value_);
    } else {
      setValue(true);
      setValue(false);
    }
  }
  if (onMouseUp) onMouseUp(mouse);
}

}  // namespace zephon
