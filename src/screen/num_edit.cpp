#include "screen/num_edit.h"

#include <algorithm>

namespace zephon {

void NumEdit::edit(double value) {
  if (!enabled() || !visible()) return;
  if (onEditStart) onEditStart();
  setValue(std::max(range_.minimum, std::min(value, range_.maximum)));
}

}  // namespace zephon
