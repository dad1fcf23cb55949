#include "expert/history_analysis.h"

#include "expert/row_date.h"
#include "expert/trend_statistics.h"
#include "protocol/day_serial.h"

namespace zephon {
namespace {

constexpr std::size_t kAvgWatts = 6, kMaxWatts = 7, kAvgVolts = 8, kMaxVolts = 9, kMinVolts = 10,
                      kMaxAmps = 11;
constexpr std::size_t kShortestTrend = 4;

std::optional<double> momentOf(const LogView& history, std::size_t row) {
  const auto date = rowDate(history, row);
  return date ? std::optional(dateSerial(*date)) : std::nullopt;
}

// A record's load, and its lowest voltage at the worst.
const RowConditions kHighAmpsGoodVolts = {above(kMaxAmps, 30), atLeast(kMinVolts, ofLine(0.95))};
const RowConditions kHighAmpsLowVolts = {above(kMaxAmps, 30), below(kMinVolts, ofLine(0.95))};
const RowConditions kPeakAmpsLowVolts = {above(kMaxAmps, ofMean(2)), below(kMinVolts, ofLine(0.9))};
const RowConditions kHighWattsGoodVolts = {above(kMaxWatts, 6000), atLeast(kMinVolts, ofLine(0.95))};
const RowConditions kHighWattsLowVolts = {above(kMaxWatts, 6000), below(kMinVolts, ofLine(0.95))};

const RowConditions kOutage = {below(kMinVolts, 40)};
const RowConditions kLowMinimum = {below(kMinVolts, ofLine(0.95))};
const RowConditions kHighMaximum = {above(kMaxVolts, ofLine(1.05))};
const RowConditions kHighAverage = {above(kAvgVolts, ofLine(1.05))};
const RowConditions kLowAverage = {atMost(kAvgVolts, ofLine(1.05)), below(kAvgVolts, ofLine(0.95)),
                                   isNot(kAvgVolts, 0)};

}  // namespace

const std::vector<Rule>& historyRules() {
  static const std::vector<Rule> rules = {
      {{any(kHighAmpsGoodVolts), {3, 29}}, {any(kHighAmpsLowVolts), {22, 17, 28}}},
      {{any(kPeakAmpsLowVolts), {22, 17, 28}}},
      {{rising(kMaxAmps), {30, 4, 31}}, {falling(kMaxAmps), {5, 9, 14}}},

      {{steadyAndFrequent(kOutage), {19}}},
      {{atRegularTimes(kMinVolts, kVoltageMinimums), {32, 54}}},
      {{rising(kMinVolts), {14, 18}}, {falling(kMinVolts), {16, 17, 13}}},
      {{shareAbove(0.05, kLowMinimum), {33, 22, 17, 13}}},

      {{steadyAndFrequent(kHighMaximum), {11}}},
      {{rising(kMaxVolts), {12, 13}}, {falling(kMaxVolts), {14}}},
      {{shareAbove(0.05, kHighMaximum), {34, 12, 13, 11}}},

      {{rising(kAvgVolts), {35, 13, 14}}, {falling(kAvgVolts), {16, 13}}},
      {{shareAbove(0.01, kHighAverage), {12, 13}}},
      {{shareAbove(0.01, kLowAverage), {22, 13}}},

      {{any(kHighWattsGoodVolts), {3, 29}}, {any(kHighWattsLowVolts), {22, 17, 28}}},
      {{rising(kMaxWatts), {30, 4, 31}}, {falling(kMaxWatts), {5, 9, 14}}},
      {{atRegularTimes(kAvgWatts, kPowerPeaks), {53}}},
      {{rising(kAvgWatts), {36, 30, 4, 31}}, {falling(kAvgWatts), {37, 18, 9}}},
  };
  return rules;
}

Analysis expertHist(const Logs& logs, const LoggedDevice& device) {
  return askRules(historyRules(), {logs, LogView(logs.histData), kHist, device, kShortestTrend, momentOf});
}

}  // namespace zephon
