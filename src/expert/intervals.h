#pragma once

#include <vector>

namespace zephon {

// The times between occurrences, in days, with one element more at the end that is still 0. The element is
// part of the series: whoever fits a line through it has that 0 as its last point.
class Intervals {
 public:
  // The moment of the next occurrence, as a day number. An interval is added when neither it nor the one
  // before is 0.
  void add(double moment) {
    if (moment != 0 && previous_ != 0) {
      series_.back() = moment - previous_;
      series_.push_back(0);
    }
    previous_ = moment;
  }

  std::size_t lastIndex() const { return series_.size() - 1; }
  const std::vector<double>& series() const { return series_; }

 private:
  std::vector<double> series_ = {0};
  double previous_ = 0;
};

}  // namespace zephon
