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

std::optional<double> valueOf(const Pass& pass, const CellCondition& condition) {
  const double share = condition.limit.value;
  switch (condition.limit.of) {
    case Limit::Of::Number:
      return share;
    case Limit::Of::Line:
      return share * pass.device.ratedVolts;
    case Limit::Of::SmoothedMean:
      return share * meanOf(smoothed(pass, condition.column));
    case Limit::Of::Mean:
      break;
  }
  const auto mean = columnMean(pass.log, condition.column);
  return mean ? std::optional(share * *mean) : std::nullopt;
}

bool passes(double cell, CellCondition::Relation relation, double limit) {
  switch (relation) {
    case CellCondition::Relation::Above:
      return cell > limit;
    case CellCondition::Relation::AtLeast:
      return cell >= limit;
    case CellCondition::Relation::Below:
      return cell < limit;
    case CellCondition::Relation::AtMost:
      return cell <= limit;
    case CellCondition::Relation::IsNot:
      break;
  }
  return cell != limit;
}

// Nothing when a cell is no number.
std::optional<bool> rowPasses(const double* cells, const RowConditions& conditions,
                              const std::vector<double>& limits) {
  for (std::size_t i = 0; i < conditions.size(); ++i) {
    const double cell = cells[conditions[i].column];
    if (!std::isfinite(cell)) return {};
    if (!passes(cell, conditions[i].relation, limits[i])) return false;
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
Question share(RowConditions conditions, Holds holds) {
  return [conditions = std::move(conditions), holds](const Pass& pass) {
    Seen seen = rowsPassing(pass, conditions);
    const double whole = static_cast<double>(pass.log.largestRow()) - 1;
    if (seen.failed || whole == 0) return failure();
    const bool isSo = holds(static_cast<double>(seen.rows.size()) / whole);
    return answer(isSo, std::move(seen.rows));
  };
}

// Whether the rows that pass come again and again, by their intervals.
template <class Holds>
Question intervals(RowConditions conditions, Holds holds) {
  return [conditions = std::move(conditions), holds](const Pass& pass) {
    Seen seen = rowsPassing(pass, conditions);
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

Seen rowsPassing(const Pass& pass, const RowConditions& conditions) {
  std::vector<double> limits;
  for (const CellCondition& condition : conditions) {
    const auto limit = valueOf(pass, condition);
    if (!limit) return failure();
    limits.push_back(*limit);
  }
  Seen seen;
  for (std::size_t row = 0; row < pass.log.largestRow(); ++row) {
    const auto good = rowPasses(pass.log.row(row), conditions, limits);
    seen.failed = !good;
    if (seen.failed) break;
    if (*good) seen.rows.push_back(row);
  }
  seen.holds = !seen.rows.empty();
  return seen;
}

Question any(RowConditions conditions) {
  return [conditions = std::move(conditions)](const Pass& pass) { return rowsPassing(pass, conditions); };
}

Question shareAbove(double limit, RowConditions conditions) {
  return share(std::move(conditions), [limit](double part) { return part > limit; });
}

Question shareBelow(double limit, RowConditions conditions) {
  return share(std::move(conditions), [limit](double part) { return part < limit; });
}

Question recurring(RowConditions conditions) {
  return intervals(std::move(conditions), comeAgain);
}

Question steady(RowConditions conditions) {
  return intervals(std::move(conditions), areSteady);
}

Question steadyAndFrequent(RowConditions conditions) {
  return intervals(std::move(conditions), areSteadyAndFrequent);
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
