#pragma once

#include "expert/rules.h"

namespace zephon {

// The rules over the historical log, in their order.
const std::vector<Rule>& historyRules();

// The findings of histData.
Analysis expertHist(const Logs& logs, const LoggedDevice& device);

}  // namespace zephon
