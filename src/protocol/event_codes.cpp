#include "protocol/event_codes.h"

#include <algorithm>

namespace zephon {
namespace {

constexpr int kEnd = 128;

constexpr std::array<EventCode, 14> kEventCodes = {{
    {1, 64},
    {2, 63},
    {4, 62},
    {8, 61},
    {16, 60},
    {32, 59},
    {64, 65},
    {kEnd + 1, 113},
    {kEnd + 2, 114},
    {kEnd + 4, 115},
    {kEnd + 8, 116},
    {kEnd + 16, 117},
    {kEnd + 32, 118},
    {kEnd + 64, 119},
}};

constexpr int kMonthKey = 100;  // of the month before January

}  // namespace

std::span<const EventCode> eventCodes() {
  return kEventCodes;
}

const EventCode* findEventCode(double eventNumber) {
  const auto hit = std::find_if(kEventCodes.begin(), kEventCodes.end(),
                                [&](const EventCode& event) { return event.code == eventNumber; });
  return hit == kEventCodes.end() ? nullptr : &*hit;
}

std::string dictText(std::span<const std::string> dict, int key) {
  const bool inside = key >= 0 && static_cast<std::size_t>(key) < dict.size();
  return inside ? dict[static_cast<std::size_t>(key)] : std::string();
}

std::string pqString(double eventNumber, std::span<const std::string> dict) {
  const EventCode* event = findEventCode(eventNumber);
  return event == nullptr ? std::string() : dictText(dict, event->key);
}

double pqNumber(std::string_view eventString, std::span<const std::string> dict) {
  if (eventString.empty()) return 0;
  for (const EventCode& event : kEventCodes) {
    if (dictText(dict, event.key) == eventString) return event.code;
  }
  return 0;
}

std::string monthString(double theMonth, std::span<const std::string> dict) {
  for (int month = 1; month <= 12; ++month) {
    if (month == theMonth) return dictText(dict, kMonthKey + month);
  }
  return {};
}

}  // namespace zephon
