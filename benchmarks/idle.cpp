// What the tool costs while nothing is asked of it: how often it wakes with no page on, and how it comes to
// rest when its line hangs up in the middle of an exchange.

#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <thread>

#include "protocol/exchange.h"
#include "shell/polling.h"
#include "support/dialogue.h"
#include "support/process_use.h"
#include "support/results.h"
#include "support/tool.h"

namespace {

using namespace zephon;
using namespace zephon::benchmarks;

constexpr std::chrono::seconds kSettle{2};
constexpr std::chrono::seconds kWatched{10};
constexpr double kPolledMs = 1000;

// Polls for a while, leaves the page, tells so, and then has nothing to do.
void visitAndRest(Main& main) {
  main.frame.measBtn.click();
  wait(main, kPolledMs);
  main.frame.measBtn.click();
  std::puts("at rest");
  std::fflush(stdout);
  for (;;) main.around.loop.sleepUntil(kNever);
}

struct Idler {
  std::string what;
  std::unique_ptr<ChildProcess> process;
  long before = 0;
};

// All are watched during the same seconds.
void addWakeUps(std::vector<Idler>& idlers, Results& results) {
  std::this_thread::sleep_for(kSettle);
  for (Idler& one : idlers) one.before = wakeUps(one.process->id());
  std::this_thread::sleep_for(kWatched);
  for (Idler& one : idlers) {
    const auto count = static_cast<double>(wakeUps(one.process->id()) - one.before);
    results.add({one.what, count / static_cast<double>(kWatched.count()), 1, "/s", 1});
  }
}

Idler resting(const std::string& what, const std::function<int()>& work) {
  Idler idler{what, std::make_unique<ChildProcess>(work)};
  if (idler.process->readLine().empty()) std::fprintf(stderr, "%s: does not come to rest\n", what.c_str());
  return idler;
}

void measureWakeUps(Results& results) {
  const SimulatedPort first({"--orvantis"});
  const SimulatedPort second({"--orvantis"});
  const Folder home;
  std::vector<Idler> idlers;
  idlers.push_back(resting("wake-ups, poll, a page visited and left", [&] {
    runOnPoll(first.folder(), visitAndRest);
    return 0;
  }));
#ifdef ZEPHON_WITH_WINDOW
  idlers.push_back(resting("wake-ups, window, a page visited and left", [&] {
    runInWindow(second.folder(), visitAndRest);
    return 0;
  }));
  const ChildProcess::Environment environment = {
      {"QT_QPA_PLATFORM", "offscreen"}, {"XDG_CONFIG_HOME", home.path()}, {"XDG_STATE_HOME", home.path()}};
  idlers.push_back({"wake-ups, the built program, just started",
                    std::make_unique<ChildProcess>(std::vector<std::string>{ZEPHON_TOOL}, environment)});
#endif
  addWakeUps(idlers, results);
}

// A tick of polling in which the device dies while it owes an answer. The tick may take what is left of its
// query's time-out, the other queries fail at once, and leaving the page has its own pause.
void measureHangUp(const std::string& where, SimulatedPort& port, Main& main, Results& results) {
  constexpr double kIntoThePass = 30;  // the answer that is late is owed then
  constexpr double kLeavingMs = 10;
  constexpr double kLookedAt = 3000;
  openMeasurementPage(main);
  const Millis passBefore = processorTime();
  pollTick(main);
  const Millis passCost = processorTime() - passBefore;
  main.timers.measurementTimer.setEnabled(false);

  EventLoop& loop = main.around.loop;
  Instant dead{};
  Millis costBefore{};
  loop.callAt(loop.now() + fromMillis(kIntoThePass), [&] {
    port.kill();
    dead = loop.now();
    costBefore = processorTime();
  });
  pollTick(main);
  const Millis toRest = loop.now() - dead;
  const Millis cost = processorTime() - costBefore;
  if (main.link.connected) std::fputs("the lost line goes unnoticed\n", stderr);
  results.add({"hang-up to rest, " + where, toRest.count(), orvantis::kIRms.timeoutMs + kLeavingMs, "ms",
               main.link.connected ? 0 : 1.05});
  results.add(
      {"processor time of a hang-up against a pass, " + where, cost.count(), passCost.count(), "ms", 1});
  const long wokenBefore = wakeUps(::getpid());
  wait(main, kLookedAt);
  const auto woken = static_cast<double>(wakeUps(::getpid()) - wokenBefore);
  results.add({"wake-ups after a hang-up, " + where, woken * 1000 / kLookedAt, 1, "/s", 1});
}

void measureHangUps(Results& results) {
  const std::vector<std::string> device = {"--orvantis", "--fault", "late:only=g6,amount=50"};
  SimulatedPort first(device);
  runOnPoll(first.folder(), [&](Main& main) { measureHangUp("poll", first, main, results); });
  SimulatedPort second(device);
  runInWindow(second.folder(), [&](Main& main) { measureHangUp("window", second, main, results); });
}

}  // namespace

int main() {
  Results results;
  measureWakeUps(results);
  measureHangUps(results);
  return results.status();
}
