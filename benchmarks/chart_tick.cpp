// A tick of the live chart, without the device: a row is stored, plotted and kept in the journal, and all
// eight quantities are painted again. Against two bare programs of the same plotting library: one that
// appends the row to eight graphs, and one that hands all columns over anew.

#include <qcustomplot.h>

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <functional>
#include <sstream>

#include "display/chart_page.h"
#include "display/chart_table.h"
#include "display/live_chart.h"
#include "display/unsaved_chart.h"
#include "platform/virtual_loop.h"
#include "support/child_process.h"
#include "support/process_use.h"
#include "support/results.h"
#include "support/tool.h"
#include "window/graph_view.h"

namespace {

using namespace zephon;
using namespace zephon::benchmarks;

constexpr std::size_t kDay = 86'400;
constexpr std::size_t kWeek = 7 * kDay;
constexpr std::size_t kFew = 1000;
constexpr int kTicks = 15;
constexpr int kWarmUps = 3;
constexpr int kRuns = 3;
constexpr QSize kSize(1200, 800);
constexpr double kBegun = 45356;

// What the mains could look like, a second apart.
std::array<double, 9> rowOf(std::size_t number) {
  constexpr std::array<double, 8> kMiddle = {118, 6, 700, 0.8, 60, 0.9, 1.41, 20};
  constexpr std::array<double, 8> kSwing = {4, 5, 500, 0.6, 0.05, 0.1, 0.03, 0};
  const auto seconds = static_cast<double>(number);
  std::array<double, 9> row{kBegun + seconds / 86400};
  auto chance = static_cast<std::uint32_t>(number * 2654435761u);
  for (std::size_t i = 0; i < kMiddle.size(); ++i) {
    chance = chance * 1664525u + 1013904223u;
    const double noise = static_cast<double>(chance >> 16) / 65536 - 0.5;
    row[i + 1] = kMiddle[i] + kSwing[i] * (std::sin(seconds / 7000 + static_cast<double>(i)) + noise);
  }
  row[8] = kMiddle[7] + seconds / 1e5;
  return row;
}

double residentMiB() {
  std::ifstream file("/proc/self/statm");
  double all = 0;
  double resident = 0;
  file >> all >> resident;
  return resident * 4096 / (1 << 20);
}

// Does some work, and turns the loop until the plot has been painted with it.
class Painted : public QObject {
 public:
  explicit Painted(QWidget& plot) : plot_(plot) { plot.installEventFilter(this); }
  void with(const std::function<void()>& work) {
    painted_ = false;
    work();
    while (!painted_) QApplication::processEvents();
  }
  bool eventFilter(QObject* object, QEvent* event) override {
    painted_ = painted_ || (object == &plot_ && event->type() == QEvent::Paint);
    return false;
  }

 private:
  QWidget& plot_;
  bool painted_ = false;
};

// A program with so many rows: what it does for one more.
struct Program {
  virtual ~Program() = default;
  virtual void fill(std::size_t rows) = 0;  // without painting
  virtual void tick() = 0;
  virtual QWidget& plot() = 0;
};

class OurChart : public Program {
 public:
  OurChart() : tool_(loop_, dialogs_, {}), main_(tool_.main) {
    main_.pages.chartOn = true;
    main_.recording.chartPlotOn.fill(true);
    startChartPage(main_);
    view_ = drawGraph(main_.frame.CWGraph2, nullptr);
    view_->resize(kSize);
    main_.frame.CWGraph2.setVisible(true);
    view_->show();
  }
  OurChart(const OurChart&) = delete;
  OurChart& operator=(const OurChart&) = delete;
  ~OurChart() override { delete view_; }
  void fill(std::size_t rows) override {
    for (; number_ < rows; ++number_) store();
    main_.recording.journal.rows = number_;
    showLiveChart(main_);
  }
  void tick() override {
    store();
    ++number_;
    showLiveRow(main_);
    keepChartRows(main_);
  }
  QWidget& plot() override { return *view_->findChild<QWidget*>("canvas"); }
  void showLastHour() {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_L, Qt::NoModifier);
    QApplication::sendEvent(view_, &press);
  }

 private:
  void store() {
    const std::array<double, 9> row = rowOf(number_);
    main_.logs.chartData.back()[0] = row[0];
    const auto single = [&row](std::size_t column) { return static_cast<float>(row[column]); };
    main_.readings = {single(1), single(2), single(3), single(4), single(5), single(6), single(7)};
    main_.energy.energyKWh = single(8);
    finishChartRow(main_, false);
  }

  VirtualLoop loop_;
  NoDialogs dialogs_;
  Tool tool_;
  Main& main_;
  QWidget* view_;
  std::size_t number_ = 0;
};

// Eight graphs over as many axes as ours.
class BarePlot : public Program {
 public:
  BarePlot() {
    constexpr std::array<std::size_t, 8> kAxisOf = {0, 1, 2, 3, 4, 5, 5, 6};
    std::array<QCPAxis*, 7> axes{plot_.yAxis};
    for (std::size_t i = 1; i < axes.size(); ++i) axes[i] = plot_.axisRect()->addAxis(QCPAxis::atRight);
    for (std::size_t i = 0; i < kAxisOf.size(); ++i) {
      plot_.addGraph(plot_.xAxis, axes[kAxisOf[i]])
          ->setPen(QPen(QColor::fromHsv(static_cast<int>(i) * 40, 200, 160)));
    }
    plot_.resize(kSize);
    plot_.show();
  }
  QWidget& plot() override { return plot_; }

