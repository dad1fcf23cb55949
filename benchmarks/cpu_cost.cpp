// What a polling pass costs the processor, beside two programs that do no more than the same exchanges and
// pauses on the same line: one that sleeps in poll(2), and one that reads until there is something.

#include <poll.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "protocol/measurement.h"
#include "support/dialogue.h"
#include "support/process_use.h"
#include "support/results.h"
#include "support/tool.h"

namespace {

using namespace zephon;
using namespace zephon::benchmarks;
using Clock = std::chrono::steady_clock;

constexpr int kRuns = 21;
constexpr int kPassesARun = 3;

// How a bare program waits: for its file to have something, and for a time to pass.
struct Waiting {
  void (*readable)(int file, double milliseconds);
  void (*time)(double milliseconds);
};

void pollFor(int file, double milliseconds) {
  pollfd watched{file, POLLIN, 0};
  ::poll(&watched, 1, static_cast<int>(milliseconds));
}

constexpr Waiting kPoll = {pollFor, [](double milliseconds) { pollFor(-1, milliseconds); }};

constexpr Waiting kBusy = {[](int, double) {},
                           [](double milliseconds) {
                             const auto end = Clock::now() + fromMillis(milliseconds);
                             while (Clock::now() < end) {
                             }
                           }};

void fail(const char* what) {
  std::fprintf(stderr, "%s\n", what);
  std::exit(EXIT_FAILURE);
}

// Ends the program when the whole reply does not come: a missing one would make the bare loop look cheap.
void exchange(int file, const DeviceCommand& command, const Waiting& waiting) {
  const auto end = Clock::now() + fromMillis(command.timeoutMs);
  if (::write(file, command.text.data(), command.text.size()) < 0) fail("the line takes nothing");
  std::array<char, 1024> reply;
  for (ssize_t gathered = 0; gathered < command.replyBytes;) {
    waiting.readable(file, command.timeoutMs);
    const ssize_t count = ::read(file, reply.data(), reply.size());
    if (count > 0) gathered += count;
    if (Clock::now() > end) fail("no answer in a bare loop");
  }
}

void bareRun(int file, const Dialogue& pass, const Waiting& waiting) {
  for (const Step& step : pass) {
    if (step.command) {
      exchange(file, *step.command, waiting);
    } else {
      waiting.time(step.pauseMs);
    }
  }
}

void toolRun(Main& main) {
  if (!getMeasurements(main)) fail("a pass failed");
}

// Processor time of a pass, in milliseconds.
template <class Run>
double costOf(const Run& run) {
  const Millis before = processorTime();
  for (int pass = 0; pass < kPassesARun; ++pass) run();
  return (processorTime() - before).count() / kPassesARun;
}

int fileOf(const Main& main) {
  const SerialHandle handle = main.link.table.ports.front().handle;
  return main.around.serial.descriptor(handle);
}

void measure(Main& main, Results& results) {
  openMeasurementPage(main);
  const Dialogue pass = firstLinePass();
  const int file = fileOf(main);
  std::vector<double> tool;
  std::vector<double> poll;
  std::vector<double> busy;
  for (int run = 0; run < kRuns; ++run) {
    tool.push_back(costOf([&] { toolRun(main); }));
    poll.push_back(costOf([&] { bareRun(file, pass, kPoll); }));
    busy.push_back(costOf([&] { bareRun(file, pass, kBusy); }));
  }
  results.add({"first-line pass, against a bare poll loop", median(tool), median(poll), "ms", 1.5});
  results.add({"first-line pass, against a busy reader", median(tool), median(busy), "ms", 0.2});
}

}  // namespace

int main() {
  Results results;
  const SimulatedPort port({"--orvantis"});
  runOnPoll(port.folder(), [&](Main& main) { measure(main, results); });
  return results.status();
}
