#include <chrono>
#include <cstdio>
#include <string>

#include "logs/history_download.h"
#include "logs/history_log.h"
#include "support/process_use.h"
#include "support/results.h"
#include "support/simulated_port.h"
#include "support/tool.h"

// The historical log over a pseudo-terminal at the line's own pace, from the button to the decoded table,
// held against the time that its bytes take on the wire.
namespace {

using namespace zephon;
using namespace zephon::benchmarks;

constexpr double kBitsAByte = 10;
constexpr double kBaud = 115200;
constexpr double kBeforeMs = 200 + 50;  // the line is drained, then left alone, before the command goes out

void measure(Main& main, const std::string& where, Results& results) {
  main.frame.dataBtn.click();
  const auto start = std::chrono::steady_clock::now();
  const Millis before = processorTime();
  const bool done = getHistData(main);
  const double processor = (processorTime() - before).count();
  const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
  if (!done || main.logs.rawLogBuffer.size() != kHistoryFrameBytes)
    std::fputs("the download failed\n", stderr);
  const double wire = kBeforeMs + kHistoryFrameBytes * kBitsAByte / kBaud * 1000;
  results.add({"historical log, " + where + ", against its bytes", taken.count(), wire, "ms", 1.01});
  results.add({"processor, " + where + ", against the time it takes", processor, taken.count(), "ms", 0.05});
}

}  // namespace

int main() {
  Results results;
  const SimulatedPort port({"--orvantis", "--past", "150"});
  runOnPoll(port.folder(), [&](Main& main) { measure(main, "poll", results); });
  runInWindow(port.folder(), [&](Main& main) { measure(main, "window", results); });
  return results.status();
}
