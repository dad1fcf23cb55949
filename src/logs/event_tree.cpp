#include "logs/event_tree.h"

#include "form/dictionary.h"
#include "protocol/event_codes.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr int kKeyMagnitude = 58;
constexpr Colour kSurgeColour = 49344;
constexpr Colour kOverloadColour = 16711935;
constexpr double kEndsBegin = 100;  // the ends of events have larger codes

// In the order of LegendColours.
constexpr std::array<int, std::tuple_size_v<LegendColours>> kLegendCodes = {
    event::kPowerOutage, event::kUnderVoltageShutdown, event::kUnderVoltageRecord, event::kOverVoltageRecord,
    event::kOverVoltageShutdown};

}  // namespace

EventTree::EventTree(const LogTable<8>& events, const LegendColours& legend,
                     std::span<const std::string> dict)
    : DatedTree(dateGroups(events, events.size()), 0, dict), events_(events), legend_(legend) {}

std::string EventTree::rowText(std::size_t row) const {
  const auto& event = events_[row];
  std::string text = timeOfDay(event) + ' ' + pqString(event[6], dict()) + ' ';
  if (hasMagnitude(event[6]))
    text += '(' + dictText(dict(), kKeyMagnitude) + " = " + shortestText(event[7]) + ')';
  return text;
}

std::string EventTree::leafText(std::size_t, std::size_t) const {
  return {};
}

Colour EventTree::rowColour(std::size_t row) const {
  const double code = events_[row][6];
  for (std::size_t i = 0; i < legend_.size(); ++i) {
    if (code == kLegendCodes[i]) return legend_[i];
  }
  if (code == event::kSurge) return kSurgeColour;
  return code == event::kCurrentOverload ? kOverloadColour : kBlack;
}

bool hasMagnitude(double code) {
  return code != event::kPowerOutage && code != event::kSurge && code <= kEndsBegin;
}

}  // namespace zephon
