#include "expert/trend_statistics.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <optional>

#include "expert/half_hours.h"
#include "expert/row_date.h"
#include "protocol/device_date.h"

namespace zephon {
namespace {

constexpr std::size_t kSmoothed = 3;
constexpr std::size_t kCode = 6;
constexpr double kThreshold = 0.05;
constexpr double kThresholdOfSecondLine = 0.01;
constexpr double kLowestChartMean = 1.0;
constexpr double kLeastShare = 0.01;

using MaybeSeries = std::optional<Series>;

bool allFinite(const Series& series) {
  return std::all_of(series.begin(), series.end(), [](double value) { return std::isfinite(value); });
}

MaybeSeries meansOfThree(const Series& values) {
  if (values.size() < kSmoothed) return {};
  Series means;
  means.reserve(values.size() - 2);
  for (std::size_t i = 0; i + 2 < values.size(); ++i)
    means.push_back((values[i] + values[i + 1] + values[i + 2]) / 3);
  return means;
}

MaybeSeries chartMean(const LogView& chart, std::size_t column) {
  Series values;
  values.reserve(chart.rows());
  for (std::size_t row = 0; row < chart.rows(); ++row) values.push_back(chart.at(column, row));
  return meansOfThree(values);
}

MaybeSeries historyMean(const LogView& history, std::size_t column) {
  const double lastDay = std::nearbyint(static_cast<double>(history.largestRow()) / kRowsADay - 2);
  if (lastDay < 0) return {};
  const auto last = static_cast<std::size_t>(lastDay);
  Series days(last + 1);
  for (std::size_t day = 0; day <= last; ++day) days[last - day] = dayMean(history, column, day);
  return meansOfThree(days);
}

bool isOneOf(double code, int code1, int code2) {
  return code == code1 || code == code2;
}

// Events by day. A day outside the span has no place, and a 16-bit counter no room for more.
MaybeSeries eventsADay(const LogView& events, int code1, int code2) {
  if (events.rows() == 0) return {};
  const auto origin = rowDate(events, events.largestRow());
  const auto end = rowDate(events, 0);
  const int span = origin && end ? dayDifference(*origin, *end) : 0;
  if (span < 0) return {};
  Series days(static_cast<std::size_t>(span) + 1);
  for (std::size_t row = 0; row < events.largestRow(); ++row) {
    if (!isOneOf(events.at(kCode, row), code1, code2)) continue;
    const auto date = rowDate(events, row);
    const int day = origin && date ? dayDifference(*origin, *date) : 0;
    if (day < 0 || day > span) return {};
    if (++days[static_cast<std::size_t>(day)] > std::numeric_limits<std::int16_t>::max()) return {};
  }
  return days;
}

MaybeSeries eventMean(const LogView& events, int code1, int code2) {
  MaybeSeries days = eventsADay(events, code1, code2);
  if (!days) return {};
  const auto at = [&](std::size_t i) { return i < days->size() ? (*days)[i] : 0; };
  for (std::size_t i = 0; i < days->size(); ++i) (*days)[i] = (at(i) + at(i + 1) + at(i + 2)) / 3;
  return days;
}

MaybeSeries meanOf(const Logs& logs, std::string_view kind, int col1, int col2) {
  if (kind == kTimestamp) return eventMean(LogView(logs.tsData), col1, col2);
  if (kind != kChart && kind != kHist) return {};
  const LogView log = kind == kChart ? LogView(logs.chartData) : LogView(logs.histData);
  if (col1 < 0 || static_cast<std::size_t>(col1) >= log.columns()) return {};
  const auto column = static_cast<std::size_t>(col1);
  return kind == kChart ? chartMean(log, column) : historyMean(log, column);
}

}  // namespace

Series movingMean(const Logs& logs, std::string_view kind, int col1, int col2) {
  MaybeSeries mean = meanOf(logs, kind, col1, col2);
  return mean && allFinite(*mean) ? std::move(*mean) : Series{0};
}

int getSlope(std::string_view kind, std::span<const double> series, int modelLine) {
  if (series.size() < 2) return 0;
  const auto n = static_cast<double>(series.size());
  const double meanX = (n - 1) / 2;
  const double meanY = std::accumulate(series.begin(), series.end(), 0.0) / n;
  if (kind == kChart && std::abs(meanY) < kLowestChartMean) return 0;
  double products = 0;
  double squares = 0;
  for (std::size_t i = 0; i < series.size(); ++i) {
    const double x = static_cast<double>(i) - meanX;
    products += (series[i] - meanY) * x;
    squares += x * x;
  }
  const double slope = products / squares;
  const double threshold = modelLine == 1 ? kThresholdOfSecondLine : kThreshold;
  if (!std::isfinite(slope)) return 0;
  return slope > threshold ? 1 : slope < -threshold ? -1 : 0;
}

bool isSteady(std::string_view kind, const Intervals& intervals, std::size_t largestRow, int modelLine) {
  const auto last = static_cast<double>(intervals.lastIndex());
  const double fewest = (static_cast<double>(largestRow) - 1) * kLeastShare;
  return last > 1 && fewest < last && getSlope(kind, intervals.series(), modelLine) == 0;
}

bool isRegular(const Logs& logs, std::string_view kind, int code1, int code2, int modelLine) {
  const LogView events(logs.tsData);
  Intervals intervals;
  for (std::size_t row = 0; row < events.largestRow(); ++row) {
    if (!isOneOf(events.at(kCode, row), code1, code2)) continue;
    const auto date = rowDate(events, row);
    if (!date) return false;
    intervals.add(dateSerial(*date));
  }
  return isSteady(kind, intervals, events.largestRow(), modelLine);
}

}  // namespace zephon
