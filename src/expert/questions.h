#pragma once

#include "expert/rules.h"

namespace zephon {

// The questions of which rules are made. Rows that are counted are those below U.

// What a cell is held against: a number, or so many times the assumed line voltage, the mean of the cell's
// column below U, or the mean of the column's smoothed series.
struct Limit {
  enum class Of { Number, Line, Mean, SmoothedMean };
  constexpr Limit(double number) : value(number) {}
  constexpr Limit(double share, Of what) : value(share), of(what) {}
  double value;
  Of of = Of::Number;
};
constexpr Limit ofLine(double share) {
  return {share, Limit::Of::Line};
}
constexpr Limit ofMean(double share) {
  return {share, Limit::Of::Mean};
}
constexpr Limit ofSmoothedMean(double share) {
  return {share, Limit::Of::SmoothedMean};
}

// A cell of a row held against a limit.
struct CellCondition {
  enum class Relation { Above, AtLeast, Below, AtMost, IsNot };
  std::size_t column;
  Relation relation;
  Limit limit;
};
constexpr CellCondition above(std::size_t column, Limit limit) {
  return {column, CellCondition::Relation::Above, limit};
}
constexpr CellCondition atLeast(std::size_t column, Limit limit) {
  return {column, CellCondition::Relation::AtLeast, limit};
}
constexpr CellCondition below(std::size_t column, Limit limit) {
  return {column, CellCondition::Relation::Below, limit};
}
constexpr CellCondition atMost(std::size_t column, Limit limit) {
  return {column, CellCondition::Relation::AtMost, limit};
}
constexpr CellCondition isNot(std::size_t column, Limit limit) {
  return {column, CellCondition::Relation::IsNot, limit};
}

// What all a row has to meet, in this order: a cell is looked at when those before it have passed.
using RowConditions = std::vector<CellCondition>;

// The rows that pass. Fails at a cell that is no number, with the rows before it.
Seen rowsPassing(const Pass& pass, const RowConditions& conditions);

// Any row passes.
Question any(RowConditions conditions);

// The share of the rows that pass, their count over U - 1, lies above, or below, a limit. Fails without a row
// to divide by.
Question shareAbove(double limit, RowConditions conditions);
Question shareBelow(double limit, RowConditions conditions);

// The rows that pass have two intervals between them, at least. Moments of 0 have none.
Question recurring(RowConditions conditions);
// The same, and the intervals have no trend.
Question steady(RowConditions conditions);
// The same, and they are more than a hundredth of U - 1.
Question steadyAndFrequent(RowConditions conditions);

// The trend of a column.
Question rising(std::size_t column);
Question falling(std::size_t column);

// The mean of a column lies above a limit.
Question meanAbove(double limit, std::size_t column);

// A slot whose text begins so, whatever the language, and ends in times.
struct TimedText {
  int slot;
  const char* opening;
};
// Peaks of a column of the history come at the same times on many days, which complete the text.
Question atRegularTimes(std::size_t column, TimedText text);

// Both hold: the answer is the second one's, which is asked only when the first holds.
Question both(Question first, Question second);

// The mean of a column below U; nothing without rows there or when it is no number.
std::optional<double> columnMean(const LogView& log, std::size_t column);

}  // namespace zephon
