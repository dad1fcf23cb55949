#include "protocol/pd_rotation.h"

#include <algorithm>

#include "protocol/encodings.h"
#include "text/number.h"
#include "text/strings.h"

namespace zephon {

bool rotatePDevents(PdEvents& events, std::int64_t total, std::string_view position) {
  if (total <= static_cast<std::int64_t>(events.size())) return true;
  const auto head =
      toInt16(HexToDec(partOf(position, 0, 1)) * 4 + HexToDec(partOf(position, 1, 1)) / 4.0).value_or(-1);
  if (head < 0 || head > static_cast<int>(events.size())) return false;
  PdEvents turned = events;
  std::rotate(turned.begin(), turned.begin() + head, turned.end());
  for (std::size_t row = 0; row < events.size(); ++row) turned[row].date = events[row].date;
  events = std::move(turned);
  return true;
}

}  // namespace zephon