 protected:
  void show(double last) {
    plot_.xAxis->setRange(kBegun, last);
    plot_.replot();
  }
  QCustomPlot plot_;
};

class AppendingPlot : public BarePlot {
 public:
  void fill(std::size_t rows) override {
    for (; number_ < rows; ++number_) append(rowOf(number_));
    for (int i = 0; i < plot_.graphCount(); ++i) plot_.graph(i)->rescaleValueAxis();
    show(rowOf(number_)[0]);
  }
  void tick() override {
    const auto row = rowOf(number_++);
    append(row);
    show(row[0]);
  }

 private:
  void append(const std::array<double, 9>& row) {
    for (int i = 0; i < plot_.graphCount(); ++i)
      plot_.graph(i)->addData(row[0], row[static_cast<std::size_t>(i) + 1]);
  }
  std::size_t number_ = 0;
};

class HandingPlot : public BarePlot {
 public:
  void fill(std::size_t rows) override {
    while (table_.size() < rows) table_.push_back(rowOf(table_.size()));
    hand();
  }
  void tick() override {
    table_.push_back(rowOf(table_.size()));
    hand();
  }

 private:
  void hand() {
    std::array<QVector<double>, 9> columns;
    for (std::size_t i = 0; i < columns.size(); ++i) {
      columns[i].reserve(static_cast<qsizetype>(table_.size()));
      for (const auto& row : table_) columns[i].append(row[i]);
    }
    for (int i = 0; i < plot_.graphCount(); ++i) {
      plot_.graph(i)->setData(columns[0], columns[static_cast<std::size_t>(i) + 1], true);
      plot_.graph(i)->rescaleValueAxis(i == 6);  // crest factor shares the axis before it
    }
    show(table_.back()[0]);
  }
  std::vector<std::array<double, 9>> table_;
};

struct Cost {
  double milliseconds = 0;
  double growthMiB = 0;
};

enum class Kind { Ours, OursLastHour, Appending, Handing };

std::unique_ptr<Program> programOf(Kind kind) {
  if (kind == Kind::Appending) return std::make_unique<AppendingPlot>();
  if (kind == Kind::Handing) return std::make_unique<HandingPlot>();
  return std::make_unique<OurChart>();
}

// In a process of its own: tells the processor time of a tick, and the memory that the rows have taken.
int tellCost(Kind kind, std::size_t rows) {
  int argc = 1;
  char name[] = "chart_tick";
  char* argv[] = {name, nullptr};
  QApplication application(argc, argv);
  const auto program = programOf(kind);
  Painted painted(program->plot());
  painted.with([&] { program->fill(2); });
  const double before = residentMiB();
  painted.with([&] { program->fill(rows); });
  if (kind == Kind::OursLastHour) painted.with([&] { static_cast<OurChart&>(*program).showLastHour(); });
  std::vector<double> costs;
  for (int i = 0; i < kWarmUps + kTicks; ++i) {
    const Millis begun = processorTime();
    painted.with([&] { program->tick(); });
    if (i >= kWarmUps) costs.push_back((processorTime() - begun).count());
  }
  std::printf("%f %f\n", median(costs), residentMiB() - before);
  std::fflush(stdout);
  return 0;
}

Cost costOf(Kind kind, std::size_t rows) {
  std::vector<double> times;
  std::vector<double> growths;
  for (int run = 0; run < kRuns; ++run) {
    ChildProcess process(std::function<int()>([kind, rows] { return tellCost(kind, rows); }));
    std::istringstream told(process.readLine());
    Cost cost;
    if (!(told >> cost.milliseconds >> cost.growthMiB)) std::fprintf(stderr, "no tick told its cost\n");
    times.push_back(cost.milliseconds);
    growths.push_back(cost.growthMiB);
  }
  return {median(times), median(growths)};
}

}  // namespace

int main() {
  Results results;
  const Cost ours = costOf(Kind::Ours, kDay);
  const Cost appending = costOf(Kind::Appending, kDay);
  const Cost handing = costOf(Kind::Handing, kDay);
  results.add(
      {"tick at 86,400 rows, against appending", ours.milliseconds, appending.milliseconds, "ms", 1.15});
  results.add({"the same, against handing all over", ours.milliseconds, handing.milliseconds, "ms", 0.35});
  results.add({"memory of 86,400 rows, against the same", ours.growthMiB, handing.growthMiB, "MiB", 0.6});
  results.add({"tick at 604,800 rows, against handing all over", costOf(Kind::Ours, kWeek).milliseconds,
               costOf(Kind::Handing, kWeek).milliseconds, "ms", 0.6});
  results.add({"the last hour of 604,800 rows, against 1,000", costOf(Kind::OursLastHour, kWeek).milliseconds,
               costOf(Kind::OursLastHour, kFew).milliseconds, "ms", 1.5});
  return results.status();
}
