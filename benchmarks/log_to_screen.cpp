// From the last byte of a full history to its tree and its graph on screen, and how long the window stands
// still meanwhile.

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>

#include "protocol/exchange.h"
#include "support/results.h"
#include "support/tool.h"

namespace {

using namespace zephon;
using namespace zephon::benchmarks;
using Clock = std::chrono::steady_clock;

constexpr int kRuns = 7;
constexpr std::size_t kRows = 6911;
constexpr double kOnScreenMs = 300;
constexpr double kStillMs = 100;
constexpr double kPatienceMs = 5000;

double msSince(Clock::time_point moment) {
  return std::chrono::duration<double, std::milli>(Clock::now() - moment).count();
}

// Waits until a widget of that name has been painted.
class Painted : public QObject {
 public:
  explicit Painted(const char* name) : name_(QString::fromLatin1(name)) { qApp->installEventFilter(this); }
  bool wait(Main& main) {
    const auto begun = Clock::now();
    while (!painted_ && msSince(begun) < kPatienceMs) zephon::wait(main, 1);
    return painted_;
  }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    for (const QObject* one = object; one; one = one->parent()) painted_ |= one->objectName() == name_;
    return false;
  }

 private:
  QString name_;
  bool painted_ = false;
};

// The longest time that the window's loop has not turned.
class Stillness {
 public:
  Stillness() {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { turn(); });
    timer_.start(0);
  }
  void begin() {
    last_ = Clock::now();
    longest_ = 0;
  }
  double longest() {
    turn();
    return longest_;
  }

 private:
  void turn() {
    longest_ = std::max(longest_, msSince(last_));
    last_ = Clock::now();
  }
  QTimer timer_;
  Clock::time_point last_ = Clock::now();
  double longest_ = 0;
};

struct Run {
  double treeMs = 0;
  double graphMs = 0;
  double stillMs = 0;
};

std::optional<Run> run(Main& main) {
  DataElements& data = main.data;
  Stillness stillness;
  Clock::time_point last;
  const auto watch = data.dataProgSlide.watch([&] {
    if (data.dataProgSlide.value() < 100) return;
    last = Clock::now();
    stillness.begin();
  });
  Painted tree("TreeView1");
  data.histDataBtn.click();
  if (!tree.wait(main) || main.logs.histData.size() != kRows + 1) return std::nullopt;
  Run result;
  result.treeMs = msSince(last);
  data.dataProgSlide.unwatch(watch);

  Painted graph("canvas");
  const auto pressed = Clock::now();
  data.maxMinHistBtn.click();
  if (!graph.wait(main)) return std::nullopt;
  result.graphMs = msSince(pressed);
  result.stillMs = stillness.longest();
  data.maxMinHistBtn.click();
  return result;
}

void measure(Main& main, Results& results) {
  main.frame.dataBtn.click();
  std::vector<double> both;
  std::vector<double> still;
  for (int count = 0; count < kRuns; ++count) {
    const auto one = run(main);
    if (!one) {
      std::fprintf(stderr, "no full log on screen: %zu rows\n", main.logs.histData.size());
      continue;
    }
    both.push_back(one->treeMs + one->graphMs);
    still.push_back(one->stillMs);
  }
  if (both.empty()) both = still = {1e9};
  results.add({"full history, last byte to tree and graph on screen", median(both), kOnScreenMs, "ms", 1});
  results.add({"the same, longest that the window stands still", median(still), kStillMs, "ms", 1});
}

}  // namespace

int main() {
  Results results;
  const SimulatedPort port({"--orvantis", "--fast", "--past", "200"});
  if (!runInWindow(port.folder(), [&](Main& main) { measure(main, results); })) return 0;
  return results.status();
}
