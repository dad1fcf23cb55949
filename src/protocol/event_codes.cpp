#include "protocol/event_codes.h"

#include <algorithm>

namespace zephon {
namespace {

constexpr int kEnd = 128;

constexpr std::array<EventCode, 14> kEventCodes = {{
    {1, 64, EventClass::PowerOutage},
    {2, 63, EventClass::UnderVoltageShutdown},
    {4, 62, EventClass::UnderVoltageRecord},
    {8, 61, EventClass::OverVoltageRecord},
    {16, 60, EventClass::OverVoltageShutdown},
    {32, 59, EventClass::Surge},
    {64, 65, EventClass::CurrentOverload},
    {kEnd + 1, 113, EventClass::PowerOutage},
    {kEnd + 2, 114, EventClass::UnderVoltageShutdown},
    {kEnd + 4, 115, EventClass::UnderVoltageRecord},
    {kEnd + 8, 116, EventClass::OverVoltageRecord},
    {kEnd + 16, 117, EventClass::OverVoltageShutdown},
    {kEnd + 32, 118, EventClass::Surge},
    {kEnd + 64, 119, EventClass::CurrentOverload},
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
