// What a polling pass costs the processor, beside two programs that do no more than the same exchanges and
// pauses on the same line: one that sleeps in poll(2), and one that reads until there is something.

#include <cstdio>
#include <optional>

#include "protocol/measurement.h"
#include "support/bare_line.h"
#include "support/process_use.h"
#include "support/results.h"
#include "support/tool.h"

namespace {

using namespace zephon;
using namespace zephon::benchmarks;

constexpr int kRuns = 21;
constexpr int kPassesARun = 3;

// Processor time of a pass in milliseconds; nothing when one fails, which a machine with other work may do
// to any of them.
template <class Pass>
std::optional<double> costOf(const Pass& pass) {
  const Millis before = processorTime();
  for (int count = 0; count < kPassesARun; ++count) {
    if (!pass()) return std::nullopt;
  }
  return (processorTime() - before).count() / kPassesARun;
}

void measure(Main& main, Results& results) {
  openMeasurementPage(main);
  const Dialogue pass = firstLinePass();
  const int file = fileOf(main);
  std::vector<double> tool;
  std::vector<double> poll;
  std::vector<double> busy;
  for (int run = 0; run < kRuns; ++run) {
    const auto toolCost = costOf([&] { return getMeasurements(main); });
    const auto pollCost = costOf([&] { return barePass(file, pass, kPoll); });
    const auto busyCost = costOf([&] { return barePass(file, pass, kBusy); });
    if (!toolCost || !pollCost || !busyCost) {
      letLateBytesGo(main);
      continue;
    }
    tool.push_back(*toolCost);
    poll.push_back(*pollCost);
    busy.push_back(*busyCost);
  }
  if (tool.size() < kRuns / 2) std::fputs("passes fail\n", stderr);
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
