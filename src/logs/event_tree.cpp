#include "logs/event_tree.h"

#include "protocol/event_codes.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr int kKeyMagnitude = 58;
constexpr Colour kSurge = 49344;
constexpr Colour kOverload = 16711935;

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
    if (code == 1 << i) return legend_[i];
  }
  if (code == 32) return kSurge;
  return code == 64 ? kOverload : kBlack;
}

bool hasMagnitude(double code) {
  return code != 1 && code != 32 && code <= 100;
}

}  // namespace zephon
