#include "expert/peak_usage.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "expert/half_hours.h"
#include "expert/trend_statistics.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::size_t kRuns = 3;
constexpr std::size_t kAveragePower = 6;
constexpr std::size_t kHour = 3, kMinute = 4;
constexpr double kTimesDayMean = 2;
constexpr double kLowVoltage = 0.95;
constexpr double kShareOfDays = 0.25;

// The last rows of a day's runs of peaks; 0 for no run.
using Runs = std::array<std::size_t, kRuns>;

// Days of runs. What was stored last in each place is carried from day to day.
class PeakTable {
 public:
  void beginDay() { days_.push_back({}); }

  void add(std::size_t row) {
    Runs& today = days_.back();
    for (std::size_t run = 0; run < kRuns; ++run) {
      if (today[run] != 0 && row != stored_[run] + 1) continue;
      today[run] = stored_[run] = row;
      return;
    }
  }

  const std::vector<Runs>& days() const { return days_; }

 private:
  std::vector<Runs> days_;
  Runs stored_{};
};

double limitOfDay(const LogView& history, std::size_t column, std::size_t day, int nominalVolts) {
  return column == kAveragePower ? kTimesDayMean * dayMean(history, column, day) : kLowVoltage * nominalVolts;
}

// Nothing when a value is no number.
std::optional<PeakTable> peaksOf(const LogView& history, std::size_t column, std::size_t days,
                                 int nominalVolts) {
  PeakTable peaks;
  for (std::size_t day = 0; day < days; ++day) {
    peaks.beginDay();
    const double limit = limitOfDay(history, column, day, nominalVolts);
    for (std::size_t row = day * kRowsADay; row < (day + 1) * kRowsADay; ++row) {
      const double value = history.at(column, row);
      if (!std::isfinite(value)) return {};
      if (column == kAveragePower ? value > limit : value < limit) peaks.add(row);
    }
  }
  return peaks;
}

bool isNear(std::size_t halfHour, std::size_t reference) {
  return halfHour < reference + 2 && reference < halfHour + 2;
}

// The first day whose run ends at a half hour of the day at which it ends on many days. A day without the run
// counts as one whose run ends at half hour 0.
std::optional<std::size_t> dayToTell(const std::vector<Runs>& days, std::size_t run, double fewest) {
  for (std::size_t day = 0; day < days.size(); ++day) {
    const std::size_t reference = days[day][run] % kRowsADay;
    if (reference == 0) continue;
    const auto alike = std::count_if(days.begin(), days.end(), [&](const Runs& other) {
      return isNear(other[run] % kRowsADay, reference);
    });
    if (static_cast<double>(alike) > fewest && alike > 1) return day;
  }
  return {};
}

std::string timeOfRow(const LogView& history, std::size_t row) {
  return formatPicture(history.at(kHour, row), "00") + ':' + formatPicture(history.at(kMinute, row), "00");
}

void addRows(RowNumbers& rows, const std::vector<Runs>& days, std::size_t run, std::size_t told) {
  for (const Runs& day : days) {
    if (day[run] != 0 && isNear(day[run] % kRowsADay, told % kRowsADay)) rows.push_back(day[run]);
  }
}

PeakUsage usageOf(const LogView& history, const std::vector<Runs>& days, double fewest) {
  PeakUsage usage;
  for (std::size_t run = 0; run < kRuns; ++run) {
    const auto day = dayToTell(days, run, fewest);
    if (!day) continue;
    const std::size_t row = days[*day][run];
    usage.times[run] = timeOfRow(history, row);
    addRows(usage.rows, days, run, row);
  }
  std::sort(usage.rows.begin(), usage.rows.end());
  return usage;
}

}  // namespace

PeakUsage getPeakUsage(const Logs& logs, std::string_view kind, int col, int nominalVolts) {
  const LogView history(logs.histData);
  if (kind != kHist || col < 0 || static_cast<std::size_t>(col) >= history.columns()) return {};
  const double dayCount = std::nearbyint(static_cast<double>(history.largestRow()) / kRowsADay);
  if (dayCount < 2) return {};
  const auto peaks =
      peaksOf(history, static_cast<std::size_t>(col), static_cast<std::size_t>(dayCount) - 1, nominalVolts);
  return peaks ? usageOf(history, peaks->days(), kShareOfDays * dayCount) : PeakUsage{};
}

std::string timeList(const std::array<std::string, 3>& times) {
  if (!times[2].empty()) return times[0] + ", " + times[1] + ", and " + times[2] + '.';
  if (!times[1].empty()) return times[0] + " and " + times[1] + '.';
  return times[0] + '.';
}

}  // namespace zephon
