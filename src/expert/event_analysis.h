#pragma once

#include "expert/rules.h"

namespace zephon {

// The rules over the log of events, in their order: a family of event codes each.
const std::vector<Rule>& eventRules();

// The findings of tsData.
Analysis expertTS(const Logs& logs, const LoggedDevice& device);

}  // namespace zephon
