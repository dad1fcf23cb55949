#pragma once

#include "expert/questions.h"

namespace zephon {

// What is told with its times.
inline constexpr TimedText kPowerPeaks{53, "Power usage peaks occur regularly on most days around "};
inline constexpr TimedText kVoltageMinimums{54, "Voltage minimums occur regularly on most days around "};

// The rules over the historical log, in their order.
const std::vector<Rule>& historyRules();

// The findings of histData.
Analysis expertHist(const Logs& logs, const LoggedDevice& device);

}  // namespace zephon
