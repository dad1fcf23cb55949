#pragma once

#include "expert/rules.h"

namespace zephon {

// The rules over a chart, in their order.
const std::vector<Rule>& chartRules();

// The findings of chartData, whether it was recorded by the tool, by the device, or comes from a file.
Analysis expertChart(const Logs& logs, const LoggedDevice& device);

}  // namespace zephon
