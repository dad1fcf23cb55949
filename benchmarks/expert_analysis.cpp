// The analyses of full logs, held against a bound in time; and of longer logs, held against shorter ones, row
// for row. Everything that the rules look for is in them: each row is a candidate of each rule.

#include <random>

#include "expert/chart_analysis.h"
#include "expert/event_analysis.h"
#include "expert/history_analysis.h"
#include "support/process_use.h"
#include "support/results.h"

namespace {

using namespace zephon;
using namespace zephon::benchmarks;

constexpr double kBoundMs = 20;
constexpr double kMostOfAShorterLog = 1.5;  // a row of a log four times as long, against one of the shorter
constexpr int kRuns = 41;

using Random = std::mt19937;

double between(Random& random, double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(random);
}

// Half hours from January 2013 on.
Logs history(std::size_t rows) {
  Random random(1);
  Logs logs;
  for (std::size_t i = 0; i < rows; ++i) {
    const auto part = [i](std::size_t unit, std::size_t count) {
      return static_cast<double>(i / unit % count);
    };
    const double volts = between(random, 20, 150);
    logs.histData.push_back({13, 1 + part(48, 28), 1 + part(48 * 28, 12), part(2, 24), 30 * part(1, 2), 0,
                             between(random, 0, 4000), between(random, 4000, 9000), volts,
                             between(random, 120, 150), between(random, 20, 120), between(random, 0, 60)});
  }
  return logs;
}

// A sample every ten seconds.
Logs chart(std::size_t rows) {
  Random random(2);
  Logs logs;
  for (std::size_t i = 0; i < rows; ++i) {
    const double time = 41'395 + static_cast<double>(i) / 8640;
    logs.chartData.push_back({time, between(random, 20, 150), between(random, 0, 60),
                              between(random, 0, 9000), between(random, 0, 9), between(random, 55, 65), 1,
                              between(random, 0.9, 1.6), 0});
  }
  return logs;
}

// Some events an hour, the newest first, so that trends are counted.
Logs events(std::size_t rows) {
  constexpr double kCodes[] = {1, 2, 4, 8, 16, 32, 64, 130, 132, 160};
  Random random(3);
  Logs logs;
  for (std::size_t i = 0; i < rows; ++i) {
    const auto hour = static_cast<double>((rows - 1 - i) / 4 % 24);
    const auto day = static_cast<double>(1 + (rows - 1 - i) / 96);
    const double code = kCodes[random() % std::size(kCodes)];
    logs.tsData.push_back({13, day, 5, hour, between(random, 0, 59), 0, code, 0});
  }
  return logs;
}

struct Log {
  const char* name;
  Logs (*make)(std::size_t rows);
  Analysis (*analyse)(const Logs& logs, const LoggedDevice& device);
  std::size_t fullRows;
};
constexpr Log kLogs[] = {{"history", history, expertHist, 6912},
                         {"chart", chart, expertChart, 19'000},
                         {"events", events, expertTS, 512}};

// The median of its processor time, in milliseconds: it waits for nothing else.
double timeOf(const Log& log, std::size_t rows) {
  const Logs logs = log.make(rows);
  const LoggedDevice device = {0, "1.KD1", 120, 120, 1};
  std::vector<double> times;
  for (int run = 0; run < kRuns; ++run) {
    const Millis before = processorTime();
    (void)log.analyse(logs, device);
    times.push_back((processorTime() - before).count());
  }
  return median(times);
}

}  // namespace

int main() {
  Results results;
  for (const Log& log : kLogs) {
    const std::string name = log.name;
    const double full = timeOf(log, log.fullRows);
    const double quarter = timeOf(log, log.fullRows / 4);
    results.add(
        {name + ", " + std::to_string(log.fullRows) + " rows, against the bound", full, kBoundMs, "ms", 1});
    results.add({name + ", four times the rows, against four times the time", full, 4 * quarter, "ms",
                 kMostOfAShorterLog});
  }
  return results.status();
}
