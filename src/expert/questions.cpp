#include "expert/questions.h"

#include <cmath>
#include <numeric>

#include "expert/peak_usage.h"
#include "expert/trend_statistics.h"

namespace zephon {
namespace {

Series smoothed(const Pass& pass, std::size_t column) {
  const int col = static_cast<int>(column);
  return movingMean(pass.logs, pass.kind, col, col);
}

double meanOf(const Series& series) {
  return std::accumulate(series.begin(), series.end(), 0.0) / static_cast<double>(series.size());
}

std::optional<double> valueOf(const Pass& pass, const Test& test) {
  const double share = test.limit.value;
  switch (test.limit.of) {
    case Limit::Of::Number:
      return share;
    case Limit::Of::Line:
      return share * pass.device.ratedVolts;
    case Limit::Of::SmoothedMean:
      return share * meanOf(smoothed(pass, test.column));
    case Limit::Of::Mean:
      break;
  }
  const auto mean = columnMean(pass.log, test.column);
  return mean ? std::optional(share * *mean) : std::nullopt;
}

bool passes(double cell, Test::Relation relation, double limit) {
  switch (relation) {
    case Test::Relation::Above:
      return cell > limit;
    case Test::Relation::AtLeast:
      return cell >= limit;
    case Test::Relation::Below:
      return cell < limit;
    case Test::Relation::AtMost:
      return cell <= limit;
    case Test::Relation::IsNot:
      break;
  }
  return cell != limit;
}

// Nothing when a cell is no number.
std::optional<bool> rowPasses(const double* cells, const Tests& tests, const std::vector<double>& limits) {
  for (std::size_t i = 0; i < tests.size(); ++i) {
    const double cell = cells[tests[i].column];
    if (!std::isfinite(cell)) return {};
    if (!passes(cell, tests[i].relation, limits[i])) return false;
  }
  return true;
}

Seen failure() {
  Seen seen;
  seen.failed = true;
  return seen;
}

// An answer that holds or not, of rows that were passed over to the end.
Seen answer(bool holds, RowNumbers rows) {
  Seen seen;
  seen.holds = holds;
  if (holds) seen.rows = std::move(rows);
  return seen;
}

template <class Holds>
Question share(Tests tests, Holds holds) {
  return [tests = std::move(tests), holds](const Pass& pass) {
    Seen seen = rowsPassing(pass, tests);
    const double whole = static_cast<double>(pass.log.largestRow()) - 1;
    if (seen.failed || whole == 0) return failure();
    const bool isSo = holds(static_cast<double>(seen.rows.size()) / whole);
    return answer(isSo, std::move(seen.rows));
  };
}

// Whether the rows that pass come again and again, by their intervals.
template <class Holds>
Question intervals(Tests tests, Holds holds) {
  return [tests = std::move(tests), holds](const Pass& pass) {
    Seen seen = rowsPassing(pass, tests);
    Intervals between;
    for (const std::size_t row : seen.rows) {
      const auto moment = pass.moment(pass.log, row);
      if (!moment) return failure();
      between.add(*moment);
    }
    if (seen.failed) return failure();
    return answer(holds(pass, between), std::move(seen.rows));
  };
}

bool comeAgain(const Pass& /*pass*/, const Intervals& between) {
  return between.lastIndex() >= 2;
}

bool areSteady(const Pass& pass, const Intervals& between) {
  return comeAgain(pass, between) && getSlope(pass.kind, between.series(), pass.device.modelLine) == 0;
}

bool areSteadyAndFrequent(const Pass& pass, const Intervals& between) {
  return isSteady(pass.kind, between, pass.log.largestRow(), pass.device.modelLine);
}

RowNumbers allRecords(const Pass& pass) {
  RowNumbers rows(pass.log.largestRow());
  std::iota(rows.begin(), rows.end(), std::size_t{0});
  return rows;
}

Question trend(std::size_t column, int wanted) {
  return [column, wanted](const Pass& pass) {
    const Series series = smoothed(pass, column);
    const bool flat = series.size() < pass.shortestTrend;
    const bool holds = !flat && getSlope(pass.kind, series, pass.device.modelLine) == wanted;
    return answer(holds, holds ? allRecords(pass) : RowNumbers{});
  };
}

}  // namespace

Seen rowsPassing(const Pass& pass, const Tests& tests) {
  std::vector<double> limits;
  for (const Test& test : tests) {
    const auto limit = valueOf(pass, test);
    if (!limit) return failure();
    limits.push_back(*limit);
  }
  Seen seen;
  for (std::size_t row = 0; row < pass.log.largestRow(); ++row) {
    const auto good = rowPasses(pass.log.row(row), tests, limits);
    seen.failed = !good;
    if (seen.failed) break;
    if (*good) seen.rows.push_back(row);
  }
  seen.holds = !seen.rows.empty();
  return seen;
}

Question any(Tests tests) {
  return [tests = std::move(tests)](const Pass& pass) { return rowsPassing(pass, tests); };
}

Question shareAbove(double limit, Tests tests) {
  return share(std::move(tests), [limit](double part) { return part > limit; });
}

Question shareBelow(double limit, Tests tests) {
  return share(std::move(tests), [limit](double part) { return part < limit; });
}

Question recurring(Tests tests) {
  return intervals(std::move(tests), comeAgain);
}

Question steady(Tests tests) {
  return intervals(std::move(tests), areSteady);
}

Question steadyAndFrequent(Tests tests) {
  return intervals(std::move(tests), areSteadyAndFrequent);
}

Question rising(std::size_t column) {
  return trend(column, 1);
}

Question falling(std::size_t column) {
  return trend(column, -1);
}

Question meanAbove(double limit, std::size_t column) {
  return [limit, column](const Pass& pass) {
    const auto mean = columnMean(pass.log, column);
    if (!mean) return failure();
    const bool holds = *mean > limit;
    return answer(holds, holds ? allRecords(pass) : RowNumbers{});
  };
}

Question atRegularTimes(std::size_t column, TimedText text) {
  return [column, text](const Pass& pass) {
    PeakUsage usage = getPeakUsage(pass.logs, pass.kind, static_cast<int>(column), pass.device.nominalVolts);
    if (usage.times[0].empty()) return Seen{};
    Seen seen = answer(true, std::move(usage.rows));
    seen.texts[text.slot] = text.opening + timeList(usage.times);
    return seen;
  };
}

Question both(Question first, Question second) {
  return [first = std::move(first), second = std::move(second)](const Pass& pass) {
    Seen seen = first(pass);
    if (seen.failed) return failure();
    return seen.holds ? second(pass) : Seen{};
  };
}

std::optional<double> columnMean(const LogView& log, std::size_t column) {
  double sum = 0;
  for (std::size_t row = 0; row < log.largestRow(); ++row) sum += log.at(column, row);
  const double mean = sum / static_cast<double>(log.largestRow());
  return std::isfinite(mean) ? std::optional(mean) : std::nullopt;
}

}  // namespace zephon
