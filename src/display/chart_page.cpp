#include "display/chart_page.h"

#include <span>

#include "display/chart_table.h"
#include "display/link_status.h"
#include "display/live_chart.h"
#include "display/unsaved_chart.h"
#include "logs/shown_log.h"
#include "protocol/day_serial.h"
#include "protocol/dict_text.h"
#include "protocol/energy.h"
#include "protocol/firmware_gates.h"
#include "protocol/measurement.h"
#include "protocol/outlets.h"
#include "protocol/sampled_volts.h"
#include "protocol/stay.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyInterval = 45;
constexpr std::size_t kKeyTimes = 133;
constexpr std::size_t kKeySeconds = 134;
constexpr int kTries = 4;

using C = ChartElements;
// In the order of chartPlotOn.
constexpr Button C::*kButtons[] = {&C::vlnChartBtn, &C::aChartBtn,  &C::pChartBtn,  &C::vngChartBtn,
                                   &C::fChartBtn,   &C::pfChartBtn, &C::cfChartBtn, &C::euChartBtn};

struct Query {
  bool (*read)(Main&);
  double pauseMs = 0;                          // ahead of it
  bool (*asked)(const DeviceKind&) = nullptr;  // only of such a device
};
constexpr Query kFirstLine[] = {{getVLNrms},    {getIrms}, {getPavg}, {getVNGrms},
                                {getFrequency}, {getPF},   {getCF},   {getEU}};
// The first tells the load.
constexpr Query kSecondLine[] = {{getOutletsTR}, {getVLGtr}, {getVNGtr, 100, recordsNeutralGround}};

std::span<const Query> queriesOf(const Link& link) {
  if (link.modelLine == 1) return kSecondLine;
  return kFirstLine;
}

// A tick, for as long as nothing has come in between: the page has been left, or a box stood in its way and
// the next tick has overtaken it.
class Tick {
 public:
  explicit Tick(Main& main) : main_(main), stay_(main), number_(++main.recording.ticks) {
    main.recording.ticking = true;
  }
  Tick(const Tick&) = delete;
  Tick& operator=(const Tick&) = delete;
  ~Tick() {
    if (main_.recording.ticks == number_) main_.recording.ticking = false;
  }
  bool goesOn() const { return stay_.stands() && main_.pages.chartOn && main_.recording.ticks == number_; }

 private:
  Main& main_;
  Stay stay_;
  std::uint64_t number_;
};

enum class Answered { All, Some, None };

// All queries of the line, whether or not the ones before have failed. Nothing when the tick is over.
std::optional<Answered> askOnce(Main& main, const Tick& tick) {
  int asked = 0;
  int failed = 0;
  for (const Query& query : queriesOf(main.link)) {
    if (query.asked && !query.asked(kindOf(main.link))) continue;
    if (query.pauseMs > 0) wait(main, query.pauseMs);
    if (!tick.goesOn()) return {};
    if (!query.read(main)) ++failed;
    if (!tick.goesOn()) return {};
    ++asked;
  }
  if (failed == 0) return Answered::All;
  return failed < asked ? Answered::Some : Answered::None;
}

// Answers in part are asked for again: one try has to be answered whole, or not at all.
std::optional<Answered> ask(Main& main, const Tick& tick) {
  std::optional<Answered> answered = Answered::Some;
  for (int i = 0; i < kTries && answered == Answered::Some; ++i) answered = askOnce(main, tick);
  return answered;
}

void zeroReadings(Readings& readings) {
  const std::int16_t phase = readings.pollPhase;
  readings = {};
  readings.pollPhase = phase;
}

// The status line tells of a gap while it lasts.
void tellGap(Main& main, bool gap) {
  const std::size_t before = finishedChartRows(main);
  const bool wasGap = before > 0 && isInGap(main.recording, before - 1);
  if (gap && !wasGap) showLinkLost(main, lostLink(main, main.exchange.lastFailure));
  if (!gap && wasGap) showLinkState(main);
}

void takeRow(Main& main, bool gap) {
  if (gap) zeroReadings(main.readings);
  tellGap(main, gap);
  finishChartRow(main, gap);
  showLiveRow(main);
  keepChartRows(main);
}

void stampRow(Main& main) {
  main.logs.chartData.back()[0] = dateSerial(main.around.clock.now().local);
}

void tickChart(Main& main, const PageExits& exits) {
  main.timers.chartTimer.setEnabled(false);
  if (!main.pages.chartOn || main.logs.chartData.empty()) return;
  const Tick tick(main);
  stampRow(main);
  const auto answered = ask(main, tick);
  if (!answered) return;
  if (*answered == Answered::Some) {
    main.pages.chartOn = false;
    return exits.linkLost();
  }
  takeRow(main, *answered == Answered::None);
  main.timers.chartTimer.setEnabled(true);
}

// A tick under way starts the timer itself, at its end.
void setInterval(Main& main) {
  Slider& slide = main.chart.chartIntervalSlide;
  const double seconds = slide.value() >= 1 ? slide.value() : 1;
  slide.setTooltip(dictText(main, kKeyInterval) + " (" + shortestText(seconds) + ' ' +
                   dictText(main, kKeyTimes) + ' ' + dictText(main, kKeySeconds) + ')');
  Timer& timer = main.timers.chartTimer;
  timer.setEnabled(false);
  timer.setInterval(seconds * 1000);
  timer.setEnabled(main.pages.chartOn && !main.recording.ticking);
}

void pressPlot(Main& main, std::size_t plot, bool on) {
  if (!main.frame.ChartBtn.value()) return;
  main.recording.chartPlotOn[plot] = on;
  showLivePlot(main, plot);
}

}  // namespace

void wireChartPage(Main& main, const PageExits& exits) {
  main.timers.chartTimer.onTick = [&main, exits] { tickChart(main, exits); };
  main.chart.chartIntervalSlide.onChange = [&main](double /*seconds*/) { setInterval(main); };
  for (std::size_t i = 0; i < std::size(kButtons); ++i) {
    (main.chart.*kButtons[i]).onChange = [&main, i](bool on) { pressPlot(main, i, on); };
  }
}

void startChartPage(Main& main) {
  takeUpChart(main);
  choosePlots(main);
  for (std::size_t i = 0; i < std::size(kButtons); ++i) {
    (main.chart.*kButtons[i]).setValue(main.recording.chartPlotOn[i]);
  }
  showLiveChart(main);
  ++main.recording.ticks;  // a tick of an earlier visit may still be winding down
  main.recording.ticking = false;
  setInterval(main);
}

void clearChartPage(Main& main) {
  hideFindings(main);
  main.frame.CWGraph2.setUp({}, {}, {});
  main.frame.CWGraph2.setVisible(false);
}

}  // namespace zephon
