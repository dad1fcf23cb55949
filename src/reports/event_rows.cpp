#include "reports/event_rows.h"

#include <algorithm>
#include <tuple>

#include "form/dictionary.h"
#include "logs/event_tree.h"
#include "protocol/event_codes.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr char kTwoDigits[] = "00";
constexpr char kShortPicture[] = "0#";

std::string two(double value) {
  return formatPicture(value, kTwoDigits);
}

std::string percentOf(double part, double whole) {
  return formatPicture(part / whole * 100, kShortPicture) + " %";
}

std::string dayOf(const std::array<double, 8>& row) {
  return two(row[2]) + '/' + two(row[1]) + "/20" + two(row[0]);
}

// By year, month and day.
bool isEarlier(const std::array<double, 8>& one, const std::array<double, 8>& other) {
  return std::tie(one[0], one[2], one[1]) < std::tie(other[0], other[2], other[1]);
}

EventRow rowOf(const std::array<double, 8>& row, int nominalVolts, std::span<const std::string> dict) {
  EventRow text;
  text.date = dayOf(row);
  text.time = two(row[3]) + ':' + two(row[4]) + ':' + two(row[5]);
  text.event = pqString(row[6], dict);
  if (!hasMagnitude(row[6])) return text;
  const bool amperes = row[6] == event::kCurrentOverload;
  text.magnitude = shortestText(row[7]) + (amperes ? " A" : " V");
  if (!amperes) text.percent = percentOf(row[7], nominalVolts);
  return text;
}

}  // namespace

std::vector<EventRow> eventRows(const LogTable<8>& events, int nominalVolts,
                                std::span<const std::string> dict) {
  std::vector<EventRow> rows;
  rows.reserve(events.size());
  for (const auto& row : events) rows.push_back(rowOf(row, nominalVolts, dict));
  return rows;
}

std::string eventPeriod(const LogTable<8>& events) {
  if (events.empty()) return {};
  const auto [first, last] = std::ranges::minmax_element(events, isEarlier);
  return dayOf(*first) + " To " + dayOf(*last);
}

std::vector<EventShare> eventShares(const LogTable<8>& events, std::span<const std::string> dict) {
  std::vector<EventShare> shares;
  for (const EventCode& code : eventCodes()) {
    const auto count = static_cast<double>(std::ranges::count_if(
        events, [&](const auto& row) { return row[6] == static_cast<double>(code.code); }));
    if (count == 0) continue;
    shares.push_back({dictText(dict, code.key), formatPicture(count, kShortPicture),
                      percentOf(count, static_cast<double>(events.size()))});
  }
  return shares;
}

}  // namespace zephon
