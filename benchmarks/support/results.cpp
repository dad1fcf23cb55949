#include "support/results.h"

#include <algorithm>
#include <cstdio>

namespace zephon::benchmarks {

double median(std::vector<double> values) {
  if (values.empty()) return 0;
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

void Results::add(const Ratio& row) {
  const double ratio = row.measured / row.against;
  const bool pass = ratio <= row.limit;
  missed_ = missed_ || !pass;
  std::printf("%-52s %10.3f %10.3f %-4s %7.3f", row.what.c_str(), row.measured, row.against, row.unit.c_str(),
              ratio);
  if (row.limit == kNoLimit)
    std::puts("");
  else
    std::printf(" %6.2f  %s\n", row.limit, pass ? "pass" : "MISS");
  std::fflush(stdout);
}

}  // namespace zephon::benchmarks
