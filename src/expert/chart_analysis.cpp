#include "expert/chart_analysis.h"

#include <cmath>

#include "expert/questions.h"
#include "expert/trend_statistics.h"
#include "protocol/firmware_gates.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::size_t kTime = 0, kVolts = 1, kAmps = 2, kWatts = 3, kNeutralVolts = 4, kHertz = 5, kCrest = 7;
constexpr int kSlotOfSquareWave = 47;

std::optional<double> momentOf(const LogView& chart, std::size_t row) {
  const double moment = chart.at(kTime, row);
  return std::isfinite(moment) ? std::optional(moment) : std::nullopt;
}

const RowConditions kHighVolts = {above(kVolts, ofLine(1.05))};
const RowConditions kOutage = {below(kVolts, 40)};
const RowConditions kLowOutage = {below(kVolts, 40), below(kVolts, ofLine(0.95))};
const RowConditions kSag = {below(kVolts, ofSmoothedMean(0.95))};

const RowConditions kHighAmpsGoodVolts = {above(kAmps, 30), atLeast(kVolts, ofLine(0.95))};
const RowConditions kHighAmpsLowVolts = {above(kAmps, 30), below(kVolts, ofLine(0.95))};
const RowConditions kSteadyAmps = {above(kAmps, 2.6)};
const RowConditions kModerateAmps = {above(kAmps, 1.6), atMost(kAmps, 2.6)};

const RowConditions kHighWattsGoodVolts = {above(kWatts, 6000), atLeast(kVolts, ofLine(0.95))};
const RowConditions kHighWattsLowVolts = {above(kWatts, 6000), below(kVolts, ofLine(0.95))};
const RowConditions kSteadyWatts = {above(kWatts, 300)};
const RowConditions kModerateWatts = {above(kWatts, 200), atMost(kWatts, 300)};

const RowConditions kHighNeutral = {above(kNeutralVolts, 5)};
const RowConditions kFlatCrest = {below(kCrest, 1.4)};
const RowConditions kSquareCrest = {below(kCrest, 1.4), above(kCrest, 0.96), below(kCrest, 1.04)};
const RowConditions kPeakedCrest = {atLeast(kCrest, 1.4), above(kCrest, 1.43)};

bool isFirstLine(const LoggedDevice& device) {
  return device.modelLine != 1;
}

bool measuresNeutral(const LoggedDevice& device) {
  return judgesNeutralGround({device.modelLine, device.firmwareVersion, device.nominalVolts});
}

Rule onFirstLine(Rule rule) {
  rule.applies = isFirstLine;
  return rule;
}

Rule ifNeutralIsMeasured(Rule rule) {
  rule.applies = measuresNeutral;
  return rule;
}

// Steady use takes the place of a moderate one.
Question moderate(const RowConditions& steadyUse, const RowConditions& moderateUse) {
  return both(shareBelow(0.8, steadyUse), shareAbove(0.8, moderateUse));
}

// Where there are any such rows at all.
Question often(const RowConditions& conditions) {
  return both(any(conditions), shareAbove(0.05, conditions));
}
Question seldom(const RowConditions& conditions) {
  return both(any(conditions), shareBelow(0.05, conditions));
}

// The line's frequency is more than 1 Hz away from 50 Hz, if that is near its mean, or from 60 Hz.
Seen offFrequency(const Pass& pass) {
  const auto mean = columnMean(pass.log, kHertz);
  if (!mean) return {.failed = true};
  const double nominal = *mean > 46 && *mean < 54 ? 50 : 60;
  Seen seen = rowsPassing(pass, {isNot(kHertz, nominal), above(kVolts, 0)});
  std::erase_if(seen.rows,
                [&](std::size_t row) { return std::abs(pass.log.at(kHertz, row) - nominal) <= 1; });
  seen.holds = !seen.rows.empty();
  return seen;
}

// The text of its slot is made whether there is a square wave or not.
Seen squareWave(const Pass& pass) {
  Seen seen = rowsPassing(pass, kSquareCrest);
  const double whole = static_cast<double>(pass.log.largestRow()) - 1;
  if (seen.failed || (seen.holds && whole == 0)) return {.failed = true};
  std::string text = "Equipment was probably powered by a UPS with square wave output";
  if (seen.holds) {
    const double percent = 100 * static_cast<double>(seen.rows.size()) / whole;
    text += ' ' + formatPicture(percent, "#0.00") + "% of the data acquisition period";
  }
  seen.texts[kSlotOfSquareWave] = text + '.';
  return seen;
}

}  // namespace

const std::vector<Rule>& chartRules() {
  static const std::vector<Rule> rules = {
      {{steady(kHighVolts), {11}}, {both(recurring(kHighVolts), shareAbove(0.01, kHighVolts)), {12, 13}}},
      {{steady(kOutage), {19}}, {both(recurring(kOutage), shareAbove(0.01, kLowOutage)), {22, 13}}},
      {{rising(kVolts), {35, 13}}, {falling(kVolts), {16, 13}}},
      {{steady(kSag), {32}}},

      onFirstLine({{any(kHighAmpsGoodVolts), {3, 38, 29}}, {any(kHighAmpsLowVolts), {22, 17, 28}}}),
      onFirstLine({{shareAbove(0.8, kSteadyAmps), {39}}, {moderate(kSteadyAmps, kModerateAmps), {40}}}),
      onFirstLine({{rising(kAmps), {30, 4, 31}}, {falling(kAmps), {5, 37, 41}}}),

      onFirstLine({{any(kHighWattsGoodVolts), {3, 38, 29}}, {any(kHighWattsLowVolts), {22, 17, 28}}}),
      onFirstLine({{shareAbove(0.8, kSteadyWatts), {39}}, {moderate(kSteadyWatts, kModerateWatts), {40}}}),
      onFirstLine({{rising(kWatts), {30, 36, 4, 31}}, {falling(kWatts), {5, 37, 41}}}),

      ifNeutralIsMeasured({{often(kHighNeutral), {42, 22, 43}}, {seldom(kHighNeutral), {44, 45}}}),
      ifNeutralIsMeasured({{meanAbove(2.0, kNeutralVolts), {22, 42, 45, 43}}}),

      onFirstLine({{offFrequency, {46, 55}}}),
      onFirstLine({{squareWave, {47}}}),
      onFirstLine({{often(kFlatCrest), {48, 17}}, {seldom(kFlatCrest), {49, 17}}}),
      onFirstLine({{often(kPeakedCrest), {50, 51}}, {seldom(kPeakedCrest), {52, 51}}}),
  };
  return rules;
}

Analysis expertChart(const Logs& logs, const LoggedDevice& device) {
  return askRules(chartRules(), {logs, LogView(logs.chartData), kChart, device, 1, momentOf});
}

}  // namespace zephon
