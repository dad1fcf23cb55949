#pragma once

#include <array>
#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "expert/log_view.h"
#include "form/findings.h"

namespace zephon {

// An analysis is a list of rules over a log, asked one after the other. Each asks one question or several,
// and each question that holds raises the findings beside it. Nothing is ever taken back.

// The device whose log it is, as far as the rules look at it.
struct LoggedDevice {
  int modelLine = 0;  // 0 Orvantis, 1 Tessara
  std::string firmwareVersion;
  int nominalVolts = 0;  // what it is rated for
  int ratedVolts = 0;    // the line voltage that the analysis assumes
  int overloads = 0;     // its counter of current overloads
};

// A log under analysis. Of its rows 0 to U the last, U, is no record yet; its cells are held against nothing.
struct Pass {
  const Logs& logs;
  LogView log;
  std::string_view kind;  // of the statistics: "hist", "chart" or "timestamp"
  LoggedDevice device;
  std::size_t shortestTrend = 1;  // a smoothed series of fewer elements has no trend
  // A row's day number; nothing when it has no date.
  std::optional<double> (*moment)(const LogView&, std::size_t row) = nullptr;
};

// The answer to a question. One that fails (a division by zero, a cell that is no number) ends the analysis
// after its rule; it may hold by the rows before the one that it failed at.
struct Seen {
  bool holds = false;
  bool failed = false;
  RowNumbers rows = {};                   // those behind the answer
  std::map<int, std::string> texts = {};  // of slots, whether it holds or not
};

using Question = std::function<Seen(const Pass&)>;
using Slots = std::vector<int>;

struct Outcome {
  Question when;
  Slots findings;
};

struct Rule {
  Rule(std::initializer_list<Outcome> all) : outcomes(all) {}
  std::vector<Outcome> outcomes;
  bool (*applies)(const LoggedDevice&) = nullptr;  // to every device, if none is given
};

// What an analysis has found, by slot: raised or not, and the rows behind it.
struct Analysis {
  std::array<bool, kFindingSlots> flags{};
  std::array<RowNumbers, kFindingSlots> rows;
  std::map<int, std::string> texts;  // that take the place of the slots' own
};

// Asks the rules in their order, up to the first that fails. A log without rows fails at once.
Analysis askRules(const std::vector<Rule>& rules, const Pass& pass);

}  // namespace zephon
