// How long polling takes, against the least that the line, the device and the pauses between the commands
// allow; and how long a pass takes that meets a line gone silent, against its time-outs.
//
// The time of the device is taken in the same run: a program that does nothing but the exchanges has its turn
// after every run of the tool. It can't be less than the line itself allows.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "protocol/measurement.h"
#include "support/bare_line.h"
#include "support/results.h"
#include "support/tool.h"

namespace {

using namespace zephon;
using namespace zephon::benchmarks;

// One thing to time: the device, how many passes make a run, and what a run has to say, or the time-outs that
// it can't help when it meets silence.
struct Case {
  std::string what;
  std::vector<std::string> device;
  int passes;
  Dialogue dialogue;
  int baud;
  Millis timeouts;
  double limit;
  int runs;
  std::int16_t phase;  // of the second line's cycle, at the start of a run

  bool silent() const { return dialogue.empty(); }
};

const std::vector<Case>& cases() {
  constexpr Millis kNone{};
  static const std::vector<Case> all = {
      {"first line, one pass", {"--orvantis"}, 1, firstLinePass(), 115200, kNone, 1.05, 41, 0},
      {"second line, five passes", {"--tessara"}, 5, secondLineCycle(), 9600, kNone, 1.10, 5, 0},
      {"first line gone silent, one pass",
       {"--orvantis", "--fault", "silent:only=g4"},
       1,
       {},
       115200,
       deadFirstLinePass(),
       1.05,
       11,
       0},
      {"second line gone silent, one pass",
       {"--tessara", "--fault", "silent:only=v"},
       1,
       {},
       9600,
       deadSecondLinePass(),
       1.05,
       1,
       1},
  };
  return all;
}

// The time of one run; nothing when a pass ends otherwise than it has to.
std::optional<Millis> timeRun(Main& main, const Case& one) {
  main.readings.pollPhase = one.phase;
  const Instant start = main.around.loop.now();
  for (int pass = 0; pass < one.passes; ++pass) {
    if (getMeasurements(main) == one.silent()) return std::nullopt;
  }
  return main.around.loop.now() - start;
}

// The least that the same run could have taken just now; nothing when an exchange fails.
std::optional<Millis> floorNow(Main& main, const Case& one) {
  if (one.silent()) return one.timeouts;
  Dialogue exchanges = one.dialogue;
  std::erase_if(exchanges, [](const Step& step) { return step.command == nullptr; });
  const Instant start = main.around.loop.now();
  if (!barePass(fileOf(main), exchanges, kPoll)) return std::nullopt;
  const Millis taken = main.around.loop.now() - start;
  return pausesOf(one.dialogue) + std::max(taken, exchangesOf(one.dialogue, one.baud));
}

// A machine that has other work may hold the device up for longer than a time-out: such a run says nothing
// about the tool. When there are as many of them as of others, something is wrong.
void measure(const Case& one, const std::string& where, Main& main, Results& results) {
  openMeasurementPage(main);
  std::vector<double> times;
  std::vector<double> floors;
  for (int run = 0; run < 2 * one.runs && times.size() < static_cast<std::size_t>(one.runs); ++run) {
    const auto time = timeRun(main, one);
    const auto floor = floorNow(main, one);
    if (!time || !floor) {
      letLateBytesGo(main);
      continue;
    }
    times.push_back(time->count());
    floors.push_back(floor->count());
  }
  if (times.size() < static_cast<std::size_t>(one.runs)) {
    std::fprintf(stderr, "%s: passes %s\n", one.what.c_str(), one.silent() ? "succeed" : "fail");
    std::exit(EXIT_FAILURE);
  }
  results.add({one.what + ", " + where, median(times), median(floors), "ms", one.limit});
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
