// From the start of the program to its first painted window, and the memory that it then holds, against a
// program that shows an empty Qt main window. Both are fresh processes, one after the other.

#include <ctime>
#include <sstream>

#include "support/child_process.h"
#include "support/results.h"

namespace {

using namespace zephon::benchmarks;

constexpr int kRuns = 15;

struct Start {
  double milliseconds = 0;
  double peakMiB = 0;
  double residentMiB = 0;
};

double nowMs() {
  timespec now{};
  ::clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// The program tells when it had painted, and its peak and present memory in KiB.
Start start(const std::string& program) {
  const double before = nowMs();
  ChildProcess process({program}, {{"QT_QPA_PLATFORM", "offscreen"}});
  std::istringstream told(process.readLine());
  double painted = 0;
  double peak = 0;
  double resident = 0;
  if (!(told >> painted >> peak >> resident)) std::fprintf(stderr, "%s: no window\n", program.c_str());
  return {painted - before, peak / 1024, resident / 1024};
}

double medianOf(const std::vector<Start>& starts, double Start::*field) {
  std::vector<double> values;
  for (const Start& one : starts) values.push_back(one.*field);
  return median(values);
}

}  // namespace

int main() {
  std::vector<Start> tool;
  std::vector<Start> empty;
  start(ZEPHON_START_TOOL);  // the files of both come from the disk once
  start(ZEPHON_START_EMPTY);
  for (int run = 0; run < kRuns; ++run) {
    tool.push_back(start(ZEPHON_START_TOOL));
    empty.push_back(start(ZEPHON_START_EMPTY));
  }
  Results results;
  const struct {
    const char* what;
    double Start::*field;
    const char* unit;
    double limit;
  } rows[] = {{"start to first painted window", &Start::milliseconds, "ms", 3},
              {"resident memory", &Start::residentMiB, "MiB", 1.6},
              {"peak of resident memory", &Start::peakMiB, "MiB", 1.6}};
  for (const auto& row : rows) {
    results.add({row.what, medianOf(tool, row.field), medianOf(empty, row.field), row.unit, row.limit});
  }
  return results.status();
}
