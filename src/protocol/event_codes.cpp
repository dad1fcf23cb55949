#include "protocol/event_codes.h"

#include <algorithm>
#include <array>

#include "form/dictionary.h"

namespace zephon {
namespace {

using namespace event;

constexpr std::array<EventCode, 14> kEventCodes = {{
    {kPowerOutage, 64},
    {kUnderVoltageShutdown, 63},
    {kUnderVoltageRecord, 62},
    {kOverVoltageRecord, 61},
    {kOverVoltageShutdown, 60},
    {kSurge, 59},
    {kCurrentOverload, 65},
    {endOf(kPowerOutage), 113},
    {endOf(kUnderVoltageShutdown), 114},
    {endOf(kUnderVoltageRecord), 115},
    {endOf(kOverVoltageRecord), 116},
    {endOf(kOverVoltageShutdown), 117},
    {endOf(kSurge), 118},
    {endOf(kCurrentOverload), 119},
}};

}  // namespace

std::span<const EventCode> eventCodes() {
  return kEventCodes;
}

const EventCode* findEventCode(double eventNumber) {
  const auto hit = std::find_if(kEventCodes.begin(), kEventCodes.end(),
                                [&](const EventCode& event) { return event.code == eventNumber; });
  return hit == kEventCodes.end() ? nullptr : &*hit;
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

}  // namespace zephon
