#pragma once

#include <span>
#include <string>
#include <vector>

#include "form/logs.h"

namespace zephon {

// A row of the log report's table. What a row has no value for is empty.
struct EventRow {
  std::string date;  // "05/31/2013"
  std::string time;  // "14:02:07"
  std::string event;
  std::string magnitude;  // "133 V"; amperes of an overload
  std::string percent;    // of the rated voltage, "111 %"
};
std::vector<EventRow> eventRows(const LogTable<8>& events, int nominalVolts,
                                std::span<const std::string> dict);

// The first and the last day of the log, "05/01/2013 To 05/31/2013", whichever way its rows run. Empty for no
// rows.
std::string eventPeriod(const LogTable<8>& events);

// How often each event stands in the log, the codes in the order of the table of codes; none that does not.
struct EventShare {
  std::string event;
  std::string count;    // at least two digits
  std::string percent;  // of all events, "07 %"
};
std::vector<EventShare> eventShares(const LogTable<8>& events, std::span<const std::string> dict);

}  // namespace zephon
