#include <gtest/gtest.h>

#include "logs/chart_memory.h"
#include "logs/download_world.h"
#include "logs/event_log.h"
#include "logs/history_log.h"

namespace zephon {
namespace {

using simulator::Fault;
using simulator::FaultKind;
using testing_support::DownloadWorld;

struct LogCase {
  const char* name;
  bool (*get)(Main&);
  const LogControls& controls;
  const char* command;
  double seconds;  // what it takes at the line's pace
  int bytes;
};
constexpr LogCase kLogCases[] = {{"Events", getTSdata, kEventControls, "gE", 1.09, 8196},
                                 {"History", getHistData, kHistoryControls, "gD", 9.9, 110'599},
                                 {"Chart", getCMdata, kChartControls, "g`", 15.6, 393'216}};

// The log as the device has sent it: the end of all that it has said.
bool broughtWhole(const DownloadWorld& world) {
  const std::string& raw = world.main.logs.rawLogBuffer;
  const std::string& sent = world.device.sent();
  if (raw.size() == kEventFrameBytes || raw.size() == kHistoryFrameBytes) return sent.ends_with(raw);
  std::string stream;
  for (std::size_t page = raw.size() / kChartPageBytes; page > 0; --page)
    stream += sent.substr(sent.size() - page * kChartReplyBytes + 2, kChartPageBytes);
  return !raw.empty() && raw == stream;
}

class Download : public ::testing::TestWithParam<LogCase> {
 protected:
  const LogCase& log() const { return GetParam(); }
  bool history() const { return log().get == getHistData; }
  bool chart() const { return log().get == getCMdata; }
  std::string caption(const DownloadWorld& world) const {
    return (world.main.data.*log().controls.button).caption();
  }
  bool clearShown(const DownloadWorld& world) const {
    return !log().controls.clear || (world.main.data.*log().controls.clear).visible();
  }
  // Everything that a transfer turns is as before.
  bool calm(const DownloadWorld& world) const {
    return caption(world) == world.main.dict[log().controls.captionKey] && clearShown(world) &&
           !world.main.data.cancelDataBtn.visible() && !world.main.data.dataProgSlide.visible() &&
           world.pageButtonsEnabled(true) && !world.main.exchange.Timer1.enabled();
  }
};

INSTANTIATE_TEST_SUITE_P(Logs, Download, ::testing::ValuesIn(kLogCases),
                         [](const auto& one) { return one.param.name; });

TEST_P(Download, BringsTheDevicesBytesAndTheirRowsAndShowsItsProgress) {
  DownloadWorld world;
  world.main.logs.tsData.resize(3);
  world.main.logs.histData.resize(3);
  double progress = 0;
  for (const double share : {0.5, 0.7, 0.9}) {
    world.later(share * log().seconds * 1000, [&] {
      EXPECT_EQ(caption(world), world.main.dict[79]);
      EXPECT_TRUE(world.main.data.cancelDataBtn.visible() && world.main.data.dataProgSlide.visible());
      EXPECT_EQ(clearShown(world), chart());
      EXPECT_TRUE(world.pageButtonsEnabled(false) && !world.main.frame.helpBtn.enabled());
      EXPECT_GT(world.main.data.dataProgSlide.value(), progress);
      progress = world.main.data.dataProgSlide.value();
    });
  }
  ASSERT_TRUE(log().get(world.main));
  EXPECT_NEAR(world.nowMs(), log().seconds * 1000, log().seconds * 40);
  EXPECT_GT(progress, 30);
  EXPECT_TRUE(broughtWhole(world) && calm(world));
  const Logs& logs = world.main.logs;
  const UtcOffset offset = utcOffset(world.clock.now());
  const std::string& raw = logs.rawLogBuffer;
  EXPECT_TRUE(logs.tsData == decodeEventFrame(raw, 120, offset).value_or(LogTable<8>()));
  EXPECT_TRUE(logs.histData == decodeHistoryFrame(raw, 120, offset).value_or(LogTable<12>()));
  EXPECT_TRUE(!chart() || logs.chartData == decodeChartMemory(raw, offset));
  EXPECT_GT(logs.tsData.size() + logs.histData.size() + logs.chartData.size(), 100U);
}

TEST_P(Download, EndsEachFaultAsItMust) {
  const std::string all = std::to_string(log().bytes) + " bytes came.";
  const std::string half = "4000 of " + all, lessOne = std::to_string(log().bytes - 1) + " of " + all;
  // What the download returns, whether with the device's bytes, and how much came, in the message or for it.
  const std::tuple<Fault, bool, bool, std::string> endings[] = {
      {{.kind = FaultKind::Silent}, false, false, ""},
      {{.kind = FaultKind::Silent, .commands = 1}, chart(), chart(), ""},
      {{.kind = FaultKind::Short, .commands = 1}, history() || chart(), chart(), chart() ? "" : lessOne},
      {{.kind = FaultKind::Late, .commands = 1}, true, true, ""},
      {{.kind = FaultKind::Stray, .amount = 300}, true, !chart(), ""},  // pages have nothing to be told by
      {{.kind = FaultKind::Stall, .amount = 300, .commands = 1}, true, true, ""},
      {{.kind = FaultKind::Stall, .amount = 0, .at = 4000}, history(), false, half},
      {{.kind = FaultKind::Cut, .amount = 4000}, history(), false, half},
  };
  for (auto [fault, good, whole, came] : endings) {
    SCOPED_TRACE(static_cast<int>(fault.kind));
    DownloadWorld world;
    fault.only = log().command;
    world.device.addFault(fault);
    EXPECT_EQ(log().get(world.main), good);
    EXPECT_EQ(broughtWhole(world), whole);
    EXPECT_TRUE(calm(world));
    if (fault.kind == FaultKind::Stray) continue;
    EXPECT_NE(world.tablesEmpty(), whole);
    const bool told = good && !whole;
    ASSERT_EQ(world.dialogs.texts(), std::vector<std::string>(told ? 1 : 0, world.main.dict[208]));
    EXPECT_EQ(told ? world.dialogs.shown()[0].detail : world.main.exchange.shortfall, came);
  }
}

TEST_P(Download, EndsAtOnceWithItsPort) {
  for (const double moment : {100.0, 240.0, 800.0}) {
    DownloadWorld world;
    world.later(moment, [&] {
      moment == 240 ? world.line.failNext(MemoryLine::Call::Write, 5, 100) : world.line.detach(1);
    });
    EXPECT_FALSE(log().get(world.main)) << moment;
    EXPECT_LT(world.nowMs(), 6000) << moment;
    EXPECT_TRUE(calm(world)) << moment;
  }
}

// As cancelDataBtn does, at any moment: silently, at once, and the next download is whole again.
TEST_P(Download, CanBeCancelledAtAnyMoment) {
  for (double moment = 1; moment < log().seconds * 1000; moment *= 2.3) {
    DownloadWorld world;
    world.later(moment, [&] { world.main.pages.dataPageActive = false; });
    EXPECT_TRUE(log().get(world.main)) << moment;
    EXPECT_LT(world.nowMs(), moment + 500) << moment;
    EXPECT_TRUE(world.tablesEmpty() && calm(world) && world.dialogs.shown().empty()) << moment;
    EXPECT_EQ(world.main.exchange.shortfall, "") << moment;
    world.main.pages.dataPageActive = true;
    EXPECT_TRUE(log().get(world.main) && broughtWhole(world)) << moment;
  }
}

// A few bytes ahead put a digit of the clock where the wrap flag belongs.
TEST(HistoryDownload, IsNotTakenInByStrayBytesThatPutADigitInTheFlagsPlace) {
  for (int strays = 1; strays <= 19; ++strays) {
    DownloadWorld world;
    world.device.addFault({.kind = FaultKind::Stray, .amount = strays, .only = "gD"});
    EXPECT_TRUE(getHistData(world.main) && broughtWhole(world)) << strays;
  }
}

TEST(EventDownload, TheSecondLinesTableStandsInForItsLog) {
  DownloadWorld world(makeProfile(simulator::Line::Tessara));
  ASSERT_TRUE(getTSdata(world.main));
  EXPECT_EQ(world.main.logs.tsData.size(), 60U);
  EXPECT_EQ(world.main.data.TreeView1.tooltip(), world.main.dict[214]);
  const std::pair<Fault, const char*> faults[] = {
      {{.kind = FaultKind::Silent, .only = "+", .commands = 1}, ""},
      {{.kind = FaultKind::Silent, .only = "t", .commands = 1}, ""},
      {{.kind = FaultKind::Stall, .amount = 0, .at = 100, .only = "+"}, "100 of 512 bytes came."},
      {{.kind = FaultKind::Cut, .amount = 300, .only = "+"}, "300 of 512 bytes came."}};
  for (const auto& [fault, shortfall] : faults) {
    world.device.addFault(fault);
    EXPECT_FALSE(getTSdata(world.main)) << shortfall;
    EXPECT_TRUE(world.tablesEmpty()) << shortfall;
    EXPECT_EQ(world.main.exchange.shortfall, shortfall);
    world.device.clearFaults();
  }
}

TEST(EmptyLogs, AreAnEmptyTreeThatCanBeSaved) {
  DownloadWorld world({}, 0);
  world.device.device().events.ring().clear();
  world.device.device().clearHistory();
  for (const LogCase& log : {kLogCases[0], kLogCases[1]}) {
    ASSERT_TRUE(log.get(world.main));
    EXPECT_TRUE(world.main.data.TreeView1.visible() && world.main.data.TreeView1.empty()) << log.name;
    EXPECT_TRUE(world.main.frame.saveBtn.visible()) << log.name;
  }
}

TEST(ChartDownload, AsksForThePagesUpToTheEndAndForEachFiveTimes) {
  simulator::Profile small;
  small.chartMemory = simulator::ChartFitted::FourPages;
  // The device, the hours recorded, how many commands it is silent to and from when on; the pages, from 4 on.
  const std::tuple<simulator::Profile, double, int, double, std::string, bool> rows[] = {
      {{}, 8, 4, 0, "444445", true},                // 57,600 bytes
      {{}, 8, 5, 0, "44444", false},                //
      {small, 60, 0, 0, "45678", true},             // full: the fifth page reads as empty
      {small, 60, 99, 11'950, "456788888", true}};  // or says nothing
  for (const auto& [profile, hours, silent, from, pages, good] : rows) {
    DownloadWorld world(profile, hours);
    const Fault fault = {.kind = FaultKind::Silent, .only = "g`", .commands = silent};
    world.later(from, [&] { world.device.addFault(fault); });
    EXPECT_EQ(getCMdata(world.main), good) << pages;
    std::string asked;
    for (const auto& heard : world.device.heard())
      if (heard.command == "g`")
        asked += std::to_string((heard.data[0] * 256 + (heard.data[1] & 0xFF)) / 128);
    EXPECT_EQ(asked, pages);
    EXPECT_EQ(world.main.logs.chartData.size() > 2800, good) << pages;
    EXPECT_EQ(world.main.logs.rawLogBuffer.size() == 131'072, from > 0) << pages;
    EXPECT_TRUE(good || std::abs(world.nowMs() - (250 + 5 * 650)) < 60) << world.nowMs();
  }
}

}  // namespace
}  // namespace zephon
