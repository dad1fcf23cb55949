#pragma once

#include <limits>
#include <string>
#include <vector>

namespace zephon::benchmarks {

// The middle one of the values, in their order of size; of an even count the upper one. 0 of none.
double median(std::vector<double> values);

// Of a figure that is only told.
inline constexpr double kNoLimit = std::numeric_limits<double>::infinity();

// A row of the table.
struct Ratio {
  std::string what;
  double measured;
  double against;  // what it is measured against, in the same unit
  std::string unit;
  double limit;  // the greatest ratio of the two that passes
};

// The table of a benchmark program: prints every row as it comes.
class Results {
 public:
  void add(const Ratio& row);
  // The program's exit status: 0 when every row passes.
  int status() const { return missed_ ? 1 : 0; }

 private:
  bool missed_ = false;
};

}  // namespace zephon::benchmarks
