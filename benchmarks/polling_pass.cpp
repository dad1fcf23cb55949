// How long polling takes, against the least that the line, the device and the pauses between the commands
// allow; and how long a pass takes that meets a line gone silent, against its time-outs.

#include "protocol/measurement.h"
#include "support/dialogue.h"
#include "support/results.h"
#include "support/tool.h"

namespace {

using namespace zephon;
using namespace zephon::benchmarks;

// One thing to time: the device, how many passes make a run, and the least that a run can take.
struct Case {
  std::string what;
  std::vector<std::string> device;
  int passes;
  bool succeeds;
  Millis floor;
  double limit;
  int runs;
  std::int16_t phase;  // of the second line's cycle, at the start of a run
};

const std::vector<Case>& cases() {
  static const std::vector<Case> all = {
      {"first line, one pass", {"--orvantis"}, 1, true, floorOf(firstLinePass(), 115200), 1.05, 41, 0},
      {"second line, five passes", {"--tessara"}, 5, true, floorOf(secondLineCycle(), 9600), 1.10, 3, 0},
      {"first line gone silent, one pass",
       {"--orvantis", "--fault", "silent:only=g4"},
       1,
       false,
       deadFirstLinePass(),
       1.05,
       11,
       0},
      {"second line gone silent, one pass",
       {"--tessara", "--fault", "silent:only=v"},
       1,
       false,
       deadSecondLinePass(),
       1.05,
       1,
       1},
  };
  return all;
}

// The time of one run. Ends the program when the passes end otherwise than they have to.
double timeRun(Main& main, const Case& one) {
  main.readings.pollPhase = one.phase;
  const Instant start = main.around.loop.now();
  for (int pass = 0; pass < one.passes; ++pass) {
    if (getMeasurements(main) == one.succeeds) continue;
    std::fprintf(stderr, "%s: a pass %s\n", one.what.c_str(), one.succeeds ? "failed" : "succeeded");
    std::exit(EXIT_FAILURE);
  }
  return Millis(main.around.loop.now() - start).count();
}

void measure(const Case& one, const std::string& where, Main& main, Results& results) {
  constexpr double kNothingIsFaster = 0.999;
  openMeasurementPage(main);
  std::vector<double> runs;
  for (int run = 0; run < one.runs; ++run) runs.push_back(timeRun(main, one));
  results.add({one.what + ", " + where, median(runs), one.floor.count(), "ms", one.limit, kNothingIsFaster});
}

}  // namespace

int main() {
  Results results;
  for (const Case& one : cases()) {
    const SimulatedPort port(one.device);
    runOnPoll(port.folder(), [&](Main& main) { measure(one, "poll", main, results); });
    runInWindow(port.folder(), [&](Main& main) { measure(one, "window", main, results); });
  }
  return results.status();
}
