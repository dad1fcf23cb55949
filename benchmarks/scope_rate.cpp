// How fast the scope's captures follow each other in each mode and time factor, against the least that the
// line, the device and the pauses around a capture allow; and how soon the window answers a click meanwhile.
//
// The time of the device is taken in the same run: between the captures a program that does nothing but the
// exchange has its turn, while the picture is held. It can't be less than the line itself allows.

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "protocol/exchange.h"
#include "protocol/scope_samples.h"
#include "support/bare_line.h"
#include "support/results.h"
#include "support/tool.h"
#ifdef ZEPHON_WITH_WINDOW
#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <chrono>
#include <thread>
#endif

namespace {

using namespace zephon;
using namespace zephon::benchmarks;

constexpr int kCaptures = 20;
constexpr int kBareExchanges = 7;
constexpr double kPausesMs = 10 + 10;  // before the command, and behind the reply
constexpr double kLimit = 1 / 0.9;
constexpr double kPatienceMs = 20'000;
constexpr int kBaud = 115200;

struct Case {
  std::string what;
  int mode;
  float xScale;
};

std::vector<Case> cases() {
  std::vector<Case> all;
  for (const auto& [mode, what] : {std::pair(1, "voltage"), {2, "current"}, {3, "both"}}) {
    for (const int factor : {1, 2, 4})
      all.push_back(
          {what + std::string(", time x") + std::to_string(factor), mode, static_cast<float>(factor)});
  }
  return all;
}

[[noreturn]] void giveUp(const std::string& why) {
  std::fprintf(stderr, "scope: %s\n", why.c_str());
  std::exit(EXIT_FAILURE);
}

template <class Condition>
void waitUntil(Main& main, const Condition& met, const std::string& what) {
  const Instant end = main.around.loop.now() + fromMillis(kPatienceMs);
  while (!met()) {
    if (main.around.loop.now() > end) giveUp("no " + what);
    wait(main, 1);
  }
}

void openScope(Main& main) {
  main.frame.ScopeBtn.click();
  if (!main.pages.scopeOn) giveUp(main.frame.linkLbl.caption());
}

void choose(Main& main, const Case& one) {
  main.scope.CH1togBtn.setValue((one.mode & 1) != 0);
  main.scope.CH2togBtn.setValue((one.mode & 2) != 0);
  main.scope.CH3togBtn.setValue(one.mode == 3);
  main.capture.xScaleNext = one.xScale;
  waitUntil(
      main,
      [&] { return main.capture.capturedMode == one.mode && main.capture.capturedXScale == one.xScale; },
      one.what);
}

// The times from one drawn capture to the next.
std::vector<double> captureTimes(Main& main) {
  Graph& graph = main.frame.CWGraph2;
  const std::size_t plot = main.capture.capturedMode == 2 ? 1 : 0;
  std::vector<Instant> drawn;
  std::uint64_t revision = graph.plots().at(plot).revision;
  const Element::WatchId watch = graph.watch([&] {
    if (std::exchange(revision, graph.plots().at(plot).revision) != graph.plots().at(plot).revision)
      drawn.push_back(main.around.loop.now());
  });
  waitUntil(
      main, [&] { return drawn.size() > kCaptures; }, "captures");
  graph.unwatch(watch);
  std::vector<double> times;
  for (std::size_t i = 1; i < drawn.size(); ++i) times.push_back(Millis(drawn[i] - drawn[i - 1]).count());
  return times;
}

// What the same exchange takes a program that knows nothing else.
std::vector<double> bareTimes(Main& main, const Case& one) {
  const CaptureKind& kind = *captureKind(one.mode);
  std::string commands;
  for (std::size_t i = 0; i < captureCommands(one.xScale); ++i) commands += kind.command->text;
  const auto bytes = static_cast<std::int32_t>(captureBytes(kind, one.xScale));
  const DeviceCommand whole{commands, bytes, kind.command->timeoutMs, "a capture"};
  const Step step{&whole};
  std::vector<double> times;
  for (int i = 0; i < kBareExchanges; ++i) {
    const Instant start = main.around.loop.now();
    if (!exchange(fileOf(main), *step.command, kPoll)) giveUp("no bare capture");
    times.push_back(Millis(main.around.loop.now() - start).count());
    kPoll.time(kPausesMs);
  }
  times.push_back(exchangesOf({step}, kBaud).count());
  return times;
}

void measure(Main& main, const std::string& where, Results& results) {
  openScope(main);
  for (const Case& one : cases()) {
    choose(main, one);
    const double measured = median(captureTimes(main));
    main.scope.holdBtn.setValue(true);
    waitUntil(
        main, [&main] { return main.frame.saveBtn.visible(); }, "hold");
    const std::vector<double> bare = bareTimes(main, one);
    main.scope.holdBtn.setValue(false);
    const double least = std::max(median(bare), bare.back()) + kPausesMs;
    results.add({one.what + ", " + where, measured, least, "ms", kLimit});
  }
}

#ifdef ZEPHON_WITH_WINDOW

constexpr int kClicks = 100;
constexpr double kAnswerMs = 50;

QWidget* widgetOf(const Element& element) {
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() == QString::fromStdString(element.name())) return widget;
  }
  giveUp("no button " + element.name());
}

void post(QWidget* widget, QEvent::Type type, Qt::MouseButtons held) {
  QCoreApplication::postEvent(
      widget, new QMouseEvent(type, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton, held, Qt::NoModifier));
}

// Somebody else presses, at moments that have nothing to do with the captures.
void measureClicks(Main& main, Results& results) {
  using Clock = std::chrono::steady_clock;
  openScope(main);
  choose(main, cases().back());
  Button& button = main.scope.XinBtn;
  QWidget* widget = widgetOf(button);
  std::vector<Clock::time_point> pressed(kClicks);
  std::vector<double> answers;
  const Element::WatchId watch = button.watch([&] {
    if (!button.value()) return;
    const auto taken = Clock::now() - pressed.at(answers.size());
    answers.push_back(std::chrono::duration<double, std::milli>(taken).count());
    main.capture.xScaleNext = 4;
  });
  std::thread user([&] {
    for (auto& moment : pressed) {
      std::this_thread::sleep_for(std::chrono::milliseconds(37));
      moment = Clock::now();
      post(widget, QEvent::MouseButtonPress, Qt::LeftButton);
      post(widget, QEvent::MouseButtonRelease, Qt::NoButton);
    }
  });
  waitUntil(
      main, [&] { return answers.size() == kClicks; }, "answers");
  user.join();
  button.unwatch(watch);
  results.add({"slowest answer to a click during captures", *std::max_element(answers.begin(), answers.end()),
               kAnswerMs, "ms", 1});
}

#else

void measureClicks(Main& /*main*/, Results& /*results*/) {}

#endif

}  // namespace

int main() {
  Results results;
  const SimulatedPort port({"--orvantis"});
  runOnPoll(port.folder(), [&](Main& main) { measure(main, "poll", results); });
  runInWindow(port.folder(), [&](Main& main) { measure(main, "window", results); });
  runInWindow(port.folder(), [&](Main& main) { measureClicks(main, results); });
  return results.status();
}
